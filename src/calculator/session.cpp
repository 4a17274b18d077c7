// The session: what the main window restores when it opens, what its start-up
// timer does a tenth of a second later, and what it saves when it closes. Every
// key of the preferences file that the built parts use is read and written here.
#include <algorithm>
#include <string>

#include "calculator/calc_window.hpp"
#include "runtime/arithmetic.hpp"
#include "runtime/date.hpp"
#include "runtime/text.hpp"
#include "settings/constants_catalogue.hpp"
#include "settings/preference_keys.hpp"

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
  globals_.ShowHelpTags = ReadPref(prefs, prefs::ShowToolTipHelpTags);
  globals_.ShowMemoryButtons = ReadPref(prefs, prefs::ShowMemoryButtonsSetting);
  ShowAdvancedFeatures = ReadPref(prefs, prefs::StartupWithAdvancedFeatures);
  globals_.StartWithTabCalled = ReadPref(prefs, prefs::StartWithTab);
  TapeOnAtStartup = ReadPref(prefs, prefs::TapeOn);
  TapeVisibleAtStartup = ReadPref(prefs, prefs::TapeVisible);

  // 4. Position, kept on the primary screen.
  int left = ToInt(ReadPref(prefs, prefs::LeftPosition));
  int top = ToInt(ReadPref(prefs, prefs::TopPosition));
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
  globals_.NoExponentFormat = ReadPref(prefs, prefs::NoExpFormat);
  globals_.ExponentFormat = ReadPref(prefs, prefs::ExpFormat);
  globals_.SmallPositiveNumber = ReadPref(prefs, prefs::SmallPosNumber);
  globals_.SmallNegativeNumber = ReadPref(prefs, prefs::SmallNegNumber);
  globals_.NumberOfDecimals = ToInt(ReadPref(prefs, prefs::NumOfDec));

  // 8. Sounds: the switches, then the numbers.
  globals_.UseNumberSound = ReadPref(prefs, prefs::UseNumberSnd);
  globals_.UseCalculationSound = ReadPref(prefs, prefs::UseCalculationSnd);
  globals_.UseErrorSound = ReadPref(prefs, prefs::UseErrorSnd);
  globals_.UseClearSound = ReadPref(prefs, prefs::UseClearSnd);
  globals_.UseResultSound = ReadPref(prefs, prefs::UseResultSnd);
  globals_.NumberSoundNumber = ToInt(ReadPref(prefs, prefs::NumberSndNumber));
  globals_.CalculationSoundNumber = ToInt(ReadPref(prefs, prefs::CalculationSndNumber));
  globals_.ErrorSoundNumber = ToInt(ReadPref(prefs, prefs::ErrorSndNumber));
  globals_.ClearSoundNumber = ToInt(ReadPref(prefs, prefs::ClearSndNumber));
  globals_.ResultSoundNumber = ToInt(ReadPref(prefs, prefs::ResultSndNumber));

  // 9, 10. The saved display's switch, and the memory banks.
  globals_.SaveDisplay = ReadPref(prefs, prefs::SaveDisplaySetting);
  globals_.SaveMemoryBanks = ReadPref(prefs, prefs::SaveMemoryBanksSetting);
  if (globals_.SaveMemoryBanks) {
    for (int n = 1; n <= 10; ++n) {
      StorageValue(n) = ReadPref(prefs, prefs::SavedStorageValue, n);
      Item("MemoryLabel", n).SetVisible(ReadPref(prefs, prefs::MemoryBankVisible, n));
    }
  }
  for (int n = 1; n <= 10; ++n) Get("StorageMenu").SetRow(n - 1, StorageRowText(n));

  // 11. The Constants menu.
  LoadConstants(app_);

  // 12. Speech: the key holds the state before one flip.
  MenuBar& bar = app_.menu_bar;
  bar.SetChecked(bar.Item("SpeechSpeakButtonMenu"), ReadPref(prefs, prefs::SpeakButton));
  SpeakButtonsClicked();
  bar.SetChecked(bar.Item("SpeechSpeakTotalMenu"), ReadPref(prefs, prefs::SpeakTotal));
  SpeakTotalClicked();

  // 13. The currency rates.
  for (const auto& part : parts_) part->Restore(MainWindowPart::OpenStep::Rates);

  // 14. The tape's place while hidden.
  globals_.TapeWindowLeftPosition = ToInt(ReadPref(prefs, prefs::TapeLeftPosition));
  globals_.TapeWindowTopPosition = ToInt(ReadPref(prefs, prefs::TapeTopPosition));
  globals_.TapeWindowHeight = ToInt(ReadPref(prefs, prefs::TapeHeight));
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
    Display.SetText(ReadPref(prefs, prefs::SavedDisplayValue));
    ExponentText.SetText(ReadPref(prefs, prefs::SavedExpValue));
    Result = CDbl(Display.Text()) * Pow(10, Val(ExponentText.Text()));
  } else {
    Result = 0;
    StringResult.clear();
  }
  platform_.desktop.ClearFocus();
  HelpTagsEnabled(globals_.ShowHelpTags);
  UpdateDisplay();
  globals_.NumberOfLaunches = ToInt(ReadPref(prefs, prefs::NumberOfLaunchesVal));
  // The reminder comes at launches 50, 100, 150 ..., before the count moves on.
  const double fiftieths = globals_.NumberOfLaunches / 50.0;
  if (ReadPref(prefs, prefs::ShowDonationReminder) && fiftieths == Floor(fiftieths) &&
      ShowDonationReminder)
    ShowDonationReminder();
  globals_.NumberOfLaunches += 1;  // in memory only; the close saves it
  for (const auto& part : parts_) part->Started(t);
}

