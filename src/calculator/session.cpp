// The session: what the main window restores when it opens, what its start-up
// timer does a tenth of a second later, and what it saves when it closes. Every
// key of the preferences file that the built parts use is read and written here.
#include <algorithm>
#include <string>

#include "calculator/calc_window.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/date.hpp"
#include "runtime/text.hpp"

namespace tessarine {

namespace {

// Number keys that hold pixels or indexes become 32-bit integers on reading.
int ToInt(double x) {
  return static_cast<int>(std::clamp<std::int64_t>(WholePart(x), INT32_MIN, INT32_MAX));
}

}  // namespace

void CalcWindow::Event_Open() {
  // 1. The keypad's start.
  Pi = 3.141592653589793;
  DecimalCharacter = Mid(CStr(0.5), 2, 1);
  ButtonDecimal.SetCaption(DecimalCharacter);
  Result = 0;
  CR = Chr(13);
  StringResult.clear();

  // 2. The store; nothing may read it earlier.
  PrefsModule& prefs = app_.prefs;
  prefs.SetName("Tessarine4 Preferences", "PREF");

  // 3. Modes and flags.
  globals_.ShowHelpTags = prefs.GetBooleanValue("ShowToolTipHelpTags", true, true);
  globals_.ShowMemoryButtons = prefs.GetBooleanValue("ShowMemoryButtonsSetting", false, true);
  ShowAdvancedFeatures = prefs.GetBooleanValue("StartupWithAdvancedFeatures", false, true);
  globals_.StartWithTabCalled = prefs.GetStringValue("StartWithTab", "Tab1", true);
  TapeOnAtStartup = prefs.GetBooleanValue("TapeOn", false, true);
  TapeVisibleAtStartup = prefs.GetBooleanValue("TapeVisible", false, true);

  // 4. Position, kept on the primary screen.
  int left = ToInt(prefs.GetNumberValue("LeftPosition", 220, true));
  int top = ToInt(prefs.GetNumberValue("TopPosition", 100, true));
  left = std::max(left, 0);
  top = std::max(top, 0);
  left = std::min(left, platform_.desktop.ScreenWidth() - 170);
  top = std::min(top, platform_.desktop.ScreenHeight() - 100);

  // 5. Size and mode, without the animation.
  if (ShowAdvancedFeatures) {
    ShowAdvancedFeaturesButton.SetCaption("LESS");
    SetBounds(left, top, 535, 290);
    for (int tab = 1; tab <= 5; ++tab)
      if (StrEq(globals_.StartWithTabCalled, "Tab" + std::to_string(tab)))
        Get("CalcTabSelector").SetValue(tab - 1);
    ToggleTrigButtonsTimer.SetMode(Timer::kMultiple);
  } else {
    ShowAdvancedFeaturesButton.SetCaption("MORE...");
    SetBounds(left, top, 171, globals_.ShowMemoryButtons ? 272 : 249);
  }

  // 6, 7. Captions and the display's formats.
  TrigButtonNormalCaptions = true;
  globals_.NoExponentFormat = prefs.GetStringValue("NoExpFormat", "-#.########", true);
  globals_.ExponentFormat = prefs.GetStringValue("ExpFormat", "-#.########e+", true);
  globals_.SmallPositiveNumber = prefs.GetStringValue("SmallPosNumber", "0.0000001", true);
  globals_.SmallNegativeNumber = prefs.GetStringValue("SmallNegNumber", "-0.0000001", true);
  globals_.NumberOfDecimals = ToInt(prefs.GetNumberValue("NumOfDec", 6, true));

  // 8. Sounds: the switches, then the numbers.
  globals_.UseNumberSound = prefs.GetBooleanValue("UseNumberSnd", true, true);
  globals_.UseCalculationSound = prefs.GetBooleanValue("UseCalculationSnd", true, true);
  globals_.UseErrorSound = prefs.GetBooleanValue("UseErrorSnd", true, true);
  globals_.UseClearSound = prefs.GetBooleanValue("UseClearSnd", true, true);
  globals_.UseResultSound = prefs.GetBooleanValue("UseResultSnd", true, true);
  globals_.NumberSoundNumber = ToInt(prefs.GetNumberValue("NumberSndNumber", 6, true));
  globals_.CalculationSoundNumber = ToInt(prefs.GetNumberValue("CalculationSndNumber", 2, true));
  globals_.ErrorSoundNumber = ToInt(prefs.GetNumberValue("ErrorSndNumber", 1, true));
  globals_.ClearSoundNumber = ToInt(prefs.GetNumberValue("ClearSndNumber", 5, true));
  globals_.ResultSoundNumber = ToInt(prefs.GetNumberValue("ResultSndNumber", 10, true));

  // 9, 10. The saved display's switch, and the memory banks.
  globals_.SaveDisplay = prefs.GetBooleanValue("SaveDisplaySetting", false, true);
  globals_.SaveMemoryBanks = prefs.GetBooleanValue("SaveMemoryBanksSetting", false, true);
  if (globals_.SaveMemoryBanks) {
    for (int n = 1; n <= 10; ++n) {
      StorageValue(n) = prefs.GetNumberValue("SavedStorageValue" + std::to_string(n), 0, true);
      Item("MemoryLabel", n).SetVisible(
          prefs.GetBooleanValue("MemoryBankVisible" + std::to_string(n), false, true));
    }
  }
  for (int n = 1; n <= 10; ++n) Get("StorageMenu").SetRow(n - 1, StorageRowText(n));

  // 12. Speech: the key holds the state before one flip.
  MenuBar& bar = app_.menu_bar;
  bar.SetChecked(bar.Item("SpeechSpeakButtonMenu"),
                 prefs.GetBooleanValue("SpeakButton", true, true));
  SpeakButtonsClicked();
  bar.SetChecked(bar.Item("SpeechSpeakTotalMenu"), prefs.GetBooleanValue("SpeakTotal", true, true));
  SpeakTotalClicked();

  // 13. The currency rates.
  for (const auto& part : parts_) part->Restore(MainWindowPart::OpenStep::Rates);

  // 14. The tape's place while hidden.
  globals_.TapeWindowLeftPosition = ToInt(prefs.GetNumberValue("TapeLeftPosition", 10, true));
  globals_.TapeWindowTopPosition = ToInt(prefs.GetNumberValue("TapeTopPosition", 100, true));
  globals_.TapeWindowHeight = ToInt(prefs.GetNumberValue("TapeHeight", 250, true));
  if (TapeVisibleAtStartup) ShowTape();

  // 15. The conversion tab's choices.
  for (const auto& part : parts_) part->Restore(MainWindowPart::OpenStep::Choices);

  // 16, 17. The first value appears a tenth of a second later.
  StartupMessageTimer.SetPeriod(100);
  StartupMessageTimer.SetMode(Timer::kSingle);
  UseESCforClear = true;
}

void CalcWindow::StartupMessageTimer_Action() {
  const Date now(platform_.clock);
  const std::string t = now.ShortDate() + " " + now.ShortTime();
  PrefsModule& prefs = app_.prefs;
  Display.SetTextSize(15);
  if (globals_.SaveDisplay) {
    Display.SetText(prefs.GetStringValue("SavedDisplayValue", "0", true));
    ExponentText.SetText(prefs.GetStringValue("SavedExpValue", "", true));
    Result = CDbl(Display.Text()) * Pow(10, Val(ExponentText.Text()));
  } else {
    Result = 0;
    StringResult.clear();
  }
  platform_.desktop.ClearFocus();
  HelpTagsEnabled(globals_.ShowHelpTags);
  UpdateDisplay();
  globals_.NumberOfLaunches = ToInt(prefs.GetNumberValue("NumberOfLaunchesVal", 1, true));
  globals_.NumberOfLaunches += 1;  // in memory only; the close saves it
  for (const auto& part : parts_) part->Started(t);
}

void CalcWindow::Event_Close() {
  PrefsModule& prefs = app_.prefs;
  prefs.SetBooleanValue("ShowToolTipHelpTags", globals_.ShowHelpTags, true);
  if (ShowAdvancedFeatures) {
    prefs.SetBooleanValue("StartupWithAdvancedFeatures", true, true);
    const int tab = Get("CalcTabSelector").Value();
    if (tab >= 0 && tab <= 4)
      prefs.SetStringValue("StartWithTab", "Tab" + std::to_string(tab + 1), true);
  } else {
    prefs.SetBooleanValue("StartupWithAdvancedFeatures", false, true);
  }
  prefs.SetNumberValue("LeftPosition", Left(), true);
  prefs.SetNumberValue("TopPosition", Top(), true);
  // Stored as the opposite of the check mark: the opening flips it once.
  MenuBar& bar = app_.menu_bar;
  prefs.SetBooleanValue("SpeakButton", !bar.Item("SpeechSpeakButtonMenu").checked, true);
  prefs.SetBooleanValue("SpeakTotal", !bar.Item("SpeechSpeakTotalMenu").checked, true);
  prefs.SetStringValue("NoExpFormat", globals_.NoExponentFormat, true);
  prefs.SetStringValue("ExpFormat", globals_.ExponentFormat, true);
  prefs.SetStringValue("SmallPosNumber", globals_.SmallPositiveNumber, true);
  prefs.SetStringValue("SmallNegNumber", globals_.SmallNegativeNumber, true);
  prefs.SetNumberValue("NumOfDec", globals_.NumberOfDecimals, true);
  prefs.SetBooleanValue("SaveDisplaySetting", globals_.SaveDisplay, true);
  prefs.SetStringValue("SavedDisplayValue", Display.Text(), true);
  prefs.SetStringValue("SavedExpValue", ExponentText.Text(), true);
  prefs.SetBooleanValue("SaveMemoryBanksSetting", globals_.SaveMemoryBanks, true);
  if (globals_.SaveMemoryBanks) {
    for (int n = 1; n <= 10; ++n) {
      prefs.SetNumberValue("SavedStorageValue" + std::to_string(n), StorageValue(n), true);
      prefs.SetBooleanValue("MemoryBankVisible" + std::to_string(n),
                            Item("MemoryLabel", n).Visible(), true);
    }
  }
  prefs.SetNumberValue("NumberOfLaunchesVal", globals_.NumberOfLaunches, true);
  SaveTapePlace();
  prefs.SetNumberValue("TapeLeftPosition", globals_.TapeWindowLeftPosition, true);
  prefs.SetNumberValue("TapeTopPosition", globals_.TapeWindowTopPosition, true);
  prefs.SetNumberValue("TapeHeight", globals_.TapeWindowHeight, true);
  for (const auto& part : parts_) part->Closing();
  prefs.WriteOut();
  platform_.desktop.Quit();  // closing the main window ends the program
}

}  // namespace tessarine
