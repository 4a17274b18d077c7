#include "shell/main_menu.hpp"

namespace tessarine {

namespace {

MenuItem Item(const char* name, const char* text, const char* shortcut = "") {
  MenuItem item;
  item.name = name;
  item.text = text;
  item.shortcut = shortcut;
  return item;
}

}  // namespace

void BuildMainMenu(MenuBar& bar) {
  MenuItem quit = Item("FileQuit", "Quit", "Cmd+Q");
  quit.auto_enable = true;  // the one item the desktop enables by itself
  quit.enabled = true;
  bar.AddMenu({"UntitledMenu2",
               "File",
               {Item("FileSaveTape", "Save Tape..."), Item("Separator1", "-"),
                Item("FileTapeControlMenu", "Show Tape", "Cmd+T"), Item("Separator2", "-"),
                Item("FilePageSetup", "Page Setup..."), Item("FilePrintTape", "Print Tape..."),
                Item("Separator3", "-"), quit}});
  bar.AddMenu({"UntitledMenu1",
               "Edit",
               {Item("EditUndo", "Undo", "Cmd+Z"), Item("EditSeparator2", "-"),
                Item("EditCut", "Cut", "Cmd+X"), Item("EditCopy", "Copy", "Cmd+C"),
                Item("EditPaste", "Paste", "Cmd+V"), Item("EditClear", "Clear"),
                Item("EditSeparator3", "-"), Item("EditSelectAll", "Select All", "Cmd+A"),
                Item("EditSeparator1", "-"), Item("EditPreferences", "Preferences...")}});
  MenuItem first_constant = Item("MenuConstant", "");
  first_constant.index =
      0;  // the first entry of the constants; more are inserted above the separator
  bar.AddMenu({"ConstantsMenu",
               "Constants",
               {first_constant, Item("MenuConstantsSeparator", "-"),
                Item("MenuCustomize", "Customize...")}});
  bar.AddMenu({"SpeechMenu",
               "Speech",
               {Item("SpeechSpeakButtonMenu", "Speak Button"),
                Item("SpeechSpeakTotalMenu", "Speak Total")}});
  bar.AddMenu(
      {"HelpMenu",
       "Help",
       {Item("VisitOurWebSiteMenu", "Visit Our Website"), Item("DonateMenu", "Make a Donation"),
        Item("AppleAbout", "About Tessarine..."), Item("AppleMenuSeparator", "-"),
        Item("CheckForUpdatesMenu", "Check for Updates...", "Cmd+U")}});
}

std::string LinuxShortcut(std::string_view literal) {
  if (literal.empty()) return "";
  std::string chord(literal);
  if (chord.rfind("Cmd+", 0) == 0) chord = "Ctrl+" + chord.substr(4);
  if (chord == "Ctrl+U") chord = "Ctrl+Shift+U";
  return chord;
}

}  // namespace tessarine
