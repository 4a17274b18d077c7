#include "window_dialog.hpp"

#include <QCloseEvent>

#include "runtime/window.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop {

WindowDialog::WindowDialog(Window& window, QWidget* sheet_parent)
    : QDialog(sheet_parent),
      window_(window),
      binding_(new WindowCanvas(window, *this)),
      sheet_(sheet_parent != nullptr) {
  setObjectName(QString::fromStdString(window.Name()));
  setWindowTitle(QString::fromStdString(window.Title()));
  if (sheet_) {
    // A sheet's own title is never seen ("Untitled" as often as not): the frame the
    // window manager draws names the window the sheet belongs to.
    setWindowTitle(sheet_parent->window()->windowTitle());
    // No close button: the program closes the sheet when its work is done.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setWindowModality(Qt::WindowModal);
    // Where a sheet drops from: the top of the main window, centred.
    const QRect parent = sheet_parent->geometry();
    move(parent.x() + (parent.width() - window.Width()) / 2, parent.y() + 24);
  } else {
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    // Shown beside the main window, which keeps the keyboard.
    setAttribute(Qt::WA_ShowWithoutActivating);
  }
  binding_->on_window_bounds = [this] { ApplyBounds(); };
  ApplyBounds();
}

void WindowDialog::ApplyBounds() {
  applying_ = true;
  if (window_.MinimumHeight() >= 0) {
    // The width stays; the user may change the height from the window's minimum up.
    setFixedWidth(window_.Width());
    setMinimumHeight(window_.MinimumHeight());
    setMaximumHeight(QWIDGETSIZE_MAX);
    resize(window_.Width(), window_.Height());
  } else {
    setFixedSize(window_.Width(), window_.Height());
  }
  binding_->SetViewport(QRect(0, 0, window_.Width(), window_.Height()));
  if (!sheet_) move(window_.Left(), window_.Top());
  applying_ = false;
}

void WindowDialog::CloseFromProgram() {
  if (closing_) return;
  closing_ = true;
  hide();
  deleteLater();
}

void WindowDialog::reject() {
  // Escape closes a window of its own, as its close button does; never a sheet.
  if (!sheet_) close();
}

void WindowDialog::closeEvent(QCloseEvent* event) {
  if (sheet_ || closing_) {
    event->ignore();
    return;
  }
  closing_ = true;
  event->accept();
  deleteLater();
  if (on_user_close) on_user_close();
}

void WindowDialog::moveEvent(QMoveEvent* event) {
  QDialog::moveEvent(event);
  if (sheet_ || applying_ || !isVisible()) return;
  const QPoint place = geometry().topLeft();
  if (place.x() != window_.Left() || place.y() != window_.Top())
    window_.Dispatch("Event_Moved", [&] { window_.UserMoved(place.x(), place.y()); });
}

void WindowDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (sheet_ || applying_ || !isVisible() || window_.MinimumHeight() < 0) return;
  if (height() != window_.Height())
    window_.Dispatch("Event_Resized", [&] { window_.UserResized(width(), height()); });
}

}  // namespace tessarine::desktop
