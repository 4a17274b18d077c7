#include "qt_platform.hpp"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QDesktopServices>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLibrary>
#include <QLocale>
#include <QMessageBox>
#include <QMimeData>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include "audio_server_probe.hpp"
#include "feedback_module.hpp"
#include "install_paths.hpp"
#include "runtime/timer.hpp"
#include "tape_printer.hpp"

namespace tessarine::desktop {

namespace {

std::string DecimalSeparator() {
  const QString point = QLocale::system().decimalPoint();
  return point.isEmpty() ? std::string(".") : point.toStdString();
}

QDateTime ToDateTime(const CivilTime& t) {
  return QDateTime(QDate(t.year, t.month, t.day), QTime(t.hour, t.minute, t.second));
}

bool IsDeferredInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
      return true;
    default:
      return false;
  }
}

// Whether an event's receiver is still there to take it.
bool Shown(const QObject* receiver) {
  if (!receiver) return false;
  if (const auto* window = qobject_cast<const QWindow*>(receiver)) return window->isVisible();
  if (const auto* widget = qobject_cast<const QWidget*>(receiver)) return widget->isVisible();
  return true;
}

// Calls of Yield closer together than this come from a loop that only waits
// (Push): such a call sleeps a little instead of spinning.
constexpr std::int64_t kWaitingLoopNs = 2'000;

}  // namespace

QtPlatform::QtPlatform(const std::string& preferences_folder)
    : files_(preferences_folder), platform_{*this,  *this,    *this,
                                            *this,  *this,    *this,
                                            files_, sockets_, DecimalSeparator()} {
  elapsed_.start();
  qApp->installEventFilter(this);
  flush_timer_ = new QTimer(this);
  flush_timer_->setSingleShot(true);
  flush_timer_->setInterval(0);
  connect(flush_timer_, &QTimer::timeout, this, &QtPlatform::FlushDeferredInput);
  // The input held back during a loop's yields is delivered once the program is
  // back in its event loop: when the loop is about to wait, or at its next turn.
  if (auto* dispatcher = QAbstractEventDispatcher::instance())
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this,
            &QtPlatform::FlushDeferredInput);
}

QtPlatform::~QtPlatform() {
  if (qApp) qApp->removeEventFilter(this);
}

// --- Clock ------------------------------------------------------------------

std::int64_t QtPlatform::Ticks() const {
  return elapsed_.nsecsElapsed() * 60 / 1'000'000'000;
}

std::int64_t QtPlatform::Microseconds() const {
  return elapsed_.nsecsElapsed() / 1000;
}

CivilTime QtPlatform::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate d = now.date();
  const QTime t = now.time();
  return CivilTime{d.year(), d.month(), d.day(), t.hour(), t.minute(), t.second()};
}

std::string QtPlatform::ShortDate(const CivilTime& t) const {
  return QLocale::system().toString(ToDateTime(t).date(), QLocale::ShortFormat).toStdString();
}

std::string QtPlatform::ShortTime(const CivilTime& t) const {
  return QLocale::system().toString(ToDateTime(t).time(), QLocale::ShortFormat).toStdString();
}

// --- Timers -----------------------------------------------------------------

void QtPlatform::Arm(Timer& timer, std::int64_t period_ms) {
  QTimer*& qt = timers_[&timer];
  if (!qt) {
    qt = new QTimer(this);
    Timer* model = &timer;
    connect(qt, &QTimer::timeout, this, [model] { model->Fire(); });
  }
  // Short periods (the start-up message, the flashing keys) are kept to the
  // millisecond; a coarse timer may be 5 % late.
  qt->setTimerType(period_ms <= 1000 ? Qt::PreciseTimer : Qt::CoarseTimer);
  qt->start(static_cast<int>(std::min<std::int64_t>(period_ms, INT32_MAX)));
}

void QtPlatform::Disarm(Timer& timer) {
  const auto it = timers_.find(&timer);
  if (it == timers_.end()) return;
  // A single-shot timer disarms itself from inside its own timeout.
  it->second->stop();
  it->second->deleteLater();
  timers_.erase(it);
}

// --- Clipboard and feedback -------------------------------------------------

std::optional<std::string> QtPlatform::Text() const {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (!data || !data->hasText()) return std::nullopt;
  return data->text().toStdString();
}

void QtPlatform::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

