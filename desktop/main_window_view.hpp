// MainWindowView: the calculator's main window on screen. A menu bar from the
// program's model, then the canvas with a widget per control of CalcWindow
// (WindowCanvas). The window's place and size are the model's bounds: the canvas
// is Width x Height, the menu bar sits above it, and a change of size (the mode
// switch) is animated while the model's corner stays put. The user moves the
// window but cannot resize it.
//
// Keys that reach the window (no text field holds the focus) go through the
// core's chord translation into CalcWindow::KeyDown; a chord the keypad does not
// take may be a menu shortcut.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <string>

class QPropertyAnimation;

namespace tessarine {
class CalcWindow;
class Program;
}  // namespace tessarine

namespace tessarine::desktop {

class MenuBarView;
class QtPlatform;
class WindowCanvas;

class MainWindowView final : public QMainWindow {
  Q_OBJECT

 public:
  // How long the mode switch takes to resize the window.
  static constexpr int kResizeMs = 220;

  MainWindowView(Program& program, QtPlatform& platform);
  ~MainWindowView() override;

  CalcWindow& Model() { return calc_; }
  WindowCanvas& Canvas() { return *binding_; }
  QWidget* CanvasWidget() const { return canvas_; }
  MenuBarView& Menus() { return *menus_; }
  // The widget of a control of the main window, or nullptr while none is made.
  QWidget* WidgetFor(const std::string& name, int index = -1) const;

  // The window's geometry as the model's bounds call for it (the menu bar above
  // the canvas).
  QRect ModelGeometry() const;
  bool Animating() const;
  // No control keeps the keyboard: keys go on reaching the keypad.
  void ClearKeyboardFocus();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void OnModelBounds();

  Program& program_;
  CalcWindow& calc_;
  QtPlatform& platform_;
  QWidget* canvas_;
  WindowCanvas* binding_;
  MenuBarView* menus_;
  QPropertyAnimation* animation_;
  bool applying_bounds_ = false;
};

}  // namespace tessarine::desktop
