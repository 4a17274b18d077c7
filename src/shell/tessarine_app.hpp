// TessarineApp: the application object. It builds the menu bar, keeps its items
// enabled by the rules of the moment, and routes a menu command first to the
// frontmost window's handler of that item, then to its own: the one way every
// menu command goes, from a click, a shortcut or the driver.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "runtime/menu_bar.hpp"
#include "runtime/window.hpp"

namespace tessarine {

class Program;

class TessarineApp {
 public:
  explicit TessarineApp(Program& program);

  MenuBar& GetMenuBar() { return menu_bar_; }

  // The enabling rules: the application's, then the frontmost window's. Run before
  // a menu shows and before a shortcut is tested.
  void EnableMenuItems();
  // A menu command as the user gives it: nothing when the item is disabled after
  // the enabling rules ran. Returns false for an unknown item.
  bool MenuCommand(std::string_view name, int index = -1);

 private:
  void Event_EnableMenuItems();
  void _VisitOurWebSiteMenu_Action();
  void _CheckForUpdatesMenu_Action();
  void _FileQuit_Action();
  void _FileTapeControlMenu_Action();
  void _FileSaveTape_Action();
  void _FilePageSetup_Action();
  void _FilePrintTape_Action();

  // The window whose handlers run first, dispatching through it.
  Window* Front();

  Program& program_;
  MenuBar& menu_bar_;
  // The application's handlers by item name, in their order of registration.
  std::vector<std::pair<std::string, std::function<void()>>> handlers_;
};

}  // namespace tessarine
