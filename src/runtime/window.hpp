// A Window owns its controls and timers, finds them by name, and is the one door
// through which events enter the logic: Dispatch runs a handler and catches any
// runtime fault that escapes it, reports the fault through the platform, and the
// program goes on.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "runtime/control.hpp"
#include "runtime/field_value.hpp"
#include "runtime/menu_bar.hpp"
#include "runtime/platform/platform.hpp"
#include "runtime/signal.hpp"
#include "runtime/timer.hpp"

namespace tessarine {

class Window {
 public:
  // The title is what the desktop shows in the window's frame; the name is how
  // the program finds it.
  Window(Platform& platform, std::string name, std::string title = "Tessarine");
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  const std::string& Name() const { return name_; }
  const std::string& Title() const { return title_; }
  Platform& GetPlatform() const { return platform_; }

  Control& AddControl(const ControlDesign& design);
  Timer& AddTimer(std::string name, int period_ms, int mode);

  // nullptr when there is no such control (index -1 for a plain control).
  Control* FindControl(std::string_view name, int index = -1) const;
  // The control of that name; NilObjectException when there is none.
  Control& Get(std::string_view name) const;
  // One item of a control array; OutOfBoundsException outside the array.
  Control& Item(std::string_view name, int index) const;
  Timer* FindTimer(std::string_view name) const;
  const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
  const std::vector<std::unique_ptr<Timer>>& Timers() const { return timers_; }

  // Opening and closing, as the user or the program does it.
  void Open();
  void Close();
  bool IsOpen() const { return open_; }
  // Whether the open window shows on screen; a window may exist hidden.
  bool Visible() const { return open_ && visible_; }
  void SetVisible(bool visible);

  int Left() const { return left_; }
  int Top() const { return top_; }
  int Width() const { return width_; }
  int Height() const { return height_; }
  void SetBounds(int left, int top, int width, int height);

  // The user moved or resized the window (a front end reports it). A window whose
  // height the user may change answers MinimumHeight with a size; -1 is a fixed size.
  virtual void UserMoved(int left, int top) { SetBounds(left, top, width_, height_); }
  virtual void UserResized(int width, int height) { SetBounds(left_, top_, width, height); }
  virtual int MinimumHeight() const { return -1; }

  // Where the pointer is, in the window's coordinates; the front end keeps it current.
  int MouseX() const { return mouse_x_; }
  int MouseY() const { return mouse_y_; }
  void SetMousePosition(int x, int y) {
    mouse_x_ = x;
    mouse_y_ = y;
  }

  // Menus, while this window is frontmost: its enabling rules, and its handler of
  // a menu command by item name (false: the window has none, the application's runs).
  virtual void Event_EnableMenuItems(MenuBar&) {}
  virtual bool HandleMenuCommand(MenuBar&, std::string_view /*name*/, int /*index*/) {
    return false;
  }

  // A field of the window's logic by name, for the driver; nothing when it has none.
  virtual std::optional<FieldValue> FieldByName(std::string_view) const { return std::nullopt; }

  // A key typed while no text field has the focus.
  bool KeyDown(const std::string& key);

  // Runs one event handler. Faults escaping the outermost handler are reported
  // and swallowed; inside a nested event they travel on to the outer handler.
  void Dispatch(std::string_view handler_name, const std::function<void()>& handler);
  // Whether one of the window's handlers is running now.
  bool Dispatching() const { return dispatch_depth_ > 0; }

  // Change notification for front ends: a control's property, or the window's
  // bounds (control == nullptr).
  using Observer = std::function<void(Control* control, Property property)>;
  // An observer for the window's whole life; Connect gives a handle to drop it sooner.
  void Observe(Observer observer) { changed_.Connect(std::move(observer)).Release(); }
  [[nodiscard]] Connection Connect(Observer observer) {
    return changed_.Connect(std::move(observer));
  }
  void NotifyChanged(Control* control, Property property);

 protected:
  virtual void Event_Open() {}
  virtual void Event_Close() {}
  virtual bool Event_KeyDown(const std::string&) { return false; }

  Platform& platform_;

 private:
  std::string name_;
  std::string title_;
  std::vector<std::unique_ptr<Control>> controls_;
  std::unordered_map<std::string, std::vector<Control*>> by_name_;  // folded name
  std::vector<std::unique_ptr<Timer>> timers_;
  Signal<Control*, Property> changed_;
  int dispatch_depth_ = 0;
  bool open_ = false;
  int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
  int mouse_x_ = 0, mouse_y_ = 0;
  bool visible_ = true;
};

}  // namespace tessarine
