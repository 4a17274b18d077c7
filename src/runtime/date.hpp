// Date: a moment of local time, taken from the clock when it is made. Its fields
// can be set; setting one out of range carries over (month 13 is January of the
// next year). TotalSeconds counts from 1904-01-01 00:00:00 local time.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/platform/clock.hpp"

namespace tessarine {

class Date {
 public:
  explicit Date(const Clock& clock);

  std::int64_t TotalSeconds() const;
  void SetTotalSeconds(std::int64_t seconds);

  int Year() const { return t_.year; }
  int Month() const { return t_.month; }
  int Day() const { return t_.day; }
  int Hour() const { return t_.hour; }
  int Minute() const { return t_.minute; }
  int Second() const { return t_.second; }
  void SetYear(int v);
  void SetMonth(int v);
  void SetDay(int v);
  void SetHour(int v);
  void SetMinute(int v);
  void SetSecond(int v);

  // The user's short forms, as the clock's platform writes them.
  std::string ShortDate() const { return clock_->ShortDate(t_); }
  std::string ShortTime() const { return clock_->ShortTime(t_); }

 private:
  void Normalize();
  const Clock* clock_;
  CivilTime t_;
};

}  // namespace tessarine
