// Calendar steps, years-type steps, rounding to calendar units and ticks.
#include "date_helpers.h"

#include <kilnutil/datetime.h>

#include <gtest/gtest.h>

namespace {

using namespace date_test;

TEST(IncrementDate, MonthsClampTheDayAndKeepTheTime) {
  double value = date_value(2021, 1, 31, 10, 20, 30);
  ASSERT_TRUE(increment_date_val(&value, 'm', 1));
  EXPECT_DOUBLE_EQ(value, date_value(2021, 2, 28, 10, 20, 30));

  value = date_value(2021, 1, 31);
  ASSERT_TRUE(increment_date_val(&value, 'q', 1));
  EXPECT_EQ(value, date_value(2021, 4, 30));

  value = date_value(2020, 2, 29);
  ASSERT_TRUE(increment_date_val(&value, 'y', 1));
  EXPECT_EQ(value, date_value(2021, 2, 28));

  value = date_value(2021, 11, 15);
  ASSERT_TRUE(increment_date_val(&value, 'm', 3));
  EXPECT_EQ(value, date_value(2022, 2, 15));

  value = date_value(2021, 3, 31, 6);
  ASSERT_TRUE(increment_date_val(&value, 'd', 2));
  EXPECT_EQ(value, date_value(2021, 4, 2, 6));
}

TEST(IncrementDate, MillisecondsAreDropped) {
  const SYSTEMTIME t = system_time(2021, 5, 5, 1, 2, 3, 456);
  double value = 0;
  SystemTimeToJulianDate(&value, &t, nullptr);
  ASSERT_TRUE(increment_date_val(&value, 'm', 1));
  EXPECT_DOUBLE_EQ(value, date_value(2021, 6, 5, 1, 2, 3));
}

TEST(IncrementDate, OneCarryOnlyAndRefusals) {
  const double january = date_value(2021, 1, 10);
  double value = january;
  EXPECT_FALSE(increment_date_val(&value, 'm', 25));  // 0 + 25 - 12 is still beyond December
  EXPECT_FALSE(increment_date_val(&value, 'q', 9));
  EXPECT_FALSE(increment_date_val(&value, 'm', 0));
  EXPECT_FALSE(increment_date_val(&value, 'w', 1));
  EXPECT_FALSE(increment_date_val(nullptr, 'd', 1));
  EXPECT_EQ(value, january);
  ASSERT_TRUE(increment_date_val(&value, 'm', 13));
  EXPECT_EQ(value, date_value(2022, 2, 10));
  value = date_value(9999, 12, 1);
  EXPECT_FALSE(increment_date_val(&value, 'm', 1));
}

TEST(IncrementYearsType, ThreeHundredSixtyDayYear) {
  double value = 2000;
  ASSERT_TRUE(increment_years_type_date_val(&value, 'd', 36, true));
  EXPECT_EQ(value, 2000 + 0.1);
  value = 0;
  ASSERT_TRUE(increment_years_type_date_val(&value, 'd', 1, true));
  EXPECT_EQ(value, 0.0027777777777777775);
  value = 10;
  ASSERT_TRUE(increment_years_type_date_val(&value, 'q', 2, false));
  EXPECT_EQ(value, 9.5);
  ASSERT_TRUE(increment_years_type_date_val(&value, 'm', 6, true));
  EXPECT_EQ(value, 10.0);
  ASSERT_TRUE(increment_years_type_date_val(&value, 'y', 3, false));
  EXPECT_EQ(value, 7.0);
  EXPECT_FALSE(increment_years_type_date_val(&value, 'y', 0, true));
  EXPECT_FALSE(increment_years_type_date_val(&value, 'h', 1, true));
}

TEST(CalendarRounding, ToMonthStartsWithinTolerance) {
  double value = date_value(2021, 3, 1, 6);
  ASSERT_TRUE(calendar_round_to_inc(&value, 30, 5, 0));
  EXPECT_EQ(value, date_value(2021, 3, 1));

  const double twentieth = date_value(2021, 3, 20);
  value = twentieth;
  EXPECT_FALSE(calendar_round_to_inc(&value, 30, 5, 0));
  EXPECT_EQ(value, twentieth);

  value = date_value(2021, 3, 30);  // 2 days short of 1 April: 6.7% of 30 days
  ASSERT_TRUE(calendar_round_to_inc(&value, 30, 7, 0));
  EXPECT_EQ(value, date_value(2021, 4, 1));

  value = date_value(2021, 12, 28);  // 90 days: years
  ASSERT_TRUE(calendar_round_to_inc(&value, 90, 5, 0));
  EXPECT_EQ(value, date_value(2022, 1, 1));

  value = date_value(2021, 3, 1, 6);
  EXPECT_FALSE(calendar_round_to_inc(&value, 30, 5, 1));  // reserved must be 0
  // Weeks and hours are not truncated: the value is its own candidate.
  const double wednesday = date_value(2021, 3, 3, 6);
  value = wednesday;
  ASSERT_TRUE(calendar_round_to_inc(&value, 5, 5, 0));
  EXPECT_EQ(value, wednesday);
}

TEST(TickCheck, PlainAndCalendar) {
  EXPECT_EQ(KILNUTIL_chk_round_tick(10.02, 0.5, 5, false), 10.0);
  EXPECT_EQ(KILNUTIL_chk_round_tick(10.04, 0.5, 5, false), 10.04);
  EXPECT_EQ(KILNUTIL_chk_round_tick(10.04, 0, 5, false), 10.04);
  EXPECT_EQ(KILNUTIL_chk_round_tick(-10.02, -0.5, 5, false), -10.0);
  EXPECT_EQ(KILNUTIL_chk_round_tick(date_value(2021, 3, 1, 6), 30, 5, true), date_value(2021, 3, 1));
  EXPECT_EQ(KILNUTIL_chk_round_tick(date_value(2021, 3, 20), 30, 5, true), date_value(2021, 3, 20));
}

}  // namespace
