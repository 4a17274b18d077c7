// The widget's mouse and keys, forwarded to its control's events.
#pragma once

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>

#include "runtime/control.hpp"
#include "runtime/window.hpp"

namespace tessarine::desktop {

// Mouse events of a widget, forwarded to its control's MouseDown, MouseUp,
// MouseMove and MouseExit. The widget still gets them.
class MouseForwarder final : public QObject {
 public:
  MouseForwarder(Control& control, QObject* parent) : QObject(parent), control_(control) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    switch (event->type()) {
      case QEvent::MouseButtonPress: {
        const QPoint p = static_cast<QMouseEvent*>(event)->position().toPoint();
        Track(p);
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
          control_.UserMouseDown(p.x(), p.y());
        break;
      }
      case QEvent::MouseButtonRelease: {
        const QPoint p = static_cast<QMouseEvent*>(event)->position().toPoint();
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
          control_.UserMouseUp(p.x(), p.y());
        break;
      }
      case QEvent::MouseMove: {
        const QPoint p = static_cast<QMouseEvent*>(event)->position().toPoint();
        Track(p);
        control_.UserMouseMove(p.x(), p.y());
        break;
      }
      case QEvent::Leave:
        control_.UserMouseExit();
        break;
      default:
        break;
    }
    return false;
  }

 private:
  // The window's pointer position, which the logic reads (the memory list opens
  // at the pointer).
  void Track(const QPoint& p) {
    control_.Owner().SetMousePosition(control_.Left() + p.x(), control_.Top() + p.y());
  }

  Control& control_;
};

// Keys typed into a text field go to its control's KeyDown first, which may swallow
// them; a key with no text (an arrow, a modifier) is no character and passes.
class KeyForwarder final : public QObject {
 public:
  KeyForwarder(Control& control, QObject* parent) : QObject(parent), control_(control) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const QString text = static_cast<QKeyEvent*>(event)->text();
    return !text.isEmpty() && control_.UserKeyDown(text.toStdString());
  }

 private:
  Control& control_;
};

}  // namespace tessarine::desktop
