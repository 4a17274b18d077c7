// QtPlatform: the platform interfaces on Qt. Clock, timers, clipboard, beep,
// message boxes, the browser and the keyboard state come from Qt directly; the
// windows on screen are reached through a WindowHost, which the application
// (DesktopApp) provides.
//
// Yields of long loops. A long loop calls Yield every few thousand rounds and Push
// calls it in a tight loop, so a Yield that is not due costs one read of a
// monotonic clock. Every kPumpIntervalMs it processes the pending events (redraws,
// timers). User input that arrives meanwhile (keys, mouse buttons, the wheel) is
// not delivered: the key state is recorded from it, so that the abort chord
// (Ctrl + period) is seen by the loop's next poll, and the events themselves are
// posted again once the program is back in its event loop. The period of the
// chord thus reaches the keyboard map after the loop that it ended.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runtime/platform/platform.hpp"
#include "runtime/posix/posix_file_system.hpp"
#include "socket_pump.hpp"

class QDialog;
class QEvent;
class QKeyEvent;
class QTimer;

namespace tessarine::desktop {
class FeedbackModule;
}  // namespace tessarine::desktop
class QWidget;

namespace tessarine::desktop {

// The windows on screen, as the platform needs them.
class WindowHost {
 public:
  virtual ~WindowHost() = default;
  // Builds (or closes) the view of the program's open window of that name.
  virtual void ShowWindow(const std::string& window_name, bool as_sheet) = 0;
  virtual void CloseWindow(const std::string& window_name) = 0;
  // The window that message boxes belong to (nullptr: none yet).
  virtual QWidget* DialogParent() = 0;
  virtual void ClearFocus() = 0;
  virtual void SetFocus(const Control& control) = 0;
  // Closes every window of the program, the main window last.
  virtual void CloseAllWindows() = 0;
  // Where keys go that were typed into a window that has gone since (the progress
  // sheet of the loop they ended): the main window.
  virtual QObject* KeyTarget() = 0;
};

class QtPlatform final : public QObject,
                         private Clock,
                         private KeyboardState,
                         private TimerHost,
                         private Clipboard,
                         private Feedback,
                         private Desktop {
  Q_OBJECT

 public:
  // How often a yield lets the event loop run, at most: well under the 50 ms that
  // keep a window drawn.
  static constexpr int kPumpIntervalMs = 16;

  // Needs the QApplication. Reads the user's decimal separator from the system
  // locale and starts the clock. An empty preferences folder is the user's own.
  explicit QtPlatform(const std::string& preferences_folder = "");
  ~QtPlatform() override;
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  // Loads the feedback module and its sounds before the first key needs them.
  void PreloadFeedback();

  Platform& platform() { return platform_; }
  void SetWindowHost(WindowHost* host) { host_ = host; }

  // Ends the program: closes its windows and leaves the event loop, after the
  // current event. Desktop::Quit lands here.
  void RequestQuit();
  bool QuitRequested() const { return quit_requested_; }

  // For tests and the documentation of the deferral: whether a yield is running,
  // and how many input events wait to be posted again.
  bool InYield() const { return yield_depth_ > 0; }
  std::size_t DeferredInputCount() const { return deferred_.size(); }
  // The number of yields that let the event loop run.
  std::int64_t Pumps() const { return pumps_; }
  // Posts the deferred input again now, if no yield is running (the event loop
  // does it by itself when it is about to wait).
  void FlushDeferredInput();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Clock
  std::int64_t Ticks() const override;
  std::int64_t Microseconds() const override;
  CivilTime Now() const override;
  std::string ShortDate(const CivilTime& t) const override;
  std::string ShortTime(const CivilTime& t) const override;
  // TimerHost
  void Arm(Timer& timer, std::int64_t period_ms) override;
  void Disarm(Timer& timer) override;
  // Clipboard
  std::optional<std::string> Text() const override;
  void SetText(const std::string& text) override;
  // Feedback: speech and sounds, from the feedback module loaded at their first use.
  void Speak(const std::string& text) override;
  void PlaySound(const std::string& name) override;
  void Beep() override;
  // Desktop
  void MsgBox(const std::string& text) override;
  void ShowWindow(const std::string& window_name, bool as_sheet) override;
  void CloseWindow(const std::string& window_name) override;
  void ShowURL(const std::string& url) override;
  void Yield() override;
  void ReportUnhandledException(const std::string& exception_class,
                                const std::string& handler_name) override;
  void Quit() override { RequestQuit(); }
  int ScreenWidth() const override;
  int ScreenHeight() const override;
  void ClearFocus() override;
  void SetFocus(const Control& control) override;
  std::optional<std::string> AskSaveFile() override;
  std::optional<std::string> PageSetupDialog(const std::string& current) override;
  bool PrintText(const PrintJob& job) override;

  // The keys the keyboard state follows, as bits.
  enum HeldKey : unsigned { kCtrl = 1, kAlt = 2, kShift = 4, kMeta = 8, kPeriod = 16 };
  void RecordKey(const QKeyEvent& event, bool deferred);
  void PublishHeld();
  bool Intercepting() const { return yield_depth_ > 0 && modal_depth_ == 0; }
  // Runs a modal dialog: input reaches it even inside a yield.
  int RunModal(QDialog& dialog);

  FeedbackModule* Feedback();
  std::unique_ptr<FeedbackModule> feedback_;
  bool feedback_tried_ = false;  // one attempt: a module that is missing stays missing
  PosixFileSystem files_;
  SocketPump sockets_;
  Platform platform_;
  WindowHost* host_ = nullptr;
  QElapsedTimer elapsed_;
  std::map<Timer*, QTimer*> timers_;

  unsigned held_ = 0;
  unsigned pending_release_ = 0;  // released during a yield, cleared at the next pump
  int yield_depth_ = 0;
  int modal_depth_ = 0;
  std::int64_t last_pump_ns_ = -1'000'000'000;
  std::int64_t last_yield_call_ns_ = 0;
  std::int64_t pumps_ = 0;
  struct Deferred {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };
  std::vector<Deferred> deferred_;
  // Fires once the program is back in an event loop outside any yield.
  QTimer* flush_timer_;
  bool quit_requested_ = false;
};

}  // namespace tessarine::desktop