void QtPlatform::Beep() {
  QApplication::beep();
}

FeedbackModule* QtPlatform::Feedback() {
  if (!feedback_tried_) {
    feedback_tried_ = true;
    QLibrary module(FeedbackModulePath());
    const auto create =
        reinterpret_cast<CreateFeedbackModuleFunction>(module.resolve(kCreateFeedbackModule));
    const QByteArray sounds = SoundsFolder().toUtf8();
    if (create) feedback_.reset(create(sounds.constData()));  // the library stays loaded
  }
  return feedback_.get();  // nullptr: no module, and the program goes on silently
}

void QtPlatform::Speak(const std::string& text) {
  if (FeedbackModule* feedback = Feedback()) feedback->Speak(text);
}

void QtPlatform::PlaySound(const std::string& name) {
  if (FeedbackModule* feedback = Feedback()) feedback->PlaySound(name);
}

// With no sound server to play them, the sounds and the audio library would only
// take memory: the module then loads with the first sound or word instead.
void QtPlatform::PreloadFeedback() {
  if (!SoundServerReachable()) return;
  if (FeedbackModule* feedback = Feedback()) feedback->Preload();
}

std::optional<std::string> QtPlatform::AskSaveFile() {
  QFileDialog dialog(host_ ? host_->DialogParent() : nullptr, QStringLiteral("Save Tape"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilter(QStringLiteral("Text files (*.txt)"));
  dialog.setDefaultSuffix(QStringLiteral("txt"));
  if (RunModal(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
    return std::nullopt;
  return dialog.selectedFiles().first().toStdString();
}

std::optional<std::string> QtPlatform::PageSetupDialog(const std::string& current) {
  QPrinter printer;
  ApplyPageSetup(current, printer);
  QPageSetupDialog dialog(&printer, host_ ? host_->DialogParent() : nullptr);
  if (RunModal(dialog) != QDialog::Accepted) return std::nullopt;
  return PageSetupText(printer);
}

bool QtPlatform::PrintText(const PrintJob& job) {
  QPrinter printer;
  ApplyPageSetup(job.page_setup, printer);
  QPrintDialog dialog(&printer, host_ ? host_->DialogParent() : nullptr);
  dialog.setWindowTitle(QStringLiteral("Print Tape"));
  if (RunModal(dialog) != QDialog::Accepted) return false;
  PrintTapeText(job, printer);
  return true;
}

// --- Desktop ----------------------------------------------------------------

int QtPlatform::RunModal(QDialog& dialog) {
  ++modal_depth_;
  const int result = dialog.exec();
  --modal_depth_;
  return result;
}

void QtPlatform::MsgBox(const std::string& text) {
  QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Tessarine"), QString::fromStdString(text),
                  QMessageBox::Ok, host_ ? host_->DialogParent() : nullptr);
  RunModal(box);
}

void QtPlatform::ShowWindow(const std::string& window_name, bool as_sheet) {
  if (host_) host_->ShowWindow(window_name, as_sheet);
}

void QtPlatform::CloseWindow(const std::string& window_name) {
  if (host_) host_->CloseWindow(window_name);
}

void QtPlatform::ShowURL(const std::string& url) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

void QtPlatform::ReportUnhandledException(const std::string& exception_class,
                                          const std::string& handler_name) {
  QMessageBox box(QMessageBox::Critical, QStringLiteral("Tessarine"),
                  QStringLiteral("An exception of class %1 was not handled.")
                      .arg(QString::fromStdString(exception_class)),
                  QMessageBox::Ok, host_ ? host_->DialogParent() : nullptr);
  box.setInformativeText(QStringLiteral("It escaped from %1. The program goes on.")
                             .arg(QString::fromStdString(handler_name)));
  RunModal(box);
}

int QtPlatform::ScreenWidth() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->geometry().width() : 0;
}

int QtPlatform::ScreenHeight() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen ? screen->geometry().height() : 0;
}

void QtPlatform::ClearFocus() {
  if (host_) host_->ClearFocus();
}

void QtPlatform::SetFocus(const Control& control) {
  if (host_) host_->SetFocus(control);
}

void QtPlatform::RequestQuit() {
  if (quit_requested_) return;
  quit_requested_ = true;
  // After the current event: the handler that asked runs to its end first.
  QTimer::singleShot(0, this, [this] {
    if (host_) host_->CloseAllWindows();
    QCoreApplication::exit(0);
  });
}

// --- Yields and the deferred input ------------------------------------------

void QtPlatform::Yield() {
  const std::int64_t now = elapsed_.nsecsElapsed();
  const std::int64_t since_call = now - last_yield_call_ns_;
  last_yield_call_ns_ = now;
  if (now - last_pump_ns_ < std::int64_t{kPumpIntervalMs} * 1'000'000) {
    if (since_call < kWaitingLoopNs) QThread::usleep(500);
    return;
  }
  ++yield_depth_;
  // Keys released during the previous pump count as down until the loop has
  // polled once: a quick tap of the abort chord is not lost.
  if (pending_release_) {
    held_ &= ~pending_release_;
    pending_release_ = 0;
    PublishHeld();
  }
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  --yield_depth_;
  ++pumps_;
  if (!deferred_.empty() && !flush_timer_->isActive()) flush_timer_->start();
  last_pump_ns_ = elapsed_.nsecsElapsed();
  last_yield_call_ns_ = last_pump_ns_;
}

void QtPlatform::FlushDeferredInput() {
  if (deferred_.empty()) return;
  if (yield_depth_ > 0 || modal_depth_ > 0) {
    // Still inside a loop (or a message box of one): try again at the next turn.
    flush_timer_->start();
    return;
  }
  // The events replay the presses and releases they recorded; what was pending
  // from the yields is superseded.
  pending_release_ = 0;
  std::vector<Deferred> events;
  events.swap(deferred_);
  for (Deferred& entry : events) {
    QObject* receiver = entry.receiver;
    const QEvent::Type type = entry.event->type();
    if ((type == QEvent::KeyPress || type == QEvent::KeyRelease) && !Shown(receiver) && host_)
      receiver = host_->KeyTarget();
    if (receiver) QCoreApplication::postEvent(receiver, entry.event.release());
  }
}

bool QtPlatform::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::KeyPress || type == QEvent::KeyRelease)
    RecordKey(*static_cast<QKeyEvent*>(event), Intercepting());
  if (IsDeferredInput(type) && Intercepting()) {
    deferred_.push_back({QPointer<QObject>(watched), std::unique_ptr<QEvent>(event->clone())});
    return true;
  }
  if (type == QEvent::ApplicationDeactivate) {
    // Releases go to another program now: forget what was held.
    held_ = 0;
    pending_release_ = 0;
    PublishHeld();
  }
  return false;
}

