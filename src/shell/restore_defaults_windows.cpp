#include "shell/restore_defaults_windows.hpp"

#include "settings/constants_catalogue.hpp"
#include "shell/preferences_window.hpp"

namespace tessarine {

namespace {

PreferencesWindow& Preferences(AppContext& app) {
  return app.windows.Instance<PreferencesWindow>(PreferencesWindow::kName);
}

}  // namespace

RestoreDefaultsWindow::RestoreDefaultsWindow(AppContext& app, const char* name, const char* title,
                                             int width, const char* message_name,
                                             const char* message)
    : Window(app.platform, name, title), app_(app) {
  using K = ControlKind;
  AddControl(ControlDesign::At(message_name, K::Label, 78, 14, width - 92, 52, message));
  AddControl(ControlDesign::At("CautionIcon2", K::Canvas, 20, 14, 40, 40));
  // Both windows name their "Yes" so.
  AddControl(
      ControlDesign::At("RestoreConstantsButton", K::PushButton, width - 90, 94, 70, 20, "Yes"))
      .events.Action = [this] {
    Restore();
    Dismiss();
  };
  AddControl(
      ControlDesign::At("DontSaveChangesButton", K::PushButton, width - 170, 94, 70, 20, "Cancel"))
      .events.Action = [this] { Dismiss(); };
  SetBounds(0, 0, width, 131);
}

void RestoreDefaultsWindow::Event_Open() {
  app_.platform.feedback.Beep();
}

void RestoreDefaultsWindow::Dismiss() {
  Close();
  app_.platform.desktop.CloseWindow(Name());
}

RestoreConstantsConfirmationWindow::RestoreConstantsConfirmationWindow(AppContext& app)
    : RestoreDefaultsWindow(
          app, kName, "Restore Default Constants?", 300, "RestoreConstantsChangesMessage",
          "Are you sure you want to restore all constants to their default values?") {}

void RestoreConstantsConfirmationWindow::Restore() {
  RestoreDefaultConstants(app_.globals);
  Preferences(app_).UpdateConstantsList();
}

RestoreDefaultSoundsWindow::RestoreDefaultSoundsWindow(AppContext& app)
    : RestoreDefaultsWindow(app, kName, "Restore Default Sounds?", 350, "RestoreSoundsMessage",
                            "Are you sure you want to restore all sounds to their default "
                            "values?") {}

void RestoreDefaultSoundsWindow::Restore() {
  Preferences(app_).RestoreDefaultSounds();
}

void ShowRestoreConstantsConfirmation(AppContext& app) {
  auto& sheet = app.windows.Instance<RestoreConstantsConfirmationWindow>(
      RestoreConstantsConfirmationWindow::kName);
  app.platform.desktop.ShowWindow(sheet.Name(), true);
}

void ShowRestoreSoundsConfirmation(AppContext& app) {
  auto& sheet = app.windows.Instance<RestoreDefaultSoundsWindow>(RestoreDefaultSoundsWindow::kName);
  app.platform.desktop.ShowWindow(sheet.Name(), true);
}

}  // namespace tessarine
