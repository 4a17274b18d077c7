// A menu bar: menus of named items, each with its text, shortcut literal, Enabled
// and Checked. The logic finds items by name; the desktop front end builds a real
// menu bar from this model and mirrors its changes.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "runtime/signal.hpp"

namespace tessarine {

struct MenuItem {
  std::string name;
  int index = -1;  // an item of an array of items (the constants), else -1
  std::string text;
  // The shortcut as the program states it ("Cmd+T"); see LinuxShortcut for the
  // chord a Linux desktop uses.
  std::string shortcut;
  bool enabled = false;
  bool checked = false;
  bool auto_enable = false;  // enabled by the desktop itself (Quit)
  bool IsSeparator() const { return text == "-"; }
};

struct Menu {
  std::string name;
  std::string text;
  std::vector<MenuItem> items;
};

class MenuBar {
 public:
  void AddMenu(Menu menu);
  const std::vector<Menu>& Menus() const { return menus_; }
  // nullptr when no item bears that name (and index).
  MenuItem* Find(std::string_view name, int index = -1);
  // The item of that name; NilObjectException when there is none.
  MenuItem& Item(std::string_view name, int index = -1);

  void SetEnabled(MenuItem& item, bool enabled);
  void SetChecked(MenuItem& item, bool checked);
  void SetText(MenuItem& item, std::string text);
  // Makes an array of items (the constants) count items long, at least item 0:
  // items past the count go, new ones follow the last as copies of item 0 without
  // text. One change of the tree.
  void ResizeItemArray(std::string_view name, int count);

  // Change notification for a front end: an item changed, or (nullptr) the tree.
  using Observer = std::function<void(const MenuItem* item)>;
  void Observe(Observer observer) { changed_.Connect(std::move(observer)).Release(); }

 private:
  void Notify(const MenuItem* item);
  std::vector<Menu> menus_;
  Signal<const MenuItem*> changed_;
};

}  // namespace tessarine
