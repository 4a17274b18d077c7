// WindowDialog: a secondary window of the program on screen, built when the
// program shows it and closed when the program closes or hides it. A sheet is a
// window-modal dialog on the main window that the user cannot dismiss: the program
// decides when it goes (the progress sheet of a long loop). A window of its own
// (the tape) stands at the model's place, follows its bounds both ways and may be
// closed by the user, which closes the model's window.
#pragma once

#include <QDialog>
#include <functional>

namespace tessarine {
class Window;
}

namespace tessarine::desktop {

class WindowCanvas;

class WindowDialog final : public QDialog {
  Q_OBJECT

 public:
  // `sheet_parent` is the main window for a sheet, else nullptr.
  WindowDialog(Window& window, QWidget* sheet_parent);

  WindowCanvas& Canvas() { return *binding_; }
  bool IsSheet() const { return sheet_; }
  // The program closes the window.
  void CloseFromProgram();
  // The model's bounds changed.
  void ApplyBounds();

  // The user closed a window of its own.
  std::function<void()> on_user_close;

 protected:
  void reject() override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  Window& window_;
  WindowCanvas* binding_;
  bool sheet_;
  bool closing_ = false;
  bool applying_ = false;
};

}  // namespace tessarine::desktop
