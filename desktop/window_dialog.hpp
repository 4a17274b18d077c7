// WindowDialog: a secondary window of the program on screen, built when the
// program shows it and closed when the program closes it. A sheet is a
// window-modal dialog on the main window; the user cannot dismiss either kind,
// since the program decides when they go (the progress sheet of a long loop).
#pragma once

#include <QDialog>

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
  // The program closes the window.
  void CloseFromProgram();

 protected:
  void reject() override {}
  void closeEvent(QCloseEvent* event) override;

 private:
  WindowCanvas* binding_;
  bool closing_ = false;
};

}  // namespace tessarine::desktop
