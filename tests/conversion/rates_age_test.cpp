// The "Last updated:" line and its red colour against today's date.
#include "conversion/rates_age.hpp"

#include <gtest/gtest.h>

#include <string>

namespace tessarine {
namespace {

// A clock stopped at one moment, writing dates as month/day/year.
class StoppedClock : public Clock {
 public:
  explicit StoppedClock(CivilTime t) : t_(t) {}
  std::int64_t Ticks() const override { return 0; }
  std::int64_t Microseconds() const override { return 0; }
  CivilTime Now() const override { return t_; }
  std::string ShortDate(const CivilTime& t) const override {
    return std::to_string(t.month) + "/" + std::to_string(t.day) + "/" + std::to_string(t.year);
  }
  std::string ShortTime(const CivilTime& t) const override {
    return std::to_string(t.hour) + ":" + std::to_string(t.minute);
  }

 private:
  CivilTime t_;
};

TEST(RatesAge, TextAndColourAtOpen) {
  const StoppedClock clock({2026, 3, 14, 9, 30, 0});
  const Date today(clock);
  struct Case {
    const char* name;
    const char* time_and_date;
    const char* date;
    const char* text;
    bool red;
  };
  const Case kCases[] = {
      {"first start", "NEVER", "NEVER", "Last updated: NEVER", true},
      {"updated today", "3/14/2026 8:05", "3/14/2026", "Last updated: 3/14/2026 8:05", false},
      {"updated yesterday", "3/13/2026 8:05", "3/13/2026", "Last updated: 3/13/2026 8:05", true},
      {"date and time stored as the date", "x", "3/14/2026 8:05", "Last updated: x", true},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(c.name);
    const RatesAgeLine line = RatesAgeAtOpen(c.time_and_date, c.date, today);
    EXPECT_EQ(line.text, c.text);
    EXPECT_EQ(line.red, c.red);
  }
}

}  // namespace
}  // namespace tessarine
