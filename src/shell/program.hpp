// Program: the whole running calculator, built once by main (or by a test) on a
// platform. It owns the settings every part reads, the random source, and the
// windows, each an implicit single instance: asking for one returns the open
// window or makes and opens a new one in its start state.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <string_view>

#include "runtime/platform/platform.hpp"
#include "runtime/random_source.hpp"
#include "settings/global_stuff.hpp"
#include "settings/prefs_module.hpp"

namespace tessarine {

class CalcWindow;
class TessarineApp;
class ProgressBarWindow;
class TapeWindow;
class Window;

class Program {
 public:
  Program(Platform& platform, std::uint64_t random_seed);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Start-up: touches the main window, which opens it and starts the session.
  void Start();

  Platform& GetPlatform() { return platform_; }
  GlobalStuff& Globals() { return globals_; }
  PrefsModule& Prefs() { return prefs_; }
  RandomSource& Random() { return random_; }

  // The application object, with the menu bar; made by Start.
  TessarineApp& App() { return *app_; }

  // Whether the tape's text changed since it was last saved.
  bool TapeChanged = false;

  // The main window, opened if it is not.
  CalcWindow& GetCalcWindow();
  // The main window if it exists, without making it.
  CalcWindow* ExistingCalcWindow() { return calc_window_.get(); }

  // The progress sheet of long calculations, shown over the main window.
  ProgressBarWindow& ShowProgressBarWindow();
  void CloseProgressBarWindow();

  // The paper tape: made (hidden) on first use.
  TapeWindow& GetTapeWindow();
  TapeWindow* ExistingTapeWindow() { return tape_window_.get(); }

  // The file picked in the tape's save dialog.
  std::string Document;

  // Front ends hear of every window the program makes.
  using WindowObserver = std::function<void(Window& window)>;
  void ObserveWindows(WindowObserver observer) { window_observers_.push_back(std::move(observer)); }

  // An open window by name, or nullptr.
  Window* FindOpenWindow(std::string_view name);

 private:
  Platform& platform_;
  GlobalStuff globals_;
  PrefsModule prefs_;
  RandomSource random_;
  std::unique_ptr<TessarineApp> app_;
  std::unique_ptr<CalcWindow> calc_window_;
  std::unique_ptr<ProgressBarWindow> progress_bar_window_;
  std::unique_ptr<TapeWindow> tape_window_;
  std::vector<WindowObserver> window_observers_;
  void Made(Window& window);
};

}  // namespace tessarine
