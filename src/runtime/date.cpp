#include "runtime/date.hpp"

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace tessarine {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::int64_t kSecondsPerDay = 86400;

std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  const std::int64_t q = a / b;
  return (a % b != 0 && (a < 0) != (b < 0)) ? q - 1 : q;
}

// Day numbers (days since 1970-01-01) of the first and last days the calendar
// types can hold; a date carried beyond them stops there.
constexpr std::int64_t kFirstDay =
    sys_days{std::chrono::year::min() / 1 / 1}.time_since_epoch().count();
constexpr std::int64_t kLastDay =
    sys_days{std::chrono::year::max() / 12 / 31}.time_since_epoch().count();
constexpr std::int64_t kEpochDay =
    sys_days{std::chrono::year{1904} / 1 / 1}.time_since_epoch().count();

std::int64_t DayNumber(const CivilTime& t) {
  // Month first: month 13 is January of the next year, month 0 December before.
  const std::int64_t months = std::int64_t{t.month} - 1;
  const std::int64_t carry = FloorDiv(months, 12);
  const std::int64_t month = months - carry * 12 + 1;
  const std::int64_t year = std::clamp<std::int64_t>(
      std::int64_t{t.year} + carry, int{std::chrono::year::min()}, int{std::chrono::year::max()});
  const sys_days first{std::chrono::year{static_cast<int>(year)} /
                       std::chrono::month{static_cast<unsigned>(month)} / 1};
  // Day 1 is the first of the month, day 0 the last of the month before.
  return first.time_since_epoch().count() + std::int64_t{t.day} - 1;
}

CivilTime FromDayAndSecond(std::int64_t day, std::int64_t second_of_day) {
  day = std::clamp(day, kFirstDay, kLastDay);
  const year_month_day ymd{sys_days{days{day}}};
  CivilTime t;
  t.year = int{ymd.year()};
  t.month = static_cast<int>(unsigned{ymd.month()});
  t.day = static_cast<int>(unsigned{ymd.day()});
  t.hour = static_cast<int>(second_of_day / 3600);
  t.minute = static_cast<int>(second_of_day / 60 % 60);
  t.second = static_cast<int>(second_of_day % 60);
  return t;
}

}  // namespace

Date::Date(const Clock& clock) : clock_(&clock), t_(clock.Now()) {
  Normalize();
}

void Date::Normalize() {
  // Seconds carry into minutes, minutes into hours, hours into days.
  const std::int64_t seconds =
      std::int64_t{t_.hour} * 3600 + std::int64_t{t_.minute} * 60 + std::int64_t{t_.second};
  const std::int64_t day = DayNumber(t_) + FloorDiv(seconds, kSecondsPerDay);
  t_ = FromDayAndSecond(day, seconds - FloorDiv(seconds, kSecondsPerDay) * kSecondsPerDay);
}

std::int64_t Date::TotalSeconds() const {
  const std::int64_t day = DayNumber(t_) - kEpochDay;
  return day * kSecondsPerDay + std::int64_t{t_.hour} * 3600 + std::int64_t{t_.minute} * 60 +
         t_.second;
}

void Date::SetTotalSeconds(std::int64_t seconds) {
  const std::int64_t day = FloorDiv(seconds, kSecondsPerDay);
  std::int64_t second_of_day = seconds % kSecondsPerDay;
  if (second_of_day < 0) second_of_day += kSecondsPerDay;
  t_ = FromDayAndSecond(std::clamp(day, kFirstDay - kEpochDay, kLastDay - kEpochDay) + kEpochDay,
                        second_of_day);
}

void Date::SetYear(int v) {
  t_.year = v;
  Normalize();
}
void Date::SetMonth(int v) {
  t_.month = v;
  Normalize();
}
void Date::SetDay(int v) {
  t_.day = v;
  Normalize();
}
void Date::SetHour(int v) {
  t_.hour = v;
  Normalize();
}
void Date::SetMinute(int v) {
  t_.minute = v;
  Normalize();
}
void Date::SetSecond(int v) {
  t_.second = v;
  Normalize();
}

}  // namespace tessarine
