#include "shell/program.hpp"

#include "calculator/calc_window.hpp"
#include "calculator/progress_bar_window.hpp"
#include "calculator/tape_window.hpp"
#include "conversion/currency_error_window.hpp"
#include "conversion/version_update_error_window.hpp"
#include "shell/about_window.hpp"
#include "shell/donation_request_window.hpp"
#include "shell/main_window_parts.hpp"
#include "shell/preferences_window.hpp"
#include "shell/restore_defaults_windows.hpp"
#include "shell/tessarine_app.hpp"
#include "shell/update_windows.hpp"
#include "statistics/stats_windows.hpp"

namespace tessarine {

Program::Program(Platform& platform, std::uint64_t random_seed)
    : platform_(platform),
      prefs_(platform.files, platform.decimal_separator),
      random_(random_seed),
      context_{platform_, globals_, prefs_, random_, menu_bar_, windows_} {
  RegisterWindows();
}

// Members go in reverse order: the windows before the menu bar and the store they use.
Program::~Program() = default;

void Program::RegisterWindows() {
  windows_.Register(CalcWindow::kName, [this] {
    auto window = std::make_unique<CalcWindow>(context_);
    AddMainWindowParts(*window, context_);
    window->ShowDonationReminder = [this] { ShowDonationRequestWindow(context_); };
    return window;
  });
  windows_.Register(TapeWindow::kName, [this] { return std::make_unique<TapeWindow>(context_); });
  windows_.Register(ProgressBarWindow::kName,
                    [this] { return std::make_unique<ProgressBarWindow>(platform_); });
  windows_.Register(CurrencyErrorWindow::kName,
                    [this] { return std::make_unique<CurrencyErrorWindow>(platform_); });
  windows_.Register(AboutWindow::kName, [this] { return std::make_unique<AboutWindow>(context_); });
  windows_.Register(DonationRequestWindow::kName,
                    [this] { return std::make_unique<DonationRequestWindow>(context_); });
  windows_.Register(VersionUpdateErrorWindow::kName,
                    [this] { return std::make_unique<VersionUpdateErrorWindow>(platform_); });
  windows_.Register(VersionUpdateWindow::kName,
                    [this] { return std::make_unique<VersionUpdateWindow>(context_); });
  windows_.Register(VersionUpToDateWindow::kName,
                    [this] { return std::make_unique<VersionUpToDateWindow>(platform_); });
  windows_.Register(VersionUpdateDownloadWindow::kName,
                    [this] { return std::make_unique<VersionUpdateDownloadWindow>(platform_); });
  statistics::RegisterStatsWindows(context_);
  windows_.Register(PreferencesWindow::kName,
                    [this] { return std::make_unique<PreferencesWindow>(context_); });
  windows_.Register(RestoreConstantsConfirmationWindow::kName, [this] {
    return std::make_unique<RestoreConstantsConfirmationWindow>(context_);
  });
  windows_.Register(RestoreDefaultSoundsWindow::kName,
                    [this] { return std::make_unique<RestoreDefaultSoundsWindow>(context_); });
}

void Program::Start() {
  // The application object and its menu bar first, then the main window, whose
  // opening starts the session.
  app_ = std::make_unique<TessarineApp>(*this);
  GetCalcWindow();
}

CalcWindow& Program::GetCalcWindow() {
  return windows_.Instance<CalcWindow>(CalcWindow::kName);
}

CalcWindow* Program::ExistingCalcWindow() {
  return windows_.Existing<CalcWindow>(CalcWindow::kName);
}

TapeWindow& Program::GetTapeWindow() {
  return tessarine::GetTapeWindow(context_);
}

}  // namespace tessarine