void CalcWindow::Event_Close() {
  PrefsModule& prefs = app_.prefs;
  WritePref(prefs, prefs::ShowToolTipHelpTags, globals_.ShowHelpTags);
  if (ShowAdvancedFeatures) {
    WritePref(prefs, prefs::StartupWithAdvancedFeatures, true);
    const int tab = Get("CalcTabSelector").Value();
    if (tab >= 0 && tab <= 4)
      WritePref(prefs, prefs::StartWithTab, "Tab" + std::to_string(tab + 1));
  } else {
    WritePref(prefs, prefs::StartupWithAdvancedFeatures, false);
  }
  WritePref(prefs, prefs::LeftPosition, Left());
  WritePref(prefs, prefs::TopPosition, Top());
  // Stored as the opposite of the check mark: the opening flips it once.
  MenuBar& bar = app_.menu_bar;
  WritePref(prefs, prefs::SpeakButton, !bar.Item("SpeechSpeakButtonMenu").checked);
  WritePref(prefs, prefs::SpeakTotal, !bar.Item("SpeechSpeakTotalMenu").checked);
  WritePref(prefs, prefs::NoExpFormat, globals_.NoExponentFormat);
  WritePref(prefs, prefs::ExpFormat, globals_.ExponentFormat);
  WritePref(prefs, prefs::SmallPosNumber, globals_.SmallPositiveNumber);
  WritePref(prefs, prefs::SmallNegNumber, globals_.SmallNegativeNumber);
  WritePref(prefs, prefs::NumOfDec, globals_.NumberOfDecimals);
  WritePref(prefs, prefs::SaveDisplaySetting, globals_.SaveDisplay);
  WritePref(prefs, prefs::SavedDisplayValue, Display.Text());
  WritePref(prefs, prefs::SavedExpValue, ExponentText.Text());
  WritePref(prefs, prefs::SaveMemoryBanksSetting, globals_.SaveMemoryBanks);
  if (globals_.SaveMemoryBanks) {
    for (int n = 1; n <= 10; ++n) {
      WritePref(prefs, prefs::SavedStorageValue, n, StorageValue(n));
      WritePref(prefs, prefs::MemoryBankVisible, n, Item("MemoryLabel", n).Visible());
    }
  }
  WritePref(prefs, prefs::NumberOfLaunchesVal, globals_.NumberOfLaunches);
  SaveTapePlace();
  WritePref(prefs, prefs::TapeLeftPosition, globals_.TapeWindowLeftPosition);
  WritePref(prefs, prefs::TapeTopPosition, globals_.TapeWindowTopPosition);
  WritePref(prefs, prefs::TapeHeight, globals_.TapeWindowHeight);
  for (const auto& part : parts_) part->Closing();
  prefs.WriteOut();
  platform_.desktop.Quit();  // closing the main window ends the program
}

}  // namespace tessarine
