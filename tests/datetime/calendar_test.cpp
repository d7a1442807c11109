// Fields to date value and back: every day of the valid range against an
// independent civil-date count, reference dates of other calendars, the
// field checks and the rounding of the time of day.
#include "date_helpers.h"

#include <kilnutil/datetime.h>

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

namespace {

using namespace date_test;

using Fields = std::tuple<int, int, int, int, int, int, int>;

Fields fields_of(const SYSTEMTIME& t) {
  return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds};
}

TEST(CalendarRoundTrip, EveryDayFrom0100To9999) {
  const long long first = days_from_civil(100, 1, 1);
  const long long last = days_from_civil(9999, 12, 31);
  int y = 100, m = 1, d = 1;
  long long failures = 0;
  for (long long day = first; day <= last; ++day) {
    // The expected fields, stepped independently of the day count.
    const SYSTEMTIME in = system_time(y, m, d, 13, 5, 7, 250);
    double value = 0;
    ASSERT_EQ(SystemTimeToJulianDate(&value, &in, nullptr), 1) << y << "-" << m << "-" << d;
    const double expected =
        static_cast<double>(day - days_from_civil(1899, 12, 30)) + 2415018.0 + ((13 * 60 + 5) * 60 + 7.25) / 86400.0;
    if (value != expected && ++failures < 5) ADD_FAILURE() << y << "-" << m << "-" << d;
    SYSTEMTIME out{};
    ASSERT_EQ(JulianDateToSystemTime(&value, &out, nullptr, 0), 1);
    if (fields_of(out) != Fields(y, m, d, 13, 5, 7, 250) && ++failures < 5) {
      ADD_FAILURE() << y << "-" << m << "-" << d << " came back as " << out.wYear << "-" << out.wMonth << "-"
                    << out.wDay << " " << out.wMilliseconds;
    }
    const int weekday = static_cast<int>(((day % 7) + 7 + 4) % 7);  // 1970-01-01 was a Thursday
    if (out.wDayOfWeek != weekday + 1 && ++failures < 5) ADD_FAILURE() << "weekday of " << y << "-" << m << "-" << d;

    const int length = m == 2 ? (KILNUTIL_IsLeapYear(static_cast<unsigned short>(y)) ? 29 : 28)
                              : 31 - ((m == 4 || m == 6 || m == 9 || m == 11) ? 1 : 0);
    if (++d > length) {
      d = 1;
      if (++m > 12) {
        m = 1;
        ++y;
      }
    }
  }
  EXPECT_EQ(failures, 0);
}

// 0099-12-31 is admitted on the way out only; a refused value leaves the
// record untouched.
TEST(CalendarRange, BoundsOfTheSerialDays) {
  SYSTEMTIME out{};
  double value = 2415018.0 - 657435;
  ASSERT_EQ(JulianDateToSystemTime(&value, &out, nullptr, 3), 1);
  EXPECT_EQ(fields_of(out), Fields(99, 12, 31, 0, 0, 0, 0));
  value -= 1e-9;
  EXPECT_EQ(JulianDateToSystemTime(&value, &out, nullptr, 3), 0);
  value = 2415018.0 + 2958465.999;
  ASSERT_EQ(JulianDateToSystemTime(&value, &out, nullptr, 3), 1);
  EXPECT_EQ(fields_of(out), Fields(9999, 12, 31, 23, 58, 33, 600));
  value = 2415018.0 + 2958466;
  out.wYear = 1;
  EXPECT_EQ(JulianDateToSystemTime(&value, &out, nullptr, 3), 0);
  EXPECT_EQ(out.wYear, 1);
}

// Known dates in each date system: the default offset, spreadsheet serials
// from 1899-12-30 and 1904-01-01, and astronomical Julian dates.
TEST(ReferenceDates, EverySystem) {
  const struct {
    int system, y, m, d, h;
    double expected;
  } cases[] = {
      {0, 1899, 12, 30, 0, 2415018.0},  {0, 2000, 1, 1, 12, 2451544.5}, {0, 2000, 1, 1, 0, 2451544.0},
      {101, 1899, 12, 30, 0, 0.0},      {101, 1900, 3, 1, 0, 61.0},     {101, 2000, 1, 1, 0, 36526.0},
      {101, 2024, 2, 29, 18, 45351.75}, {1904, 1904, 1, 1, 0, 0.0},     {1904, 2000, 1, 1, 0, 35064.0},
      {1, 1899, 12, 30, 0, 2415018.5},  {1, 2000, 1, 1, 12, 2451545.0},  // J2000.0
      {1, 1858, 11, 17, 0, 2400000.5},                                   // modified Julian day 0
      {1, 1970, 1, 1, 0, 2440587.5},
  };
  for (const auto& c : cases) {
    DateSystemScope system(c.system);
    EXPECT_EQ(date_value(c.y, c.m, c.d, c.h), c.expected) << c.y << "-" << c.m << "-" << c.d << " in " << c.system;
  }
}

