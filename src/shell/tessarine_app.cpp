#include "shell/tessarine_app.hpp"

#include <cstdlib>

#include "calculator/calc_window.hpp"
#include "calculator/tape_window.hpp"
#include "runtime/text.hpp"
#include "settings/deployment.hpp"
#include "settings/preference_keys.hpp"
#include "shell/about_window.hpp"
#include "shell/donation_links.hpp"
#include "shell/main_menu.hpp"
#include "shell/preferences_window.hpp"
#include "shell/program.hpp"
#include "shell/update_windows.hpp"

namespace tessarine {

TessarineApp::TessarineApp(Program& program)
    : program_(program), menu_bar_(program.Context().menu_bar) {
  BuildMainMenu(menu_bar_);
  handlers_ = {
      {"VisitOurWebSiteMenu", [this] { _VisitOurWebSiteMenu_Action(); }},
      {"AppleAbout", [this] { ShowAboutWindow(program_.Context()); }},
      {"EditPreferences",
       [this] { ShowPreferences(program_.Context(), PreferencesWindow::kGeneral); }},
      {"SpeechSpeakButtonMenu", [this] { program_.GetCalcWindow().SpeakButtonsClicked(); }},
      {"SpeechAcceptVoiceCommandsMenu",
       [this] { program_.GetCalcWindow().VoiceRecognitionClicked(); }},
      {"SpeechSpeakTotalMenu", [this] { program_.GetCalcWindow().SpeakTotalClicked(); }},
      {"FileTapeControlMenu", [this] { _FileTapeControlMenu_Action(); }},
      {"FileSaveTape", [this] { _FileSaveTape_Action(); }},
      {"MenuCustomize",
       [this] { ShowPreferences(program_.Context(), PreferencesWindow::kConstants); }},
      {"DonateMenu", [this] { program_.GetPlatform().desktop.ShowURL(DonateMenuAddress()); }},
      {"CheckForUpdatesMenu", [this] { _CheckForUpdatesMenu_Action(); }},
      {"FilePageSetup", [this] { _FilePageSetup_Action(); }},
      {"FilePrintTape", [this] { _FilePrintTape_Action(); }},
      {"FileQuit", [this] { _FileQuit_Action(); }},
  };
}

void TessarineApp::Event_EnableMenuItems() {
  MenuBar& bar = menu_bar_;
  for (const char* name :
       {"AppleAbout", "VisitOurWebSiteMenu", "FilePageSetup", "FilePrintTape",
        "FileTapeControlMenu", "EditPreferences", "DonateMenu", "CheckForUpdatesMenu"})
    bar.SetEnabled(bar.Item(name), true);
  // The constants can't be chosen while clear entry is locked.
  const CalcWindow* calc = program_.ExistingCalcWindow();
  const bool constants = calc && calc->Get("ButtonClearEntry").Enabled();
  for (const Menu& menu : bar.Menus())
    for (const MenuItem& item : menu.items)
      if (StrEq(item.name, "MenuConstant"))
        bar.SetEnabled(bar.Item(item.name, item.index), constants);
  for (const char* name : {"MenuCustomize", "SpeechSpeakButtonMenu", "SpeechSpeakTotalMenu"})
    bar.SetEnabled(bar.Item(name), true);
  bar.SetEnabled(bar.Item("FileSaveTape"), program_.Globals().TapeChanged);
}

Window* TessarineApp::Front() {
  return program_.Windows().Front();
}

void TessarineApp::EnableMenuItems() {
  Window* front = Front();
  if (front) {
    front->Dispatch("Event_EnableMenuItems", [&] {
      Event_EnableMenuItems();
      front->Event_EnableMenuItems(menu_bar_);
    });
  } else {
    Event_EnableMenuItems();
  }
}

bool TessarineApp::MenuCommand(std::string_view name, int index) {
  MenuItem* item = menu_bar_.Find(name, index);
  if (!item) return false;
  EnableMenuItems();
  if (!item->enabled || item->IsSeparator()) return true;
  const std::string item_name = item->name;
  Window* front = Front();
  bool handled = false;
  if (front) {
    front->Dispatch("_" + item_name + "_Action",
                    [&] { handled = front->HandleMenuCommand(menu_bar_, item_name, index); });
  }
  if (handled) return true;
  for (const auto& [handler_name, handler] : handlers_) {
    if (!StrEq(handler_name, item_name)) continue;
    if (front)
      front->Dispatch("_" + item_name + "_Action", handler);
    else
      handler();
  }
  return true;
}

void TessarineApp::_VisitOurWebSiteMenu_Action() {
  program_.GetPlatform().desktop.ShowURL(MakerHomePage());
}

// Shows or hides the tape, by the item's own text.
void TessarineApp::_FileTapeControlMenu_Action() {
  MenuItem& item = menu_bar_.Item("FileTapeControlMenu");
  GlobalStuff& globals = program_.Globals();
  if (item.text != "Show Tape") {
    TapeWindow& tape = program_.GetTapeWindow();
    tape.Event_Moved();
    tape.SetVisible(false);
    WritePref(program_.Prefs(), prefs::TapeVisible, false);
    menu_bar_.SetText(item, "Show Tape");
  } else {
    program_.GetCalcWindow().ShowTape();
    WritePref(program_.Prefs(), prefs::TapeVisible, true);
    TapeWindow& tape = program_.GetTapeWindow();
    tape.SetBounds(globals.TapeWindowLeftPosition, globals.TapeWindowTopPosition, tape.Width(),
                   globals.TapeWindowHeight);
  }
}

// The tape has no file format: the dialog records the file picked, and nothing is
// written. "Save Tape..." goes off whatever the answer.
void TessarineApp::_FileSaveTape_Action() {
  if (auto file = program_.GetPlatform().desktop.AskSaveFile()) program_.Globals().Document = *file;
  program_.Globals().TapeChanged = false;
}

void TessarineApp::_FilePageSetup_Action() {
  TapeWindow& tape = program_.GetTapeWindow();
  if (auto setup = program_.GetPlatform().desktop.PageSetupDialog(tape.PageSetup))
    tape.PageSetup = *setup;
}

void TessarineApp::_FilePrintTape_Action() {
  TapeWindow& tape = program_.GetTapeWindow();
  Desktop::PrintJob job;
  job.text = tape.TapeEditField.Text();
  job.page_setup = tape.PageSetup;
  // The page's printable size: a setup's paper less half an inch, or US letter's
  // 540 by 648 without one. The block leaves a margin of 36 points around it.
  int page_width = 540, page_height = 648;
  if (!tape.PageSetup.empty()) {
    const std::string& setup = tape.PageSetup;  // "WIDTHxHEIGHT..." as the desktop writes it
    const auto x = setup.find('x');
    if (x != std::string::npos) {
      page_width = std::atoi(setup.c_str()) - 36;
      page_height = std::atoi(setup.c_str() + x + 1) - 36;
    }
  }
  job.left = 36;
  job.top = 36;
  job.block_width = page_width - 48;
  job.block_height = page_height - 48;
  program_.GetPlatform().desktop.PrintText(job);
}

void TessarineApp::_FileQuit_Action() {
  // Quitting closes the windows: the main window's close saves the session and
  // ends the program.
  if (CalcWindow* calc = program_.ExistingCalcWindow(); calc && calc->IsOpen())
    calc->Close();
  else
    program_.GetPlatform().desktop.Quit();
}

}  // namespace tessarine

namespace tessarine {

void TessarineApp::_CheckForUpdatesMenu_Action() {
  ShowUpdateSheet(program_.Context(), VersionUpdateWindow::kName);
}

}  // namespace tessarine
