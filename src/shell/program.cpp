#include "shell/program.hpp"

#include "calculator/calc_window.hpp"
#include "calculator/progress_bar_window.hpp"
#include "calculator/tape_window.hpp"
#include "runtime/text.hpp"
#include "shell/tessarine_app.hpp"

namespace tessarine {

Program::Program(Platform& platform, std::uint64_t random_seed)
    : platform_(platform),
      prefs_(platform.files, platform.decimal_separator),
      random_(random_seed) {}

Program::~Program() = default;

void Program::Start() {
  // The application object and its menu bar first, then the main window, whose
  // opening starts the session.
  app_ = std::make_unique<TessarineApp>(*this);
  GetCalcWindow();
}

CalcWindow& Program::GetCalcWindow() {
  if (!calc_window_ || !calc_window_->IsOpen()) {
    calc_window_ = std::make_unique<CalcWindow>(*this);
    Made(*calc_window_);
    calc_window_->Open();
  }
  return *calc_window_;
}

ProgressBarWindow& Program::ShowProgressBarWindow() {
  if (!progress_bar_window_ || !progress_bar_window_->IsOpen()) {
    progress_bar_window_ = std::make_unique<ProgressBarWindow>(platform_);
    Made(*progress_bar_window_);
    progress_bar_window_->Open();
    platform_.desktop.ShowWindow(progress_bar_window_->Name(), true);
  }
  return *progress_bar_window_;
}

void Program::CloseProgressBarWindow() {
  if (!progress_bar_window_ || !progress_bar_window_->IsOpen()) return;
  progress_bar_window_->Close();
  platform_.desktop.CloseWindow(progress_bar_window_->Name());
}

TapeWindow& Program::GetTapeWindow() {
  if (!tape_window_ || !tape_window_->IsOpen()) {
    tape_window_ = std::make_unique<TapeWindow>(*this);
    Made(*tape_window_);
    tape_window_->Open();
  }
  return *tape_window_;
}

void Program::Made(Window& window) {
  for (const auto& observer : window_observers_) observer(window);
}

Window* Program::FindOpenWindow(std::string_view name) {
  Window* windows[] = {calc_window_.get(), progress_bar_window_.get(), tape_window_.get()};
  for (Window* window : windows)
    if (window && window->IsOpen() && StrEq(window->Name(), name)) return window;
  return nullptr;
}

}  // namespace tessarine