TEST(FieldChecks, TwoDigitYearsAndInvalidFields) {
  EXPECT_EQ(date_value(44, 1, 1), date_value(2044, 1, 1));
  EXPECT_EQ(date_value(45, 1, 1), date_value(1945, 1, 1));
  EXPECT_EQ(date_value(99, 1, 1), date_value(1999, 1, 1));
  // A refused conversion leaves its placeholder value.
  for (const SYSTEMTIME& invalid :
       {system_time(1900, 2, 29), system_time(2000, 1, 0), system_time(2000, 13, 1), system_time(10000, 1, 1),
        system_time(2000, 1, 1, 24), system_time(2000, 1, 1, 0, 0, 60)}) {
    double value = 0;
    EXPECT_EQ(SystemTimeToJulianDate(&value, &invalid, nullptr), 0) << invalid.wYear << "-" << invalid.wMonth;
    EXPECT_EQ(value, 2451323.4653704);
  }
}

TEST(SystemTimeConversion, MillisecondsWithFractions) {
  const SYSTEMTIME t = system_time(2000, 1, 1, 0, 0, 1, 999);
  const double fraction = 0.25;  // replaces the record's milliseconds
  double value = 0;
  ASSERT_EQ(SystemTimeToJulianDate(&value, &t, &fraction), 1);
  EXPECT_DOUBLE_EQ(value, 2451544.0 + 1.00025 / 86400.0);

  // Fractions of a millisecond need the small values of the serial system.
  DateSystemScope serial(101);
  SYSTEMTIME out{};
  double milliseconds = 0;
  value = 36526.0 + 1.23456 / 86400.0;
  ASSERT_EQ(JulianDateToSystemTime(&value, &out, &milliseconds, 5), 1);
  EXPECT_EQ(fields_of(out), Fields(2000, 1, 1, 0, 0, 1, 234));
  EXPECT_NEAR(milliseconds, 234.56, 1e-9);
  ASSERT_EQ(JulianDateToSystemTime(&value, &out, &milliseconds, 1), 1);
  EXPECT_EQ(milliseconds, 200.0);
}

// Rounding to the asked decimals carries into the next day; without the
// milliseconds argument whole milliseconds are kept.
TEST(SystemTimeConversion, RoundingCarriesIntoTheNextDay) {
  double value = 2451544.0 + (86399.6) / 86400.0;  // 2000-01-01 23:59:59.6
  SYSTEMTIME out{};
  double milliseconds = 0;
  ASSERT_EQ(JulianDateToSystemTime(&value, &out, &milliseconds, 0), 1);
  EXPECT_EQ(fields_of(out), Fields(2000, 1, 2, 0, 0, 0, 0));
  ASSERT_EQ(JulianDateToSystemTime(&value, &out, nullptr, 0), 1);
  EXPECT_EQ(fields_of(out), Fields(2000, 1, 1, 23, 59, 59, 600));
}

// Month lengths take a zero-based month; for February a negative year says
// "leap" and year 0 "common"; month 12 does not exist.
TEST(CalendarRules, LeapYearsAndMonthLengths) {
  for (const auto& [year, leap] : {std::pair{1900, 0}, {2000, 1}, {2024, 1}, {2023, 0}}) {
    EXPECT_EQ(KILNUTIL_IsLeapYear(static_cast<unsigned short>(year)), leap) << year;
  }
  const struct {
    unsigned short month;
    int year, days;
  } lengths[] = {{1, 0, 28}, {1, -1, 29}, {1, 2000, 29}, {1, 1900, 28}, {12, 2000, 0}, {3, 2000, 30}, {11, -5, 31}};
  for (const auto& c : lengths) {
    EXPECT_EQ(KILNUTIL_GetNumDaysInMonth(c.month, c.year), c.days) << c.month << " " << c.year;
  }
}

TEST(CalendarRules, DayOfYearHelpers) {
  EXPECT_EQ(KILNUTIL_GetDayOfYearFromMonthAndDayOfMonth(2023, 0, 15), 15);
  EXPECT_EQ(KILNUTIL_GetDayOfYearFromMonthAndDayOfMonth(2023, 1, 5), 33);  // 28 x 1 + 5
  EXPECT_EQ(KILNUTIL_GetDayOfYearFromMonthAndDayOfMonth(2024, 1, 5), 34);
  EXPECT_EQ(KILNUTIL_GetDayOfYearFromMonthAndDayOfMonth(2023, 3, 1), 91);  // 30 x 3 + 1

  struct Case {
    int year, day_of_year, month, day;
  };
  for (const Case& c : {Case{2023, 0, 0, 1}, Case{2023, 31, 0, 31}, Case{2024, 60, 1, 29}, Case{2023, 60, 2, 1},
                        Case{2024, 61, 2, 1}, Case{2024, 366, 11, 31}, Case{2023, 400, 11, 31}}) {
    int month = -1, day = -1;
    KILNUTIL_get_month_and_day_from_days_of_year(c.year, c.day_of_year, &month, &day);
    EXPECT_EQ(std::pair(month, day), std::pair(c.month, c.day)) << c.year << " day " << c.day_of_year;
  }
}

TEST(JulianDays, RangeTest) {  // both bounds excluded
  for (const auto& [value, inside] : {std::pair{2415019.0, 0}, {2415019.5, 1}, {2473458.9, 1}, {2473459.0, 0}}) {
    EXPECT_EQ(is_JulianDays(value), inside) << value;
  }
}

}  // namespace
