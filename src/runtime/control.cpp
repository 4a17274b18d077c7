#include "runtime/control.hpp"

#include <algorithm>
#include <utility>

#include "runtime/exceptions.hpp"
#include "runtime/text.hpp"
#include "runtime/window.hpp"

namespace tessarine {

std::string_view KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::Label:
      return "Label";
    case ControlKind::BevelButton:
      return "BevelButton";
    case ControlKind::CalcBevelButton:
      return "CalcBevelButton";
    case ControlKind::PushButton:
      return "PushButton";
    case ControlKind::RadioButton:
      return "RadioButton";
    case ControlKind::CheckBox:
      return "CheckBox";
    case ControlKind::PopupMenu:
      return "PopupMenu";
    case ControlKind::Listbox:
      return "Listbox";
    case ControlKind::TextField:
      return "TextField";
    case ControlKind::TextArea:
      return "TextArea";
    case ControlKind::NumberOnlyEditField:
      return "NumberOnlyEditField";
    case ControlKind::GroupBox:
      return "GroupBox";
    case ControlKind::TabPanel:
      return "TabPanel";
    case ControlKind::PagePanel:
      return "PagePanel";
    case ControlKind::RoundRectangle:
      return "RoundRectangle";
    case ControlKind::Rectangle:
      return "Rectangle";
    case ControlKind::Separator:
      return "Separator";
    case ControlKind::Canvas:
      return "Canvas";
    case ControlKind::ProgressBar:
      return "ProgressBar";
  }
  return "Control";
}

bool HasBooleanValue(ControlKind kind) {
  switch (kind) {
    case ControlKind::BevelButton:
    case ControlKind::CalcBevelButton:
    case ControlKind::PushButton:
    case ControlKind::RadioButton:
    case ControlKind::CheckBox:
      return true;
    default:
      return false;
  }
}

bool IsEditable(ControlKind kind) {
  return kind == ControlKind::TextField || kind == ControlKind::TextArea ||
         kind == ControlKind::NumberOnlyEditField;
}

Control::Control(Window& owner, const ControlDesign& design)
    : owner_(owner),
      name_(design.name),
      index_(design.index),
      kind_(design.kind),
      parent_(design.parent),
      tab_page_(design.tab_page),
      panel_page_(design.panel_page),
      text_(design.text),
      value_(design.value),
      rows_(design.rows),
      visible_(design.visible),
      text_color_(design.text_color),
      left_(design.left),
      top_(design.top),
      width_(design.width),
      height_(design.height) {}

std::string Control::FullName() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Notify(Property property) {
  owner_.NotifyChanged(this, property);
}

void Control::Raise(const std::function<void()>& handler, std::string_view event) {
  if (!handler) return;
  owner_.Dispatch(name_ + "_" + std::string(event), handler);
}

void Control::SetText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  ClampSelection();
  Notify(Property::Text);
  Raise(events.TextChange, "TextChange");
}

void Control::ClampSelection() {
  const int length = Len(text_);
  const int start = std::clamp(sel_start_, 0, length);
  const int selected = std::clamp(sel_length_, 0, length - start);
  if (start == sel_start_ && selected == sel_length_) return;
  sel_start_ = start;
  sel_length_ = selected;
  Notify(Property::Selection);
}

void Control::SetSelStart(int start) {
  sel_start_ = std::clamp(start, 0, Len(text_));
  sel_length_ = 0;
  Notify(Property::Selection);
}

void Control::SetSelLength(int length) {
  sel_length_ = std::clamp(length, 0, Len(text_) - sel_start_);
  Notify(Property::Selection);
}

std::string Control::SelText() const {
  return Mid(text_, sel_start_ + 1, sel_length_);
}

void Control::SetSelText(const std::string& text) {
  std::string replaced =
      tessarine::Left(text_, sel_start_) + text + Mid(text_, sel_start_ + sel_length_ + 1);
  sel_start_ += Len(text);
  sel_length_ = 0;
  if (replaced == text_) {
    Notify(Property::Selection);
    return;
  }
  text_ = std::move(replaced);
  Notify(Property::Text);
  Notify(Property::Selection);
  Raise(events.TextChange, "TextChange");
}

void Control::UserSetSelection(int start, int length) {
  sel_start_ = std::clamp(start, 0, Len(text_));
  sel_length_ = std::clamp(length, 0, Len(text_) - sel_start_);
}

