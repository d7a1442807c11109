// The date-editing operations of KILNUTIL_dateinc and the date text reader.
#include "date_helpers.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

namespace {

using namespace date_test;

// Runs one operation on `value` and returns it with what the call returned.
std::pair<int, double> dateinc(unsigned short operation, double value, double argument, unsigned* inout = nullptr) {
  const int returned = KILNUTIL_dateinc(&value, &argument, operation, inout);
  return {returned, value};
}

// An argument slot holding a 32-bit integer in its first four bytes.
double int_argument(int n) {
  double slot = 0;
  std::memcpy(&slot, &n, sizeof n);
  return slot;
}

TEST(DateInc, AddAndUnknownOperations) {
  EXPECT_EQ(dateinc(KILNUTIL_DATEINC_ADD, 100, 2.5), std::pair(0, 102.5));
  const unsigned short unknown_operations[] = {8, 12, 49};
  for (unsigned short unknown : unknown_operations) EXPECT_EQ(dateinc(unknown, 100, 1), std::pair(0, 100.0));
}

// Operation 1 steps the calendar by a month (unit 6), quarter (7) or year
// (8) when the increment in days is one, clamping the day; anything else is
// added as days and reports unit 0.
TEST(DateInc, CalendarStepByClassifiedIncrement) {
  const struct {
    double from, days;
    unsigned unit;
    double to;
  } cases[] = {
      {date_value(2021, 1, 31, 12), 30, 6, date_value(2021, 2, 28, 12)},
      {date_value(2021, 1, 31), 365, 8, date_value(2022, 1, 31)},
      {date_value(2021, 5, 31), 92, 7, date_value(2021, 8, 31)},
      {date_value(2021, 3, 31), -30, 6, date_value(2021, 2, 28)},
      {date_value(2021, 1, 1), 7, 0, date_value(2021, 1, 8)},
  };
  for (const auto& c : cases) {
    unsigned unit = 99;
    EXPECT_EQ(dateinc(KILNUTIL_DATEINC_CALENDAR_STEP, c.from, c.days, &unit), std::pair(0, c.to)) << c.days;
    EXPECT_EQ(unit, c.unit) << c.days;
  }
}

// Operation 2 divides a calendar increment into `count` parts and returns
// the unit of the part; 0 and the value untouched when it cannot.
TEST(DateInc, DivideIncrement) {
  const struct {
    double days;
    unsigned count;
    int unit;
    double part;
  } cases[] = {
      {365, 4, 7, 1.0},     // a year in 4: one quarter
      {365, 6, 6, 2.0},     // in 6: two months
      {365, 8, 7, 0.5},     // 8 divides nowhere: half a quarter
      {30, 3, 6, 1.0 / 3},  // a month in 3
      {5, 2, 0, -7},        // not a calendar unit
      {365, 0, 0, -7},
  };
  for (const auto& c : cases) {
    unsigned count = c.count;
    EXPECT_EQ(dateinc(KILNUTIL_DATEINC_DIVIDE_INCREMENT, -7, c.days, &count), std::pair(c.unit, c.part))
        << c.days << " in " << c.count;
  }
}

// Operation 3 steps by a fractional number of units: months take the
// fraction of the month they end in, days (4) and hours (3) are plain.
TEST(DateInc, FractionalCalendarStep) {
  const struct {
    double from, steps;
    unsigned unit;
    double to;
  } cases[] = {
      {date_value(2021, 1, 1), 1.5, 6, date_value(2021, 2, 15)},  // halfway from 1 February to 1 March
      {date_value(2021, 1, 1), 2, 6, date_value(2021, 3, 1)},
      {10, 1.5, 4, 11.5},
      {10, 12, 3, 10.5},
  };
  for (auto c : cases)
    EXPECT_EQ(dateinc(KILNUTIL_DATEINC_FRACTIONAL_STEP, c.from, c.steps, &c.unit).second, c.to)
        << c.steps << " of " << c.unit;
}

// Operation 4 snaps an increment near a week (code 16), 31 days (32) or 91
// days (64), keeping its sign.
TEST(DateInc, SnapIncrement) {
  const struct {
    double from, to;
    unsigned code;
  } cases[] = {{6.5, 7.0, 16},
               {-29, -31.0, 32},
               {80, 91.0, 64},
               {200, 200.0, 0},
               // the windows include their ends: a day round the week, a week round 31 days
               {8, 7.0, 16},
               {6, 7.0, 16},
               {9, 9.0, 0},
               {38, 31.0, 32},
               {24, 31.0, 32},
               {39, 39.0, 0}};
  for (const auto& c : cases) {
    unsigned code = 99;
    EXPECT_EQ(dateinc(KILNUTIL_DATEINC_SNAP_INCREMENT, c.from, 0, &code).second, c.to);
    EXPECT_EQ(code, c.code) << c.from;
  }
}

// Operation 5 writes the weekday (code 16) or day of month (32) as an
// integer into the argument and returns the low 16 bits of the code.
TEST(DateInc, QueryWeekdayAndDayOfMonth) {
  const struct {
    unsigned code;
    int returned, answer;
  } cases[] = {
      {KILNUTIL_DATEINC_QUERY_DAY_OF_WEEK, 16, 4}, {KILNUTIL_DATEINC_QUERY_DAY_OF_MONTH, 32, 29}, {0x10007, 7, 0}};
  for (auto c : cases) {
    double value = date_value(2024, 2, 29, 12);  // a Thursday
    double slot = 0;
    EXPECT_EQ(KILNUTIL_dateinc(&value, &slot, KILNUTIL_DATEINC_QUERY, &c.code), c.returned);
    int answer = -1;
    std::memcpy(&answer, &slot, sizeof answer);
    EXPECT_EQ(answer, c.answer) << c.returned;
  }
}

// Operations 6, 9 and 10 take a small integer or a double holding one.
// 6 moves within the week; 9 moves to a day of month, in the next month when
// that lies more than 17 days back (day 0 keeps the day); 10 moves to the
// first of this month, or of the next beyond 15 days.
TEST(DateInc, MoveToWeekdayOrDayOfMonth) {
  const struct {
    double from;
    double argument;
    unsigned short operation;
    double to;
  } cases[] = {
      {date_value(2024, 2, 29, 12), int_argument(1), KILNUTIL_DATEINC_MOVE_TO_WEEKDAY,
       date_value(2024, 2, 26, 12)},  // Thursday to Monday
      {date_value(2024, 2, 26, 12), 6.0, KILNUTIL_DATEINC_MOVE_TO_WEEKDAY, date_value(2024, 3, 2, 12)},
      {date_value(2021, 12, 25, 9), int_argument(5), KILNUTIL_DATEINC_MOVE_TO_DAY_ROUNDING_AT_17,
       date_value(2022, 1, 5, 9)},
      {date_value(2021, 12, 20, 9), int_argument(5), KILNUTIL_DATEINC_MOVE_TO_DAY_ROUNDING_AT_17,
       date_value(2021, 12, 5, 9)},
      {date_value(2021, 12, 20, 9), int_argument(0), KILNUTIL_DATEINC_MOVE_TO_DAY_ROUNDING_AT_17,
       date_value(2022, 1, 20, 9)},
      {date_value(2021, 12, 20, 9), int_argument(4), KILNUTIL_DATEINC_MOVE_TO_FIRST_ROUNDING_AT_15,
       date_value(2022, 1, 1, 9)},
      {date_value(2021, 12, 20, 9), 5.0, KILNUTIL_DATEINC_MOVE_TO_FIRST_ROUNDING_AT_15, date_value(2021, 12, 1, 9)},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(dateinc(c.operation, c.from, c.argument), std::pair(0, c.to)) << "operation " << c.operation;
  }
}

// Operation 7 reads a day of month, a weekday or a date; each text here
// moves on from where the previous one left the value.
TEST(DateInc, DayWeekdayOrDateFromText) {
  double value = date_value(2024, 2, 29, 12);
  const std::pair<const char*, double> steps[] = {
      {"3", date_value(2024, 2, 3)},
      {"friday", date_value(2024, 2, 2)},  // 3 Feb is a Saturday
      {"Sun", date_value(2024, 1, 28)},
      {"2023-07-14 08:30", date_value(2023, 7, 14, 8, 30)},
      {"soon", date_value(2023, 7, 14, 8, 30)},
  };
  for (const auto& [text, expected] : steps) {
    std::string argument = text;
    KILNUTIL_dateinc(&value, reinterpret_cast<double*>(argument.data()), KILNUTIL_DATEINC_SET_FROM_TEXT, nullptr);
    EXPECT_EQ(value, expected) << text;
  }
}

TEST(DateInc, LeapDayTest) {
  EXPECT_EQ(dateinc(KILNUTIL_DATEINC_IS_LEAP_DAY, date_value(2024, 2, 29, 12), 0).first, 1);
  EXPECT_EQ(dateinc(KILNUTIL_DATEINC_IS_LEAP_DAY, date_value(2023, 2, 28), 0).first, 0);
}

TEST(DateText, IsoDates) {
  EXPECT_EQ(KILNUTIL_str2date("2000-01-01"), 2451544.0);
  EXPECT_EQ(KILNUTIL_str2date(" 2000-01-01T12:00 "), 2451544.5);
  EXPECT_DOUBLE_EQ(KILNUTIL_str2date("2000-01-01 00:00:01.5"), 2451544.0 + 1.5 / 86400);
  for (const char* refused : {"2000-02-30", "2000-1-01", "2000-01-01 24:00", "2000-01-01x", "0099-01-01"}) {
    EXPECT_EQ(KILNUTIL_str2date(refused), KILNUTIL_NANUM) << refused;
  }
  EXPECT_EQ(KILNUTIL_str2date(nullptr), KILNUTIL_NANUM);
}

}  // namespace
