// A Control is the program's model of one named widget of a window: its properties,
// the handlers of its events, and change notification for whatever front end
// draws it. The logic reads and writes controls by name; it never sees a widget.
//
// Two ways in:
//  - program code assigns properties (SetText, SetValue, SetListIndex, ...); an
//    assignment raises the events such an assignment raises in a desktop toolkit
//    (Text raises TextChange, ListIndex raises Change, a radio or check box Value
//    raises Action, a tab panel's Value raises Change);
//  - a front end reports the user's actions (Click, MouseDown, ...), which do
//    nothing on a disabled control.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class Window;

enum class ControlKind {
  Label,
  BevelButton,
  CalcBevelButton,
  PushButton,
  RadioButton,
  CheckBox,
  PopupMenu,
  Listbox,
  TextField,
  TextArea,
  NumberOnlyEditField,
  GroupBox,
  TabPanel,
  PagePanel,
  RoundRectangle,
  Rectangle,
  Separator,
  Canvas,
  ProgressBar,
};

std::string_view KindName(ControlKind kind);

// Whether Value is a pressed/checked state (true/false) rather than a number.
bool HasBooleanValue(ControlKind kind);
bool IsEditable(ControlKind kind);

// Which property changed, for change notification.
enum class Property {
  Text,
  Value,
  ListIndex,
  Rows,
  Enabled,
  Visible,
  HelpTag,
  TextColor,
  TextSize,
  Bounds,
  Maximum,
  Selection,
};

// Where and what a control is when its window is made: one row of a window's
// control table.
struct ControlDesign {
  // A control at a place, with its design text: the usual row of a window's table.
  static ControlDesign At(std::string_view name, ControlKind kind, int left, int top, int width,
                          int height, std::string_view text = "") {
    ControlDesign design;
    design.name = name;
    design.kind = kind;
    design.left = left;
    design.top = top;
    design.width = width;
    design.height = height;
    design.text = text;
    return design;
  }

  std::string name;
  int index = -1;  // position in a control array, -1 for a plain control
  ControlKind kind = ControlKind::Label;
  std::string parent;  // "" for the window itself
  int left = 0, top = 0, width = 0, height = 0;
  std::string text;
  std::vector<std::string> rows;
  int tab_page = 0;    // 1-based page of the window's tab panel, 0 for none
  int panel_page = 0;  // 1-based page of an inner page panel, 0 for none
  bool visible = true;
  std::uint32_t text_color = 0;  // 0xRRGGBB
  int value = 0;                 // design value: a radio button on, a panel's page
};

struct ControlEvents {
  std::function<void()> Action;
  std::function<void()> Change;
  std::function<void()> TextChange;
  std::function<bool(const std::string& key)> KeyDown;
  std::function<bool(int x, int y)> MouseDown;
  std::function<void(int x, int y)> MouseUp;
  std::function<void(int x, int y)> MouseMove;
  std::function<void()> MouseExit;
  // Files dropped on the control, by path; set only on controls that accept drops.
  std::function<void(const std::vector<std::string>& paths)> DropObject;
  // A list's cell under a click; returns whether the click was taken.
  std::function<bool(int row, int column, int x, int y)> CellClick;
  std::function<void()> GotFocus;
  std::function<void()> Open;
  std::function<void()> Close;
};

class Control {
 public:
  Control(Window& owner, const ControlDesign& design);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }
  ControlKind Kind() const { return kind_; }
  const std::string& Parent() const { return parent_; }
  int TabPage() const { return tab_page_; }
  int PanelPage() const { return panel_page_; }
  Window& Owner() const { return owner_; }
  // "Name" or "Name(3)".
  std::string FullName() const;

  // Text and Caption are one property: a label's text is a button's caption.
  const std::string& Text() const { return text_; }
  void SetText(std::string text);
  const std::string& Caption() const { return text_; }
  void SetCaption(std::string text) { SetText(std::move(text)); }

  // A text field's selection, in characters from 0; a length of 0 is the caret.
  // Setting SelStart empties the selection; SelText replaces the selection and
  // leaves the caret after what it put in. Text assignments keep the selection
  // within the text.
  int SelStart() const { return sel_start_; }
  int SelLength() const { return sel_length_; }
  void SetSelStart(int start);
  void SetSelLength(int length);
  std::string SelText() const;
  void SetSelText(const std::string& text);

  // A button's pressed state or a check box's check (0 or 1); a panel's page.
  int Value() const { return value_; }
  bool IsDown() const { return value_ != 0; }
  void SetValue(int value);
  void SetValue(bool value) { SetValue(value ? 1 : 0); }

  // A progress bar's full value.
  int Maximum() const { return maximum_; }
  void SetMaximum(int maximum);

  const std::vector<std::string>& Rows() const { return rows_; }
  void AddRow(std::string row);
  void SetRow(int row, std::string text);  // out of range: OutOfBoundsException
  void DeleteAllRows();
  int ListIndex() const { return list_index_; }
  void SetListIndex(int index);  // -1 to rows-1; else OutOfBoundsException

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);
  bool Visible() const { return visible_; }
  void SetVisible(bool visible);
  const std::string& HelpTag() const { return help_tag_; }
  void SetHelpTag(std::string tag);
  // 0xRRGGBB.
  std::uint32_t TextColor() const { return text_color_; }
  void SetTextColor(std::uint32_t rgb);
  int TextSize() const { return text_size_; }
  void SetTextSize(int points);

  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void SetBounds(int left, int top, int width, int height);

  // The logic's handlers. Set by the window that owns the control.
  ControlEvents events;

  // What the user does. Each runs through the window's event dispatch.
  void Click();  // a button's action, a check box's toggle, a radio's selection
  void UserSetText(std::string text);
  void UserSetListIndex(int index);
  void UserSetSelection(int start, int length);
  bool UserKeyDown(const std::string& key);
  bool UserMouseDown(int x, int y);
  void UserMouseUp(int x, int y);
  void UserMouseMove(int x, int y);
  void UserMouseExit();
  bool UserCellClick(int row, int column, int x, int y);
  void UserDropFiles(const std::vector<std::string>& paths);

 private:
  void Notify(Property property);
  void ClampSelection();
  void Raise(const std::function<void()>& handler, std::string_view event);

  Window& owner_;
  std::string name_;
  int index_;
  ControlKind kind_;
  std::string parent_;
  int tab_page_;
  int panel_page_;
  std::string text_;
  int value_;
  int maximum_ = 100;
  std::vector<std::string> rows_;
  int list_index_ = -1;
  int sel_start_ = 0, sel_length_ = 0;
  bool enabled_ = true;
  bool visible_;
  std::string help_tag_;
  std::uint32_t text_color_ = 0;
  int text_size_ = 0;  // 0: the front end's default
  int left_, top_, width_, height_;
  bool mouse_captured_ = false;  // MouseDown returned true: MouseUp will follow
};

}  // namespace tessarine
