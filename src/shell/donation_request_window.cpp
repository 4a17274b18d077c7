#include "shell/donation_request_window.hpp"

#include "runtime/numbers.hpp"
#include "settings/preference_keys.hpp"
#include "shell/donation_links.hpp"

namespace tessarine {

DonationRequestWindow::DonationRequestWindow(AppContext& app)
    : Window(app.platform, kName, "Untitled"), app_(app) {
  using K = ControlKind;
  // The front end paints the desktop's caution icon on the canvas named by its text.
  AddControl(ControlDesign::At("Canvas1", K::Canvas, 28, 22, 40, 40, "CautionIcon"));
  AddControl(ControlDesign::At("NumberOfLaunchesText", K::Label, 80, 33, 220, 20,
                               "You have used Tessarine 50 times."))
      .events.Open = [this] {
    Get("NumberOfLaunchesText")
        .SetText("You have used Tessarine " +
                 Str(static_cast<double>(app_.globals.NumberOfLaunches)) + " times.");
  };
  AddControl(ControlDesign::At(
      "DonationRequestText", K::Label, 15, 73, 285, 100,
      "It took hundreds of unpaid hours to create this great application. Tessarine is freeware "
      "and you may continue to use it indefinitely. However, if you find it useful please "
      "consider supporting its ongoing development by making a small donation to the author."));
  AddControl(ControlDesign::At("CloseButton", K::PushButton, 70, 176, 80, 20, "Close"))
      .events.Action = [this] { CloseButton_Action(); };
  AddControl(ControlDesign::At("DonateButton", K::PushButton, 165, 176, 80, 20, "Donate"))
      .events.Action = [this] { DonateButton_Action(); };
  AddControl(ControlDesign::At("DontShowDonationReminderCheckBox", K::CheckBox, 27, 211, 275, 20,
                               "Don't show this message again"));
  SetBounds(0, 0, 315, 245);
}

void DonationRequestWindow::Event_Open() {
  app_.platform.feedback.Beep();
}

void DonationRequestWindow::CloseButton_Action() {
  CloseSheet();
}

void DonationRequestWindow::DonateButton_Action() {
  app_.platform.desktop.ShowURL(HostedButtonAddress());
  CloseSheet();
}

// Every closing decides again: an unticked box turns the reminder back on.
void DonationRequestWindow::Event_Close() {
  WritePref(app_.prefs, prefs::ShowDonationReminder,
            !Get("DontShowDonationReminderCheckBox").IsDown());
  app_.prefs.WriteOut();
}

void DonationRequestWindow::CloseSheet() {
  Close();
  app_.platform.desktop.CloseWindow(Name());
}

void ShowDonationRequestWindow(AppContext& app) {
  const bool showing = app.windows.FindOpen(DonationRequestWindow::kName) != nullptr;
  auto& window = app.windows.Instance<DonationRequestWindow>(DonationRequestWindow::kName);
  if (!showing) app.platform.desktop.ShowWindow(window.Name(), true);
}

}  // namespace tessarine
