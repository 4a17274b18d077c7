#include "main_window_view.hpp"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPropertyAnimation>

#include "calculator/calc_window.hpp"
#include "key_events.hpp"
#include "menu_bar_view.hpp"
#include "qt_platform.hpp"
#include "shell/key_chords.hpp"
#include "shell/program.hpp"
#include "shell/tessarine_app.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop {

MainWindowView::MainWindowView(Program& program, QtPlatform& platform)
    : program_(program),
      calc_(program.GetCalcWindow()),
      platform_(platform),
      canvas_(new QWidget(this)),
      binding_(new WindowCanvas(calc_, *canvas_)),
      animation_(new QPropertyAnimation(this, "geometry", this)) {
  setObjectName(QStringLiteral("CalcWindow"));
  setWindowTitle(QStringLiteral("Tessarine"));
  setAccessibleName(QStringLiteral("Tessarine calculator"));
  canvas_->setObjectName(QStringLiteral("CalcWindowCanvas"));
  canvas_->setAccessibleName(QStringLiteral("Calculator"));
  setCentralWidget(canvas_);

  // The desktop's global menu when one runs (then the bar takes no room in the
  // window), else the bar in the window.
  menus_ = new MenuBarView(program_.App(), *menuBar());

  binding_->on_window_bounds = [this] { OnModelBounds(); };
  binding_->on_page_change = [this] { ClearKeyboardFocus(); };

  animation_->setDuration(kResizeMs);
  animation_->setEasingCurve(QEasingCurve::InOutQuad);
  connect(animation_, &QPropertyAnimation::finished, this,
          [this] { setFixedSize(ModelGeometry().size()); });

  OnModelBounds();
}

MainWindowView::~MainWindowView() = default;

QWidget* MainWindowView::WidgetFor(const std::string& name, int index) const {
  const Control* control = calc_.FindControl(name, index);
  return control ? binding_->WidgetFor(*control) : nullptr;
}

QRect MainWindowView::ModelGeometry() const {
  const int menu = menuBar()->isNativeMenuBar() ? 0 : menuBar()->sizeHint().height();
  return QRect(calc_.Left(), calc_.Top(), calc_.Width(), calc_.Height() + menu);
}

bool MainWindowView::Animating() const {
  return animation_->state() == QAbstractAnimation::Running;
}

void MainWindowView::OnModelBounds() {
  const QRect target = ModelGeometry();
  // The widgets of the new area first, so that they show as the window grows.
  binding_->SetViewport(QRect(0, 0, calc_.Width(), calc_.Height()));
  if (target == geometry() && !Animating()) {
    setFixedSize(target.size());
    return;
  }
  applying_bounds_ = true;
  if (!isVisible() || target.size() == geometry().size()) {
    animation_->stop();
    setFixedSize(target.size());
    setGeometry(target);
  } else {
    animation_->stop();
    // Free to change size while the animation runs; fixed again at its end.
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    animation_->setStartValue(geometry());
    animation_->setEndValue(target);
    animation_->start();
  }
  applying_bounds_ = false;
}

void MainWindowView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  // The user moved the window: the model's bounds follow, so that the next mode
  // switch keeps the corner where the window now is.
  if (applying_bounds_ || Animating() || !isVisible()) return;
  const QPoint place = geometry().topLeft();
  if (place.x() == calc_.Left() && place.y() == calc_.Top()) return;
  calc_.SetBounds(place.x(), place.y(), calc_.Width(), calc_.Height());
}

void MainWindowView::ClearKeyboardFocus() {
  if (QWidget* focus = focusWidget()) focus->clearFocus();
}

void MainWindowView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) ClearKeyboardFocus();
}

void MainWindowView::keyPressEvent(QKeyEvent* event) {
  // A key that a text field passed on is not the keypad's; a menu's shortcut may
  // still be.
  QWidget* focus = focusWidget();
  const bool field_has_focus =
      qobject_cast<QLineEdit*>(focus) || qobject_cast<QPlainTextEdit*>(focus);
  if (!field_has_focus) {
    if (const auto chord = ChordForKey(event->key(), event->modifiers(), event->text())) {
      if (const auto key = MapKeyForChord(chord->key, chord->modifiers)) {
        event->accept();
        calc_.KeyDown(key->text);
        return;
      }
    }
  }
  if (menus_->TryShortcut(*event)) {
    event->accept();
    return;
  }
  QMainWindow::keyPressEvent(event);
}

void MainWindowView::closeEvent(QCloseEvent* event) {
  // Closing the main window ends the session, and the program with it.
  if (calc_.IsOpen()) calc_.Close();
  event->accept();
  platform_.RequestQuit();
}

}  // namespace tessarine::desktop
