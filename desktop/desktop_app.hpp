// DesktopApp: the calculator on the desktop. It owns the Qt platform, the program
// built on it and the views of the program's windows, and is the platform's host
// of windows. main makes one after the QApplication; so does every GUI test.
#pragma once

#include <QPointer>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "qt_platform.hpp"
#include "shell/program.hpp"

class QApplication;

namespace tessarine::desktop {

class MainWindowView;
class WindowDialog;

// The application-wide look: the Fusion style with its own light palette, or the
// desktop's palette when that is dark, and the names the desktop shows.
void ConfigureApplication(QApplication& app);

class DesktopApp final : public WindowHost {
 public:
  // An empty preferences folder is the user's own (tests give one of their own).
  explicit DesktopApp(std::uint64_t random_seed, const std::string& preferences_folder = "");
  ~DesktopApp() override;
  DesktopApp(const DesktopApp&) = delete;
  DesktopApp& operator=(const DesktopApp&) = delete;

  // Starts the program (its main window opens) and shows the main window.
  void Start();

  QtPlatform& GetPlatform() { return platform_; }
  Program& GetProgram() { return program_; }
  MainWindowView* MainView() { return main_view_.get(); }
  // The view of a secondary window while it is shown, else nullptr.
  WindowDialog* DialogFor(const std::string& window_name) const;

  // WindowHost
  void ShowWindow(const std::string& window_name, bool as_sheet) override;
  void CloseWindow(const std::string& window_name) override;
  QWidget* DialogParent() override;
  void ClearFocus() override;
  void SetFocus(const Control& control) override;
  void CloseAllWindows() override;
  QObject* KeyTarget() override;

 private:
  // A window of the program was made: it shows on its own when its Visible turns
  // true (the tape), and hides when it turns false.
  void OnWindowMade(Window& window);
  void ShowOwnWindow(Window& window);
  // A dialog for the window, kept by name; a window of its own closes through the
  // program when the user closes it.
  WindowDialog* MakeDialog(Window& window, bool as_sheet);
  bool MainWindowOnScreen() const;
  // Shows the waiting sheets once the main window is on screen.
  void WatchForMainWindow();

  QtPlatform platform_;
  Program program_;
  std::unique_ptr<MainWindowView> main_view_;
  std::map<std::string, QPointer<WindowDialog>> dialogs_;
  std::set<std::string> sheets_waiting_;
  bool watching_ = false;
};

}  // namespace tessarine::desktop
