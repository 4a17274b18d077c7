#include "shell/preferences_sounds.hpp"

#include <string>

#include "settings/preference_keys.hpp"
#include "shell/preferences_window.hpp"
#include "shell/restore_defaults_windows.hpp"

namespace tessarine {

namespace {

// One class of sound: its controls' prefix, its switch and number, their keys, and
// the number "Defaults" gives it.
struct SoundClass {
  const char* prefix;
  const char* caption;
  bool GlobalStuff::*use;
  int GlobalStuff::*number;
  const PrefKey<PrefType::Boolean>& use_key;
  const PrefKey<PrefType::Number>& number_key;
};

const SoundClass kClasses[] = {
    {"Number", "Number:", &GlobalStuff::UseNumberSound, &GlobalStuff::NumberSoundNumber,
     prefs::UseNumberSnd, prefs::NumberSndNumber},
    {"Calculation", "Calculation:", &GlobalStuff::UseCalculationSound,
     &GlobalStuff::CalculationSoundNumber, prefs::UseCalculationSnd, prefs::CalculationSndNumber},
    {"Error", "Error:", &GlobalStuff::UseErrorSound, &GlobalStuff::ErrorSoundNumber,
     prefs::UseErrorSnd, prefs::ErrorSndNumber},
    {"Clear", "Clear:", &GlobalStuff::UseClearSound, &GlobalStuff::ClearSoundNumber,
     prefs::UseClearSnd, prefs::ClearSndNumber},
    {"Result", "Result:", &GlobalStuff::UseResultSound, &GlobalStuff::ResultSoundNumber,
     prefs::UseResultSnd, prefs::ResultSndNumber},
};

const std::vector<std::string> kSoundRows = {"Basso",   "Boop",     "Click",  "Click-Clack",
                                             "Kachick", "Keyboard", "Pop",    "Thump",
                                             "Tick",    "Type",     "Typetty"};

std::string PopUp(const SoundClass& c) {
  return std::string(c.prefix) + "SoundPopUp";
}
std::string CheckBox(const SoundClass& c) {
  return std::string(c.prefix) + "SoundCheckBox";
}

}  // namespace

void MakeSoundControls(PreferencesWindow& window, AppContext& app) {
  const auto add = [&window](const std::string& name, ControlKind kind, int left, int top,
                             int width, int height, const std::string& text,
                             const std::string& parent) -> Control& {
    ControlDesign design = ControlDesign::At(name, kind, left, top, width, height, text);
    design.parent = parent;
    design.panel_page = PreferencesWindow::kSound + 1;
    return window.AddControl(design);
  };
  int top = 80;
  for (int i = 0; i < 5; ++i) {
    const SoundClass& c = kClasses[i];
    const std::string group = std::string(c.prefix) + "SoundGroupBox";
    add(group, ControlKind::GroupBox, 15, top, 260, 55, c.caption, "PreferencesPagePanel");
    ControlDesign popup_design =
        ControlDesign::At(PopUp(c), ControlKind::PopupMenu, 25, top + 22, 140, 22);
    popup_design.parent = group;
    popup_design.panel_page = PreferencesWindow::kSound + 1;
    popup_design.rows = kSoundRows;
    Control& popup = window.AddControl(popup_design);
    popup.events.Open = [&app, &popup, &c] {
      popup.SetEnabled(app.globals.*c.use);
      popup.SetListIndex(static_cast<int>(ReadPref(app.prefs, c.number_key)));
    };
    popup.events.Change = [&window, i] { window.SoundPopUp_Change(i); };
    Control& box = add(CheckBox(c), ControlKind::CheckBox, 180, top + 23, 85, 20, "Enabled", group);
    box.events.Open = [&app, &box, &c] { box.SetValue(app.globals.*c.use); };
    box.events.Action = [&window, i] { window.SoundCheckBox_Action(i); };
    top += 62;
  }
  add("RestoreSoundDefaults", ControlKind::PushButton, 195, 392, 80, 20, "Defaults",
      "PreferencesPagePanel")
      .events.Action = [&window] { window.RestoreSoundDefaults_Action(); };
}

void StoreSounds(PreferencesWindow& window, AppContext& app) {
  for (const SoundClass& c : kClasses)
    WritePref(app.prefs, c.number_key, window.Get(PopUp(c)).ListIndex());
  for (const SoundClass& c : kClasses) WritePref(app.prefs, c.use_key, app.globals.*c.use);
}

// The first change of each pop-up is the one its opening makes, and stays silent.
void PreferencesWindow::SoundPopUp_Change(int sound_class) {
  const SoundClass& c = kClasses[sound_class];
  const int index = Get(PopUp(c)).ListIndex();
  app_.globals.*c.number = index;
  const char* sound = ChooseSoundFromNumber(index);
  if (!SoundPopUpAlreadyOpened[sound_class]) {
    SoundPopUpAlreadyOpened[sound_class] = true;
    return;
  }
  if (sound) app_.platform.feedback.PlaySound(sound);
}

void PreferencesWindow::SoundCheckBox_Action(int sound_class) {
  const SoundClass& c = kClasses[sound_class];
  const bool on = Get(CheckBox(c)).IsDown();
  Get(PopUp(c)).SetEnabled(on);
  app_.globals.*c.use = on;
}

void PreferencesWindow::RestoreSoundDefaults_Action() {
  ShowRestoreSoundsConfirmation(app_);
}

void PreferencesWindow::RestoreDefaultSounds() {
  SoundPopUpAlreadyOpened = {};
  for (const SoundClass& c : kClasses) {
    const int number = static_cast<int>(c.number_key.fallback);
    app_.globals.*c.number = number;
    Get(PopUp(c)).SetListIndex(number);
  }
  for (const SoundClass& c : kClasses) Get(CheckBox(c)).SetValue(true);
}

}  // namespace tessarine
