#include "runtime/menu_bar.hpp"

#include <algorithm>

#include "runtime/exceptions.hpp"
#include "runtime/text.hpp"

namespace tessarine {

void MenuBar::AddMenu(Menu menu) {
  menus_.push_back(std::move(menu));
  Notify(nullptr);
}

MenuItem* MenuBar::Find(std::string_view name, int index) {
  // The program spells its names exactly, so the exact pass finds them cheaply;
  // the second pass finds a name written in another case.
  for (const bool exact : {true, false})
    for (Menu& menu : menus_)
      for (MenuItem& item : menu.items)
        if ((exact ? item.name == name : StrEq(item.name, name)) &&
            (index < 0 || item.index == index))
          return &item;
  return nullptr;
}

MenuItem& MenuBar::Item(std::string_view name, int index) {
  MenuItem* item = Find(name, index);
  if (!item) throw NilObjectException("no menu item " + std::string(name));
  return *item;
}

void MenuBar::SetEnabled(MenuItem& item, bool enabled) {
  if (item.enabled == enabled) return;
  item.enabled = enabled;
  Notify(&item);
}

void MenuBar::SetChecked(MenuItem& item, bool checked) {
  if (item.checked == checked) return;
  item.checked = checked;
  Notify(&item);
}

void MenuBar::SetText(MenuItem& item, std::string text) {
  if (item.text == text) return;
  item.text = std::move(text);
  Notify(&item);
}

void MenuBar::ResizeItemArray(std::string_view name, int count) {
  MenuItem& first = Item(name, 0);
  for (Menu& menu : menus_) {
    auto& items = menu.items;
    if (items.empty() || &first < items.data() || &first >= items.data() + items.size()) continue;
    MenuItem blank = first;
    blank.text.clear();
    std::erase_if(items, [&](const MenuItem& item) {
      return StrEq(item.name, name) && item.index >= std::max(count, 1);
    });
    auto last = std::find_if(items.rbegin(), items.rend(),
                             [&](const MenuItem& item) { return StrEq(item.name, name); });
    auto at = last.base();
    for (int index = (*last).index + 1; index < count; ++index) {
      blank.index = index;
      at = items.insert(at, blank) + 1;
    }
    break;
  }
  Notify(nullptr);
}

void MenuBar::Notify(const MenuItem* item) {
  changed_.Emit(item);
}

}  // namespace tessarine
