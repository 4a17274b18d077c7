// The platform of the headless driver and the tests: virtual time, an in-memory
// clipboard and keyboard, and a log of everything the program asked of its desktop
// (speech, sounds, beeps, message boxes, windows, URLs, faults).
//
// Time only moves when asked: Wait advances it and fires due timers in order, and
// Yield (a long loop letting the event loop run) advances it by one millisecond.
// Sockets come from a factory the owner connects (the driver: real sockets), or
// from a machine without a network; Net runs their events in real time.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "runtime/headless/memory_file_system.hpp"
#include "runtime/headless/recording_sockets.hpp"
#include "runtime/platform/platform.hpp"

namespace tessarine {

// One thing the program did to its platform.
struct PlatformEvent {
  PlatformEvent(std::string kind_, std::string text_ = "", std::string detail_ = "")
      : kind(std::move(kind_)), text(std::move(text_)), detail(std::move(detail_)) {}
  std::string kind;    // "speak", "sound", "beep", "msgbox", "show", "close", "url",
                       // "exception", "quit"; of sockets "connect", "connected", "sent",
                       // "received", "socketerror"
  std::string text;    // what was spoken, played, shown, opened; the exception class
  std::string detail;  // the handler of an exception
  bool flag = false;   // "show": as a sheet
};

class HeadlessPlatform final : private Clock,
                               private KeyboardState,
                               private TimerHost,
                               private Clipboard,
                               private Feedback,
                               private Desktop {
 public:
  // Files live in memory unless a real file system is given (the driver's
  // --prefs-dir), so that tests never touch the user's own settings.
  explicit HeadlessPlatform(std::string decimal_separator = ".", FileSystem* files = nullptr);
  HeadlessPlatform(const HeadlessPlatform&) = delete;
  HeadlessPlatform& operator=(const HeadlessPlatform&) = delete;

  Platform& platform() { return platform_; }

  // Advances virtual time by ms milliseconds, firing due timers in order.
  void Wait(std::int64_t ms);
  // The sockets of the program from now on, and the loop that delivers their
  // events (waiting at most its argument in milliseconds, telling whether any
  // socket is still busy). Their activity goes to the event log.
  void ConnectSockets(SocketFactory& sockets, std::function<bool(int max_wait_ms)> pump);
  // Lets up to ms milliseconds of real time pass while socket events are delivered,
  // virtual time advancing alike (timers fire); returns early once no socket is
  // busy, and tells whether one still is.
  bool Net(std::int64_t ms);
  // Lets the clock run inside a handler: every read of the clock advances virtual
  // time by this many microseconds (0, the default, stops it). Timers still fire
  // only at a yield or a wait.
  void SetClockRate(std::int64_t microseconds_per_read) { clock_rate_us_ = microseconds_per_read; }
  std::int64_t NowMicroseconds() const { return now_us_; }
  // Runs `action` once virtual time has advanced by ms from now, at a wait or a
  // yield: a user acting while the program is busy.
  void After(std::int64_t ms, std::function<void()> action);

  // Keys held from now on, by name: "ctrl", "alt", "shift", "cmd", "period".
  // Returns false for an unknown name.
  bool Hold(const std::string& key, bool down);

  void SetClipboard(std::optional<std::string> text) { clipboard_ = std::move(text); }
  const std::optional<std::string>& ClipboardText() const { return clipboard_; }

  // What happened since the last call, then forgotten.
  std::vector<PlatformEvent> TakeEvents();
  bool QuitRequested() const { return quit_; }
  // The user's answer to the next dialog: a text (a file picked, a page setup,
  // "print"), or nothing for Cancel. Unanswered dialogs are cancelled.
  void QueueAnswer(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }
  void SetScreenSize(int width, int height) {
    screen_width_ = width;
    screen_height_ = height;
  }

 private:
  // Clock
  std::int64_t Ticks() const override { return Read() * 60 / 1000000; }
  std::int64_t Microseconds() const override { return Read(); }
  std::int64_t Read() const { return now_us_ += clock_rate_us_; }
  CivilTime Now() const override;
  std::string ShortDate(const CivilTime& t) const override;
  std::string ShortTime(const CivilTime& t) const override;
  // TimerHost
  void Arm(Timer& timer, std::int64_t period_ms) override;
  void Disarm(Timer& timer) override;
  // Clipboard
  std::optional<std::string> Text() const override { return clipboard_; }
  void SetText(const std::string& text) override { clipboard_ = text; }
  // Feedback
  void Speak(const std::string& text) override { Log({"speak", text}); }
  void PlaySound(const std::string& name) override { Log({"sound", name}); }
  void Beep() override { Log({"beep", ""}); }
  // Desktop
  void MsgBox(const std::string& text) override { Log({"msgbox", text}); }
  void ShowWindow(const std::string& name, bool as_sheet) override;
  void CloseWindow(const std::string& name) override { Log({"close", name}); }
  void ShowURL(const std::string& url) override { Log({"url", url}); }
  void Yield() override;
  void ReportUnhandledException(const std::string& exception_class,
                                const std::string& handler_name) override;
  void Quit() override;
  int ScreenWidth() const override { return screen_width_; }
  int ScreenHeight() const override { return screen_height_; }
  // No control takes the focus headless: nothing to clear.
  void ClearFocus() override {}
  std::optional<std::string> AskSaveFile() override;
  std::optional<std::string> PageSetupDialog(const std::string& current) override;
  bool PrintText(const PrintJob& job) override;
  std::optional<std::string> NextAnswer();

  void Log(PlatformEvent event) { events_.push_back(std::move(event)); }
  // Fires every timer due at or before `until_us`, in order of due time.
  void FireDue(std::int64_t until_us);
  void Advance(std::int64_t us);

  struct Scheduled {
    std::int64_t due_us;
    std::uint64_t sequence;  // arming order breaks ties
    std::int64_t period_us;
  };
  MemoryFileSystem memory_files_;
  OfflineSocketFactory offline_sockets_;
  std::function<bool(int)> pump_sockets_;
  RecordingSocketFactory sockets_;
  Platform platform_;
  mutable std::int64_t now_us_ = 0;
  std::int64_t clock_rate_us_ = 0;
  std::uint64_t next_sequence_ = 0;
  std::map<Timer*, Scheduled> timers_;
  std::multimap<std::int64_t, std::function<void()>> actions_;  // by due time
  bool ctrl_ = false, cmd_ = false;
  std::optional<std::string> clipboard_;
  std::vector<PlatformEvent> events_;
  bool quit_ = false;
  int screen_width_ = 1440, screen_height_ = 900;
  std::deque<std::optional<std::string>> answers_;
};

}  // namespace tessarine
