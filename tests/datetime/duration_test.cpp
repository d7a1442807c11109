// Durations, their totals, differences with the quarter-second snapping, and
// the time record helpers.
#include "date_helpers.h"
#include "datetime/duration.h"

#include <kilnutil/datetime.h>

#include <gtest/gtest.h>

namespace {

using namespace date_test;

TEST(ExtractTime, NegativeValues) {
  stTime t{};
  EXPECT_EQ(extract_time(-1.75, &t, 3), 0);
  EXPECT_EQ(t.negative, 1);
  EXPECT_EQ(t.days, 1u);
  EXPECT_EQ(t.hours, 18);
  EXPECT_EQ(t.minutes, 0);
  EXPECT_EQ(t.seconds, 0);
  EXPECT_EQ(t.milliseconds, 0.0);
  EXPECT_EQ(t.GetHours(), -42);
  EXPECT_EQ(t.GetMinutes(), -2520);
  EXPECT_EQ(t.GetSeconds(), -151200);
  EXPECT_EQ(t.GetMilliSecs(), -151200000.0);
}

TEST(ExtractTime, RoundingToDecimals) {
  stTime t{};
  const double almost_midnight = 5 + 86399.6 / 86400;
  extract_time(almost_midnight, &t, 0);
  EXPECT_EQ(t.days, 6u);
  EXPECT_EQ(t.hours, 0);
  EXPECT_EQ(t.seconds, 0);
  EXPECT_EQ(t.milliseconds, 0.0);

  extract_time(almost_midnight, &t, -1);  // no rounding
  EXPECT_EQ(t.days, 5u);
  EXPECT_EQ(t.hours, 23);
  EXPECT_NEAR(t.milliseconds, 600, 1e-3);

  extract_time(1.23456 / 86400, &t, 4);
  EXPECT_EQ(t.seconds, 1);
  EXPECT_NEAR(t.milliseconds, 234.6, 1e-9);
  extract_time(1.23456 / 86400, &t, 2);
  EXPECT_EQ(t.milliseconds, 230.0);
  EXPECT_EQ(t.GetMilliSecs(), 1230.0);
}

TEST(ExtractTime, MidnightKeptWhenAsked) {
  kiln::datetime::set_keep_rounded_midnight_as_2400(true);
  stTime t{};
  extract_time(5 + 86399.6 / 86400, &t, 0);
  kiln::datetime::set_keep_rounded_midnight_as_2400(false);
  EXPECT_EQ(t.days, 5u);
  EXPECT_EQ(t.hours, 24);
  EXPECT_EQ(t.minutes, 0);
}

TEST(Differences, SnappingWithinAQuarterSecond) {
  const SYSTEMTIME start = system_time(2021, 3, 1);
  // 0.99999 days is 0.864 s short of a day; 0.999999 days 0.0864 s short.
  const SYSTEMTIME short_by_864ms = system_time(2021, 3, 1, 23, 59, 59, 136);
  const SYSTEMTIME short_by_86ms = system_time(2021, 3, 1, 23, 59, 59, 914);
  EXPECT_EQ(KILNUTIL_GetDifferenceInDays(&start, &short_by_864ms), 0);
  EXPECT_EQ(KILNUTIL_GetDifferenceInDays(&start, &short_by_86ms), 1);
  EXPECT_EQ(KILNUTIL_GetDifferenceInDays(&short_by_86ms, &start), -1);
  EXPECT_EQ(KILNUTIL_GetDifferenceInHours(&start, &short_by_864ms), 23);
  EXPECT_EQ(KILNUTIL_GetDifferenceInSeconds(&start, &short_by_864ms), 86399);

  const SYSTEMTIME later = system_time(2021, 3, 3, 6, 30);
  EXPECT_EQ(KILNUTIL_GetDifferenceInDays(&start, &later), 2);
  EXPECT_EQ(KILNUTIL_GetDifferenceInHours(&start, &later), 54);
  EXPECT_EQ(KILNUTIL_GetDifferenceInMinutes(&start, &later), 54 * 60 + 30);
  EXPECT_EQ(KILNUTIL_GetDifferenceInMinutes(&later, &start), -(54 * 60 + 30));
  EXPECT_EQ(KILNUTIL_GetDifferenceInSeconds(&start, &later), (54 * 60 + 30) * 60);
  EXPECT_EQ(KILNUTIL_GetDifferenceInDays(nullptr, &later), 0);
}

TEST(Clock, CurrentDateAndDuration) {
  const double today = get_current_date(true);
  EXPECT_EQ(today, static_cast<double>(static_cast<long long>(today)));
  const double now = get_current_date(false);
  EXPECT_GE(now, today);
  EXPECT_LT(now - today, 1.0);
  EXPECT_LT(get_time_duration(0) - get_time_duration(0), 1000u);
}

TEST(TimeRecord, CheckAndReset) {
  KilnTm record{5, 6, 7, 31, 11, 2020, 0, 0, 1};
  EXPECT_EQ(DateTime_CheckDate(&record, 0), 1);
  EXPECT_EQ(record.tm_hour, 7);
  EXPECT_EQ(DateTime_CheckDate(&record, 16), 1);
  EXPECT_EQ(record.tm_hour, 0);
  EXPECT_EQ(record.tm_isdst, 0);

  KilnTm bad{1, 2, 3, 0, 12, 10000, 0, 0, 0};
  EXPECT_EQ(DateTime_CheckDate(&bad, 0), 0);
  KilnTm now{};
  EXPECT_EQ(DateTime_CheckDate(&now, 1), 1);
  EXPECT_EQ(bad.tm_year, now.tm_year);
  EXPECT_EQ(bad.tm_mon, now.tm_mon);
  EXPECT_EQ(bad.tm_mday, now.tm_mday);
  EXPECT_EQ(bad.tm_sec, 1);
  EXPECT_GE(now.tm_year, 2024);

  DateTime_ResetTimeOfDay(&now);
  EXPECT_EQ(now.tm_sec + now.tm_min + now.tm_hour, 0);
}

}  // namespace
