#include "window_dialog.hpp"

#include <QCloseEvent>

#include "runtime/window.hpp"
#include "window_canvas.hpp"

namespace tessarine::desktop {

WindowDialog::WindowDialog(Window& window, QWidget* sheet_parent)
    : QDialog(sheet_parent), binding_(new WindowCanvas(window, *this)) {
  setObjectName(QString::fromStdString(window.Name()));
  setWindowTitle(QStringLiteral("Tessarine"));
  // No close button: the program closes the window when its work is done.
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  if (sheet_parent) setWindowModality(Qt::WindowModal);
  setFixedSize(window.Width(), window.Height());
  binding_->SetViewport(QRect(0, 0, window.Width(), window.Height()));
  if (sheet_parent) {
    // Where a sheet drops from: the top of the main window, centred.
    const QRect parent = sheet_parent->geometry();
    move(parent.x() + (parent.width() - window.Width()) / 2, parent.y() + 24);
  }
}

void WindowDialog::CloseFromProgram() {
  if (closing_) return;
  closing_ = true;
  hide();
  deleteLater();
}

void WindowDialog::closeEvent(QCloseEvent* event) {
  // Neither the window manager's close nor Escape: the program closes it.
  event->ignore();
}

}  // namespace tessarine::desktop