void QtPlatform::RecordKey(const QKeyEvent& event, bool deferred) {
  const bool press = event.type() == QEvent::KeyPress;
  unsigned key = 0;
  switch (event.key()) {
    case Qt::Key_Control:
      key = kCtrl;
      break;
    case Qt::Key_Alt:
      key = kAlt;
      break;
    case Qt::Key_Shift:
      key = kShift;
      break;
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
      key = kMeta;
      break;
    case Qt::Key_Period:
      // The period of the main keyboard, as the abort chord asks; not the keypad's.
      if (!(event.modifiers() & Qt::KeypadModifier)) key = kPeriod;
      break;
    default:
      break;
  }
  if (press) {
    held_ |= key;
    pending_release_ &= ~key;
    if (key == 0 || key == kPeriod) {
      // Another key: its modifiers say what is held, whatever was missed.
      const Qt::KeyboardModifiers mods = event.modifiers();
      const unsigned from_mods =
          (mods & Qt::ControlModifier ? kCtrl : 0u) | (mods & Qt::AltModifier ? kAlt : 0u) |
          (mods & Qt::ShiftModifier ? kShift : 0u) | (mods & Qt::MetaModifier ? kMeta : 0u);
      held_ = (held_ & kPeriod) | from_mods;
    }
  } else if (deferred) {
    pending_release_ |= key;
  } else {
    held_ &= ~key;
  }
  PublishHeld();
}

void QtPlatform::PublishHeld() {
  Held held;
  held.control = held_ & kCtrl;
  // On Linux the Ctrl key plays the Command key's part too (docs/keyboard.md).
  held.command = held_ & (kCtrl | kMeta);
  held.option = held_ & kAlt;
  held.shift = held_ & kShift;
  held.period = held_ & kPeriod;
  SetHeld(held);
}

}  // namespace tessarine::desktop
