// Durations, their totals, differences with the quarter-second snapping, and
// the time record helpers.
#include "date_helpers.h"
#include "datetime/duration.h"

#include <kilnutil/datetime.h>

#include <gtest/gtest.h>

#include <tuple>

namespace {

using namespace date_test;

// negative, days, hours, minutes, seconds, milliseconds.
using Fields = std::tuple<int, unsigned, int, int, int, double>;

Fields extracted(double value, int decimals) {
  stTime t{};
  extract_time(value, &t, decimals);
  return {t.negative, t.days, t.hours, t.minutes, t.seconds, t.milliseconds};
}

TEST(ExtractTime, SignedTotals) {
  stTime t{};
  EXPECT_EQ(extract_time(-1.75, &t, 3), 0);
  EXPECT_EQ(extracted(-1.75, 3), Fields(1, 1, 18, 0, 0, 0.0));
  EXPECT_EQ(std::tuple(t.GetHours(), t.GetMinutes(), t.GetSeconds()), std::tuple(-42, -2520, -151200));
  EXPECT_EQ(t.GetMilliSecs(), -151200000.0);
  extract_time(1.23456 / 86400, &t, 2);
  EXPECT_EQ(t.GetMilliSecs(), 1230.0);
}

// Rounding to the given decimals of a second carries into the day; -1 does
// not round; 23:59:59.6 becomes 24:00 of the same day when that is asked for.
TEST(ExtractTime, RoundingToDecimals) {
  const double almost_midnight = 5 + 86399.6 / 86400;
  EXPECT_EQ(extracted(almost_midnight, 0), Fields(0, 6, 0, 0, 0, 0.0));
  const Fields unrounded = extracted(almost_midnight, -1);
  EXPECT_EQ(std::get<1>(unrounded), 5u);
  EXPECT_EQ(std::get<2>(unrounded), 23);
  EXPECT_NEAR(std::get<5>(unrounded), 600, 1e-3);

  kiln::datetime::set_keep_rounded_midnight_as_2400(true);
  const Fields kept = extracted(almost_midnight, 0);
  kiln::datetime::set_keep_rounded_midnight_as_2400(false);
  EXPECT_EQ(kept, Fields(0, 5, 24, 0, 0, 0.0));

  EXPECT_EQ(extracted(1.23456 / 86400, 2), Fields(0, 0, 0, 0, 1, 230.0));
  EXPECT_NEAR(std::get<5>(extracted(1.23456 / 86400, 4)), 234.6, 1e-9);
}

// Whole days snap first, then the rest in the unit: 0.99999 days (0.864 s
// short of a day) is no day, 0.999999 days (0.0864 s short) is one.
TEST(Differences, SnappingWithinAQuarterSecond) {
  const SYSTEMTIME start = system_time(2021, 3, 1), later = system_time(2021, 3, 3, 6, 30);
  const SYSTEMTIME short_by_864ms = system_time(2021, 3, 1, 23, 59, 59, 136);
  const SYSTEMTIME short_by_86ms = system_time(2021, 3, 1, 23, 59, 59, 914);
  using Units = std::tuple<int, int, int, int>;  // days, hours, minutes, seconds
  const auto differences = [](const SYSTEMTIME& first, const SYSTEMTIME& second) {
    return Units(KILNUTIL_GetDifferenceInDays(&first, &second), KILNUTIL_GetDifferenceInHours(&first, &second),
                 KILNUTIL_GetDifferenceInMinutes(&first, &second), KILNUTIL_GetDifferenceInSeconds(&first, &second));
  };
  EXPECT_EQ(differences(start, short_by_864ms), Units(0, 23, 1439, 86399));
  EXPECT_EQ(differences(start, short_by_86ms), Units(1, 24, 1440, 86400));
  EXPECT_EQ(differences(short_by_86ms, start), Units(-1, -24, -1440, -86400));
  EXPECT_EQ(differences(start, later), Units(2, 54, 3270, 196200));
  EXPECT_EQ(differences(later, start), Units(-2, -54, -3270, -196200));
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
  EXPECT_EQ(DateTime_CheckDate(&record, 16), 1);  // 16 clears the time of day and the summer-time flag
  EXPECT_EQ(std::tuple(record.tm_hour, record.tm_isdst), std::tuple(0, 0));

  // An invalid date is replaced by today's, keeping the time of day.
  KilnTm bad{1, 2, 3, 0, 12, 10000, 0, 0, 0};
  EXPECT_EQ(DateTime_CheckDate(&bad, 0), 0);
  KilnTm now{};
  EXPECT_EQ(DateTime_CheckDate(&now, 1), 1);
  EXPECT_EQ(std::tuple(bad.tm_year, bad.tm_mon, bad.tm_mday, bad.tm_sec),
            std::tuple(now.tm_year, now.tm_mon, now.tm_mday, 1));
  EXPECT_GE(now.tm_year, 2024);

  DateTime_ResetTimeOfDay(&now);
  EXPECT_EQ(now.tm_sec + now.tm_min + now.tm_hour, 0);
}

}  // namespace
