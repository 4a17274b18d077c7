#include "shell/tessarine_app.hpp"

#include "calculator/calc_window.hpp"
#include "runtime/text.hpp"
#include "shell/main_menu.hpp"
#include "shell/main_window_layout.hpp"
#include "shell/program.hpp"

namespace tessarine {

TessarineApp::TessarineApp(Program& program) : program_(program) {
  BuildMainMenu(menu_bar_);
  // Items whose windows are not built yet (about, preferences, the update check)
  // have their place here and do nothing until then.
  const auto nothing_yet = [] {};
  handlers_ = {
      {"VisitOurWebSiteMenu", [this] { _VisitOurWebSiteMenu_Action(); }},
      {"AppleAbout", nothing_yet},
      {"EditPreferences", nothing_yet},
      {"SpeechSpeakButtonMenu", [this] { program_.GetCalcWindow().SpeakButtonsClicked(); }},
      {"SpeechAcceptVoiceCommandsMenu",
       [this] { program_.GetCalcWindow().VoiceRecognitionClicked(); }},
      {"SpeechSpeakTotalMenu", [this] { program_.GetCalcWindow().SpeakTotalClicked(); }},
      {"FileTapeControlMenu", nothing_yet},
      {"FileSaveTape", nothing_yet},
      {"MenuCustomize", nothing_yet},
      {"DonateMenu", nothing_yet},
      {"CheckForUpdatesMenu", nothing_yet},
      {"FilePageSetup", nothing_yet},
      {"FilePrintTape", nothing_yet},
      {"FileQuit", [this] { _FileQuit_Action(); }},
  };
}

void TessarineApp::Event_EnableMenuItems() {
  MenuBar& bar = menu_bar_;
  for (const char* name : {"AppleAbout", "VisitOurWebSiteMenu", "FilePageSetup", "FilePrintTape",
                           "FileTapeControlMenu", "EditPreferences", "DonateMenu",
                           "CheckForUpdatesMenu"})
    bar.SetEnabled(bar.Item(name), true);
  // The constants can't be chosen while clear entry is locked.
  const CalcWindow* calc = program_.ExistingCalcWindow();
  const bool constants = calc && calc->Get("ButtonClearEntry").Enabled();
  for (const Menu& menu : bar.Menus())
    for (const MenuItem& item : menu.items)
      if (StrEq(item.name, "MenuConstant")) bar.SetEnabled(bar.Item(item.name, item.index), constants);
  for (const char* name : {"MenuCustomize", "SpeechSpeakButtonMenu", "SpeechSpeakTotalMenu"})
    bar.SetEnabled(bar.Item(name), true);
  bar.SetEnabled(bar.Item("FileSaveTape"), program_.TapeChanged);
}

void TessarineApp::EnableMenuItems() {
  CalcWindow* calc = program_.ExistingCalcWindow();
  if (calc && calc->IsOpen()) {
    calc->Dispatch("Event_EnableMenuItems", [&] {
      Event_EnableMenuItems();
      calc->Event_EnableMenuItems(menu_bar_);
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
  CalcWindow* calc = program_.ExistingCalcWindow();
  bool handled = false;
  if (calc && calc->IsOpen()) {
    calc->Dispatch("_" + item_name + "_Action",
                   [&] { handled = calc->HandleMenuCommand(menu_bar_, item_name, index); });
  }
  if (handled) return true;
  for (const auto& [handler_name, handler] : handlers_) {
    if (!StrEq(handler_name, item_name)) continue;
    if (calc && calc->IsOpen())
      calc->Dispatch("_" + item_name + "_Action", handler);
    else
      handler();
  }
  return true;
}

void TessarineApp::_VisitOurWebSiteMenu_Action() {
  program_.GetPlatform().desktop.ShowURL("http://" + std::string(kMakerHostName) + "/");
}

void TessarineApp::_FileQuit_Action() {
  // Quitting closes the windows first: the main window's close ends the session.
  if (CalcWindow* calc = program_.ExistingCalcWindow(); calc && calc->IsOpen()) calc->Close();
  program_.GetPlatform().desktop.Quit();
}

}  // namespace tessarine
