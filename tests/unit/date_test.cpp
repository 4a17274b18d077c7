// Dates: the program shows the clock's short forms; the setters serve only the expiry of
// cookies, whose answer it never uses, so beyond a few carries their extremes matter
// (no overflow on a hostile date).
#include "runtime/date.hpp"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace tessarine {
namespace {

// A clock standing still; its short forms show which fields it was given.
class FixedClock : public Clock {
 public:
  explicit FixedClock(CivilTime now) : now_(now) {}
  std::int64_t Ticks() const override { return 0; }
  std::int64_t Microseconds() const override { return 0; }
  CivilTime Now() const override { return now_; }
  std::string ShortDate(const CivilTime& t) const override { return "d" + std::to_string(t.day); }
  std::string ShortTime(const CivilTime& t) const override { return "h" + std::to_string(t.hour); }

 private:
  CivilTime now_;
};

std::string Fields(const Date& d) {
  char buf[64];
  std::snprintf(buf, sizeof buf, "%04d-%02d-%02d %02d:%02d:%02d", d.Year(), d.Month(), d.Day(),
                d.Hour(), d.Minute(), d.Second());
  return buf;
}

TEST(Date, SettersCarryOver) {
  struct Row {
    const char* name;
    CivilTime start;
    void (Date::*setter)(int);
    int value;
    const char* want;
  };
  const CivilTime mid{2023, 6, 15, 12, 30, 45};
  const std::vector<Row> rows = {
      {"month 13 is next january", mid, &Date::SetMonth, 13, "2024-01-15 12:30:45"},
      {"day 0 is end of last month", mid, &Date::SetDay, 0, "2023-05-31 12:30:45"},
      {"second -1", {2023, 1, 1}, &Date::SetSecond, -1, "2022-12-31 23:59:59"},
      {"day int max stays in range", mid, &Date::SetDay, INT_MAX, "32767-12-31 12:30:45"},
      {"year int min stays in range", mid, &Date::SetYear, INT_MIN, "-32767-06-15 12:30:45"},
  };
  for (const auto& r : rows) {
    const FixedClock clock(r.start);
    Date d(clock);
    (d.*r.setter)(r.value);
    EXPECT_EQ(Fields(d), r.want) << r.name;
  }
}

TEST(Date, TotalSeconds) {
  const FixedClock epoch({1904, 1, 1});
  Date d(epoch);
  EXPECT_EQ(d.TotalSeconds(), 0);
  d.SetTotalSeconds(-1);
  EXPECT_EQ(Fields(d), "1903-12-31 23:59:59");
  d.SetTotalSeconds(3061152000);  // 2001 began this many seconds after 1904
  EXPECT_EQ(Fields(d), "2001-01-01 00:00:00");
  d.SetTotalSeconds(INT64_MIN);
  EXPECT_EQ(d.Year(), -32767);
}

TEST(Date, TakesNowAndShortFormsFromClock) {
  const FixedClock clock({2023, 14, 1, 25, 0, 0});  // out of range: carried
  const Date d(clock);
  EXPECT_EQ(d.ShortDate() + " " + d.ShortTime(), "d2 h1");
  EXPECT_EQ(Fields(d), "2024-02-02 01:00:00");
}

}  // namespace
}  // namespace tessarine