void Control::SetValue(int value) {
  if (HasBooleanValue(kind_)) value = value != 0;
  const bool changed = value != value_;
  value_ = value;
  if (changed) Notify(Property::Value);
  switch (kind_) {
    case ControlKind::RadioButton:
      if (value_ && changed) {
        // Selecting one radio button clears the others of its group: the radio
        // buttons of one parent, on one page of it, as a desktop toolkit groups them.
        for (const auto& other : owner_.Controls()) {
          if (other.get() != this && other->kind_ == ControlKind::RadioButton &&
              other->parent_ == parent_ && other->tab_page_ == tab_page_ &&
              other->panel_page_ == panel_page_ && other->value_) {
            other->value_ = 0;
            other->Notify(Property::Value);
          }
        }
        Raise(events.Action, "Action");
      }
      break;
    case ControlKind::CheckBox:
      if (changed) Raise(events.Action, "Action");
      break;
    case ControlKind::TabPanel:
    case ControlKind::PagePanel:
      if (changed) Raise(events.Change, "Change");
      break;
    default:
      break;
  }
}

void Control::SetMaximum(int maximum) {
  if (maximum == maximum_) return;
  maximum_ = maximum;
  Notify(Property::Maximum);
}

void Control::AddRow(std::string row) {
  rows_.push_back(std::move(row));
  Notify(Property::Rows);
}

void Control::SetRow(int row, std::string text) {
  if (row < 0 || row >= static_cast<int>(rows_.size()))
    throw OutOfBoundsException("row " + std::to_string(row) + " of " + FullName());
  rows_[static_cast<std::size_t>(row)] = std::move(text);
  Notify(Property::Rows);
}

void Control::DeleteAllRows() {
  rows_.clear();
  Notify(Property::Rows);
  if (list_index_ != -1) {
    list_index_ = -1;
    Notify(Property::ListIndex);
    Raise(events.Change, "Change");
  }
}

void Control::SetListIndex(int index) {
  if (index < -1 || index >= static_cast<int>(rows_.size()))
    throw OutOfBoundsException("ListIndex " + std::to_string(index) + " of " + FullName());
  if (index == list_index_) return;
  list_index_ = index;
  Notify(Property::ListIndex);
  Raise(events.Change, "Change");
}

void Control::SetEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  Notify(Property::Enabled);
}

void Control::SetVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  Notify(Property::Visible);
}

void Control::SetHelpTag(std::string tag) {
  if (tag == help_tag_) return;
  help_tag_ = std::move(tag);
  Notify(Property::HelpTag);
}

void Control::SetTextColor(std::uint32_t rgb) {
  rgb &= 0xFFFFFFu;
  if (rgb == text_color_) return;
  text_color_ = rgb;
  Notify(Property::TextColor);
}

void Control::SetTextSize(int points) {
  if (points == text_size_) return;
  text_size_ = points;
  Notify(Property::TextSize);
}

void Control::SetBounds(int left, int top, int width, int height) {
  if (left == left_ && top == top_ && width == width_ && height == height_) return;
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  Notify(Property::Bounds);
}

void Control::Click() {
  if (!enabled_) return;
  owner_.Dispatch(name_ + "_Action", [this] {
    switch (kind_) {
      case ControlKind::CheckBox:
        SetValue(!value_);
        break;
      case ControlKind::RadioButton:
        SetValue(true);
        break;
      default:
        if (events.Action) events.Action();
        break;
    }
  });
}

void Control::UserSetText(std::string text) {
  if (!enabled_) return;
  owner_.Dispatch(name_ + "_TextChange", [&] { SetText(std::move(text)); });
}

void Control::UserSetListIndex(int index) {
  if (!enabled_) return;
  owner_.Dispatch(name_ + "_Change", [&] { SetListIndex(index); });
}

bool Control::UserKeyDown(const std::string& key) {
  if (!enabled_ || !events.KeyDown) return false;
  bool handled = false;
  owner_.Dispatch(name_ + "_KeyDown", [&] { handled = events.KeyDown(key); });
  return handled;
}

bool Control::UserMouseDown(int x, int y) {
  mouse_captured_ = false;
  if (!enabled_ || !events.MouseDown) return false;
  owner_.Dispatch(name_ + "_MouseDown", [&] { mouse_captured_ = events.MouseDown(x, y); });
  return mouse_captured_;
}

void Control::UserMouseUp(int x, int y) {
  if (!mouse_captured_) return;  // only a MouseDown that returned true gets its MouseUp
  mouse_captured_ = false;
  Raise(
      [&] {
        if (events.MouseUp) events.MouseUp(x, y);
      },
      "MouseUp");
}

void Control::UserMouseMove(int x, int y) {
  if (!events.MouseMove) return;
  Raise([&] { events.MouseMove(x, y); }, "MouseMove");
}

void Control::UserMouseExit() {
  Raise(events.MouseExit, "MouseExit");
}

void Control::UserDropFiles(const std::vector<std::string>& paths) {
  if (!enabled_ || !events.DropObject) return;
  owner_.Dispatch(name_ + "_DropObject", [&] { events.DropObject(paths); });
}

bool Control::UserCellClick(int row, int column, int x, int y) {
  if (!enabled_ || !events.CellClick) return false;
  bool taken = false;
  owner_.Dispatch(name_ + "_CellClick", [&] { taken = events.CellClick(row, column, x, y); });
  return taken;
}

}  // namespace tessarine
