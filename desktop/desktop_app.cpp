#include "desktop_app.hpp"

#include <QApplication>
#include <QEvent>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <set>

#include "app_palette.hpp"
#include "calculator/calc_window.hpp"
#include "control_look.hpp"
#include "main_window_view.hpp"
#include "window_canvas.hpp"
#include "window_dialog.hpp"

namespace tessarine::desktop {

namespace {
constexpr int kFeedbackPreloadMs = 300;

// Runs `on_exposed` once, soon after the watched window is first on screen.
class FirstExpose final : public QObject {
 public:
  FirstExpose(QWindow* window, std::function<void()> on_exposed)
      : QObject(window), on_exposed_(std::move(on_exposed)) {
    window->installEventFilter(this);
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Expose && static_cast<QWindow*>(watched)->isExposed()) {
      watched->removeEventFilter(this);
      QTimer::singleShot(0, parent(), std::move(on_exposed_));
      deleteLater();
    }
    return false;
  }

 private:
  std::function<void()> on_exposed_;
};
}  // namespace

void ConfigureApplication(QApplication& app) {
  QApplication::setApplicationName(QStringLiteral("Tessarine"));
  QApplication::setApplicationDisplayName(QStringLiteral("Tessarine"));
  // The launcher's name, so that the desktop shows the launcher's icon.
  QApplication::setDesktopFileName(QStringLiteral("io.github.tessarine.Tessarine"));
  const QPalette system = QApplication::palette();
  if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) {
    QApplication::setStyle(fusion);
    UseSystemPalette(system);
  }
  // The program's sans face for everything, the system font's size: one face to
  // load instead of two, and the layout's metrics wherever the window looks.
  QFont font = QApplication::font();
  font.setFamilies({QString::fromLatin1(kSansFamily)});
  QApplication::setFont(font);
  app.setQuitOnLastWindowClosed(true);
}

DesktopApp::DesktopApp(std::uint64_t random_seed, const std::string& preferences_folder)
    : platform_(preferences_folder), program_(platform_.platform(), random_seed) {
  platform_.SetWindowHost(this);
  program_.Windows().WindowMade.Connect([this](Window& window) { OnWindowMade(window); }).Release();
}

void DesktopApp::OnWindowMade(Window& window) {
  // The main window has its own view; a window made anew replaces the old one's.
  if (&window == program_.ExistingCalcWindow()) return;
  CloseWindow(window.Name());
  Window* made = &window;
  window.Observe([this, made](Control* control, Property property) {
    if (control || property != Property::Visible) return;
    if (made->Visible())
      ShowOwnWindow(*made);
    else
      CloseWindow(made->Name());
  });
}

void DesktopApp::ShowOwnWindow(Window& window) {
  if (DialogFor(window.Name())) return;
  MakeDialog(window, false)->show();
}

WindowDialog* DesktopApp::MakeDialog(Window& window, bool as_sheet) {
  auto* dialog = new WindowDialog(window, as_sheet ? main_view_.get() : nullptr);
  dialogs_[window.Name()] = dialog;
  // Closed by its frame or by Escape: the window's own close runs, as from the menu.
  Window* shown = &window;
  if (!as_sheet)
    dialog->on_user_close = [this, shown] {
      dialogs_.erase(shown->Name());
      if (shown->IsOpen()) shown->Close();
    };
  return dialog;
}

DesktopApp::~DesktopApp() {
  for (auto& [name, dialog] : dialogs_)
    if (dialog && !dialog->IsSheet()) delete dialog.data();
  main_view_.reset();
  platform_.SetWindowHost(nullptr);
}

void DesktopApp::Start() {
  program_.Start();
  main_view_ = std::make_unique<MainWindowView>(program_, platform_);
  // The window in front gets the menu commands first (Copy on the tape, for one).
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, main_view_.get(),
                   [this](QWindow* focus) {
                     if (!focus) return;
                     WindowRegistry& windows = program_.Windows();
                     if (focus == main_view_->windowHandle())
                       windows.SetFront(program_.ExistingCalcWindow());
                     for (const auto& [name, dialog] : dialogs_)
                       if (dialog && focus == dialog->windowHandle())
                         windows.SetFront(windows.FindOpen(name));
                   });
  main_view_->show();
  WatchForMainWindow();
  // The sounds load once the window is up: start-up does not wait for them, and the
  // first key's click does not either.
  QTimer::singleShot(kFeedbackPreloadMs, main_view_.get(), [this] { platform_.PreloadFeedback(); });
}

WindowDialog* DesktopApp::DialogFor(const std::string& window_name) const {
  const auto it = dialogs_.find(window_name);
  return it == dialogs_.end() ? nullptr : it->second.data();
}

bool DesktopApp::MainWindowOnScreen() const {
  return main_view_ && main_view_->windowHandle() && main_view_->windowHandle()->isExposed();
}

void DesktopApp::WatchForMainWindow() {
  if (watching_ || sheets_waiting_.empty() || !main_view_ || !main_view_->windowHandle()) return;
  watching_ = true;
  new FirstExpose(main_view_->windowHandle(), [this] {
    watching_ = false;
    const std::set<std::string> waiting = std::move(sheets_waiting_);
    sheets_waiting_.clear();
    for (const std::string& name : waiting) ShowWindow(name, true);
  });
}

void DesktopApp::ShowWindow(const std::string& window_name, bool as_sheet) {
  Window* window = program_.FindOpenWindow(window_name);
  if (!window) return;
  // A sheet belongs on its window: one asked for before the main window is on
  // screen (a failed network request at start) waits for it, and the main window
  // goes up first instead of after the sheet is built.
  if (as_sheet && !MainWindowOnScreen()) {
    sheets_waiting_.insert(window_name);
    WatchForMainWindow();
    return;
  }
  if (WindowDialog* shown = DialogFor(window_name)) shown->CloseFromProgram();
  WindowDialog* dialog = MakeDialog(*window, as_sheet);
  dialog->show();
  // The sheet takes the keyboard: the main window is blocked while it shows, and
  // the abort chord of the loop under it must reach the program.
  if (as_sheet) dialog->activateWindow();
}

void DesktopApp::CloseWindow(const std::string& window_name) {
  sheets_waiting_.erase(window_name);
  if (WindowDialog* dialog = DialogFor(window_name)) {
    const bool sheet = dialog->IsSheet();
    dialog->CloseFromProgram();
    // The keys are the main window's again, with or without a window manager.
    if (sheet && main_view_) main_view_->activateWindow();
  }
  dialogs_.erase(window_name);
}

QWidget* DesktopApp::DialogParent() {
  return main_view_.get();
}

QObject* DesktopApp::KeyTarget() {
  if (!main_view_) return nullptr;
  if (QWindow* window = main_view_->windowHandle()) return window;
  return main_view_.get();
}

void DesktopApp::ClearFocus() {
  if (main_view_) main_view_->ClearKeyboardFocus();
}

void DesktopApp::SetFocus(const Control& control) {
  QWidget* widget = nullptr;
  if (control.Owner().Name() == CalcWindow::kName) {
    if (main_view_) widget = main_view_->Canvas().WidgetFor(control);
  } else if (WindowDialog* dialog = DialogFor(control.Owner().Name())) {
    widget = dialog->Canvas().WidgetFor(control);
  }
  if (widget) widget->setFocus(Qt::OtherFocusReason);
}

void DesktopApp::CloseAllWindows() {
  for (auto& [name, dialog] : dialogs_)
    if (dialog) dialog->CloseFromProgram();
  dialogs_.clear();
  sheets_waiting_.clear();
  if (main_view_) main_view_->close();
}

}  // namespace tessarine::desktop
