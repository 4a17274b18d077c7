// WindowCanvas: the widgets of one model window's controls, laid on a plain widget
// (the canvas) at the controls' own coordinates, and bound both ways: every change
// of a control's property shows at once (Window::Observe), and what the user does
// to a widget goes to the control (Click, UserSetText, UserSetListIndex, the mouse).
//
// All widgets are children of the canvas, whatever the control's parent: a tab
// page or a group box is no container here. A control shows while its Visible is
// true, its parent shows, and its page of the tab panel (and of the page panel)
// is the current one. Shapes, group boxes and panels lie below everything else.
//
// A widget is made only when its control first has to show inside the visible
// part of the canvas, so that a window starts with what its first look needs (the
// simple calculator has no tab pages to build).
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "runtime/window.hpp"

class QWidget;

namespace tessarine::desktop {

class WindowCanvas final : public QObject {
  Q_OBJECT

 public:
  // The canvas outlives nothing of the model: the binding stops by itself when the
  // canvas goes.
  WindowCanvas(Window& window, QWidget& canvas);

  // The part of the canvas on screen, in window coordinates; widgets inside it are
  // made as they are needed.
  void SetViewport(const QRect& viewport);
  const QRect& Viewport() const { return viewport_; }

  // The widget of a control, or nullptr while none has been made.
  QWidget* WidgetFor(const Control& control) const;
  // Whether the control shows by the rules above (regardless of the viewport).
  bool Shows(const Control& control) const;
  std::size_t BuiltCount() const;

  // Called when the window's own bounds change, and when the tab panel changes
  // page (the main window takes the focus from any field then).
  std::function<void()> on_window_bounds;
  std::function<void()> on_page_change;

 private:
  struct Bound {
    Control* control = nullptr;
    QPointer<QWidget> widget;
  };

  void OnChanged(Control* control, Property property);
  void SyncVisibility();
  QWidget* Make(Control& control);
  // The user typed into a text widget, or moved its caret or selection.
  void UserEdited(Control& control, QWidget* widget, std::string text);
  void UserMovedCaret(Control& control, QWidget* widget);
  void ApplyAll(const Bound& bound);
  void Apply(const Bound& bound, Property property);
  void ApplyText(const Bound& bound);
  void ApplyValue(const Bound& bound);
  void ApplyRows(const Bound& bound);
  void ApplyListIndex(const Bound& bound);
  void ApplyLook(const Bound& bound);
  void Restack();
  Control* ParentOf(const Control& control) const;
  const Control* FirstOfKind(ControlKind kind) const;

  Window& window_;
  QWidget& canvas_;
  QRect viewport_;
  std::vector<Bound> bound_;  // in the window's order of controls
  std::unordered_map<const Control*, std::size_t> index_;
  const Control* tab_panel_ = nullptr;
  const Control* page_panel_ = nullptr;
  bool applying_ = false;      // a widget is being set from the model: its signals are no user's
  bool user_editing_ = false;  // the model takes the user's text: its selection waits
};

}  // namespace tessarine::desktop
