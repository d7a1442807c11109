// Calendar steps, years-type steps, rounding to calendar units and ticks.
#include "date_helpers.h"

#include <kilnutil/datetime.h>

#include <gtest/gtest.h>

#include <utility>

namespace {

using namespace date_test;

TEST(IncrementDate, MonthsClampTheDayAndKeepTheTime) {
  const struct {
    double from;
    char unit;
    int count;
    double to;
  } cases[] = {
      {date_value(2021, 1, 31, 10, 20, 30), 'm', 1, date_value(2021, 2, 28, 10, 20, 30)},
      {date_value(2021, 1, 31), 'q', 1, date_value(2021, 4, 30)},
      {date_value(2020, 2, 29), 'y', 1, date_value(2021, 2, 28)},
      {date_value(2021, 11, 15), 'm', 3, date_value(2022, 2, 15)},
      {date_value(2021, 3, 31, 6), 'd', 2, date_value(2021, 4, 2, 6)},
  };
  for (const auto& c : cases) {
    double value = c.from;
    ASSERT_TRUE(increment_date_val(&value, c.unit, c.count)) << c.count << c.unit;
    EXPECT_DOUBLE_EQ(value, c.to) << c.count << c.unit;
  }
  // Milliseconds are dropped.
  const SYSTEMTIME t = system_time(2021, 5, 5, 1, 2, 3, 456);
  double value = 0;
  SystemTimeToJulianDate(&value, &t, nullptr);
  ASSERT_TRUE(increment_date_val(&value, 'm', 1));
  EXPECT_DOUBLE_EQ(value, date_value(2021, 6, 5, 1, 2, 3));
}

TEST(IncrementDate, OneCarryOnlyAndRefusals) {
  const double january = date_value(2021, 1, 10);
  double value = january;
  // Refused, the value kept: more than one carry into the year (0 + 25 - 12 is
  // still beyond December), a zero count, an unknown unit.
  for (const auto& [unit, count] : {std::pair{'m', 25}, {'q', 9}, {'m', 0}, {'w', 1}}) {
    EXPECT_FALSE(increment_date_val(&value, unit, count)) << count << unit;
  }
  EXPECT_FALSE(increment_date_val(nullptr, 'd', 1));
  EXPECT_EQ(value, january);
  ASSERT_TRUE(increment_date_val(&value, 'm', 13));
  EXPECT_EQ(value, date_value(2022, 2, 10));
  value = date_value(9999, 12, 1);
  EXPECT_FALSE(increment_date_val(&value, 'm', 1));
}

// Years-type values count years of 360 days; the flag says forward.
TEST(IncrementYearsType, ThreeHundredSixtyDayYear) {
  const struct {
    double from;
    char unit;
    int count;
    bool forward;
    double to;
  } cases[] = {
      {2000, 'd', 36, true, 2000.1}, {0, 'd', 1, true, 0.0027777777777777775},
      {10, 'q', 2, false, 9.5},      {9.5, 'm', 6, true, 10.0},
      {10, 'y', 3, false, 7.0},
  };
  for (const auto& c : cases) {
    double value = c.from;
    ASSERT_TRUE(increment_years_type_date_val(&value, c.unit, c.count, c.forward)) << c.count << c.unit;
    EXPECT_EQ(value, c.to) << c.count << c.unit;
  }
  double value = 7;
  EXPECT_FALSE(increment_years_type_date_val(&value, 'y', 0, true));
  EXPECT_FALSE(increment_years_type_date_val(&value, 'h', 1, true));
}

// Rounds to the start of the calendar unit of the increment (months for 30
// days, years for 90) when within tolerance percent of the increment.
TEST(CalendarRounding, ToMonthStartsWithinTolerance) {
  const struct {
    double from;
    double increment;
    int tolerance;
    bool rounded;
    double to;
  } cases[] = {
      {date_value(2021, 3, 1, 6), 30, 5, true, date_value(2021, 3, 1)},
      {date_value(2021, 3, 20), 30, 5, false, date_value(2021, 3, 20)},
      {date_value(2021, 3, 30), 30, 7, true, date_value(2021, 4, 1)},  // 2 days short: 6.7% of 30 days
      {date_value(2021, 12, 28), 90, 5, true, date_value(2022, 1, 1)},
      // Weeks and hours are not truncated: the value is its own candidate.
      {date_value(2021, 3, 3, 6), 5, 5, true, date_value(2021, 3, 3, 6)},
  };
  for (const auto& c : cases) {
    double value = c.from;
    EXPECT_EQ(calendar_round_to_inc(&value, c.increment, c.tolerance, 0), c.rounded) << c.from;
    EXPECT_EQ(value, c.to) << c.from;
    // The same rule through the tick check.
    EXPECT_EQ(KILNUTIL_chk_round_tick(c.from, c.increment, c.tolerance, true), c.to) << c.from;
  }
  double value = date_value(2021, 3, 1, 6);
  EXPECT_FALSE(calendar_round_to_inc(&value, 30, 5, 1));  // reserved must be 0
}

TEST(TickCheck, Plain) {
  EXPECT_EQ(KILNUTIL_chk_round_tick(10.02, 0.5, 5, false), 10.0);
  EXPECT_EQ(KILNUTIL_chk_round_tick(10.04, 0.5, 5, false), 10.04);
  EXPECT_EQ(KILNUTIL_chk_round_tick(10.04, 0, 5, false), 10.04);
  EXPECT_EQ(KILNUTIL_chk_round_tick(-10.02, -0.5, 5, false), -10.0);
}

}  // namespace
