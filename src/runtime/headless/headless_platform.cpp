#include "runtime/headless/headless_platform.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "runtime/platform/keyboard_state.hpp"
#include "runtime/timer.hpp"

namespace tessarine {

HeadlessPlatform::HeadlessPlatform(std::string decimal_separator, FileSystem* files)
    : pump_sockets_([this](int max_wait_ms) { return offline_sockets_.Pump(max_wait_ms); }),
      sockets_(offline_sockets_,
               [this](const std::string& kind, const std::string& text) {
                 Log({kind, text});
               }),
      platform_{*this,
                *this,
                *this,
                *this,
                *this,
                *this,
                files ? *files : memory_files_,
                sockets_,
                std::move(decimal_separator)} {}

void HeadlessPlatform::ConnectSockets(SocketFactory& sockets, std::function<bool(int)> pump) {
  sockets_.SetInner(sockets);
  pump_sockets_ = std::move(pump);
}

bool HeadlessPlatform::Net(std::int64_t ms) {
  using Clock = std::chrono::steady_clock;
  const std::int64_t limit_us = std::max<std::int64_t>(ms, 0) * 1000;
  const Clock::time_point start = Clock::now();
  std::int64_t advanced_us = 0;
  for (;;) {
    const auto elapsed_us = [&] {
      const auto us =
          std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start).count();
      return std::min<std::int64_t>(us, limit_us);
    };
    // Short waits, so that timers keep firing close to their time.
    const std::int64_t left_ms = (limit_us - elapsed_us()) / 1000;
    const bool busy = pump_sockets_(static_cast<int>(std::min<std::int64_t>(left_ms, 10)));
    const std::int64_t now = elapsed_us();
    Advance(now - advanced_us);
    advanced_us = now;
    if (!busy || now >= limit_us) return busy;
  }
}

CivilTime HeadlessPlatform::Now() const {
  // Virtual wall clock: a fixed moment plus the virtual time elapsed, so that
  // scripts print the same dates on every run.
  CivilTime t{2026, 1, 15, 12, 0, 0};
  std::int64_t seconds = now_us_ / 1000000;
  t.second = static_cast<int>(seconds % 60);
  t.minute = static_cast<int>(seconds / 60 % 60);
  t.hour = 12 + static_cast<int>(seconds / 3600 % 12);
  return t;
}

std::string HeadlessPlatform::ShortDate(const CivilTime& t) const {
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", t.year, t.month, t.day);
  return text;
}

std::string HeadlessPlatform::ShortTime(const CivilTime& t) const {
  char text[16];
  std::snprintf(text, sizeof text, "%02d:%02d", t.hour, t.minute);
  return text;
}

bool HeadlessPlatform::Hold(const std::string& key, bool down) {
  Held held = CurrentHeld();
  if (key == "ctrl")
    ctrl_ = down;
  else if (key == "cmd")
    cmd_ = down;
  else if (key == "alt")
    held.option = down;
  else if (key == "shift")
    held.shift = down;
  else if (key == "period")
    held.period = down;
  else
    return false;
  // On Linux the Ctrl key plays the Command key's part too.
  held.control = ctrl_;
  held.command = ctrl_ || cmd_;
  SetHeld(held);
  return true;
}

void HeadlessPlatform::Arm(Timer& timer, std::int64_t period_ms) {
  timers_[&timer] = Scheduled{now_us_ + period_ms * 1000, next_sequence_++, period_ms * 1000};
}

void HeadlessPlatform::Disarm(Timer& timer) {
  timers_.erase(&timer);
}

void HeadlessPlatform::After(std::int64_t ms, std::function<void()> action) {
  actions_.emplace(now_us_ + ms * 1000, std::move(action));
}

void HeadlessPlatform::FireDue(std::int64_t until_us) {
  for (;;) {
    // A user's action due before the next timer goes first.
    if (!actions_.empty() && actions_.begin()->first <= until_us) {
      std::int64_t first_timer = INT64_MAX;
      for (const auto& entry : timers_) first_timer = std::min(first_timer, entry.second.due_us);
      if (actions_.begin()->first <= first_timer) {
        auto action = std::move(actions_.begin()->second);
        if (actions_.begin()->first > now_us_) now_us_ = actions_.begin()->first;
        actions_.erase(actions_.begin());
        action();
        continue;
      }
    }
    Timer* next = nullptr;
    Scheduled when{0, 0, 0};
    for (const auto& [timer, scheduled] : timers_) {
      if (scheduled.due_us > until_us) continue;
      if (!next || scheduled.due_us < when.due_us ||
          (scheduled.due_us == when.due_us && scheduled.sequence < when.sequence)) {
        next = timer;
        when = scheduled;
      }
    }
    if (!next) return;
    if (when.due_us > now_us_) now_us_ = when.due_us;
    // Schedule the next period before firing, so that the action may rearm or stop it.
    if (next->Mode() == Timer::kMultiple)
      timers_[next] = Scheduled{when.due_us + when.period_us, next_sequence_++, when.period_us};
    else
      timers_.erase(next);
    next->Fire();
  }
}

void HeadlessPlatform::Wait(std::int64_t ms) {
  Advance(std::max<std::int64_t>(ms, 0) * 1000);
}

void HeadlessPlatform::Advance(std::int64_t us) {
  const std::int64_t until = now_us_ + us;
  FireDue(until);
  now_us_ = until;
}

void HeadlessPlatform::Yield() {
  now_us_ += 1000;
  FireDue(now_us_);
}

void HeadlessPlatform::ShowWindow(const std::string& name, bool as_sheet) {
  PlatformEvent event{"show", name};
  event.flag = as_sheet;
  Log(std::move(event));
}

void HeadlessPlatform::ReportUnhandledException(const std::string& exception_class,
                                                const std::string& handler_name) {
  Log({"exception", exception_class, handler_name});
}

void HeadlessPlatform::Quit() {
  quit_ = true;
  Log({"quit", ""});
}

std::optional<std::string> HeadlessPlatform::NextAnswer() {
  if (answers_.empty()) return std::nullopt;
  auto answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

std::optional<std::string> HeadlessPlatform::AskSaveFile() {
  Log({"dialog", "save"});
  return NextAnswer();
}

std::optional<std::string> HeadlessPlatform::PageSetupDialog(const std::string& current) {
  Log({"dialog", "pagesetup", current});
  return NextAnswer();
}

bool HeadlessPlatform::PrintText(const PrintJob& job) {
  Log({"dialog", "print", job.page_setup});
  if (!NextAnswer()) return false;
  Log({"print", job.text,
       std::to_string(job.left) + "," + std::to_string(job.top) + "," +
           std::to_string(job.block_width) + "," + std::to_string(job.block_height)});
  return true;
}

std::vector<PlatformEvent> HeadlessPlatform::TakeEvents() {
  std::vector<PlatformEvent> taken;
  taken.swap(events_);
  return taken;
}

}  // namespace tessarine
