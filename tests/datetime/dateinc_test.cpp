// The date-editing operations of KILNUTIL_dateinc and the date text reader.
#include "date_helpers.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

using namespace date_test;

int dateinc(double* value, double argument, unsigned short operation, unsigned* inout = nullptr) {
  return KILNUTIL_dateinc(value, &argument, operation, inout);
}

double int_argument(int n) {
  double slot = 0;
  std::memcpy(&slot, &n, sizeof n);
  return slot;
}

TEST(DateInc, AddAndUnknownOperations) {
  double value = 100;
  EXPECT_EQ(dateinc(&value, 2.5, 0), 0);
  EXPECT_EQ(value, 102.5);
  EXPECT_EQ(dateinc(&value, 1, 8), 0);
  EXPECT_EQ(dateinc(&value, 1, 49), 0);
  EXPECT_EQ(dateinc(&value, 1, 12), 0);
  EXPECT_EQ(value, 102.5);
}

TEST(DateInc, CalendarStepByClassifiedIncrement) {
  unsigned unit = 99;
  double value = date_value(2021, 1, 31, 12);
  dateinc(&value, 30, 1, &unit);
  EXPECT_EQ(unit, 6u);
  EXPECT_EQ(value, date_value(2021, 2, 28, 12));
  value = date_value(2021, 1, 31);
  dateinc(&value, 365, 1, &unit);
  EXPECT_EQ(unit, 8u);
  EXPECT_EQ(value, date_value(2022, 1, 31));
  value = date_value(2021, 5, 31);
  dateinc(&value, 92, 1, &unit);
  EXPECT_EQ(unit, 7u);
  EXPECT_EQ(value, date_value(2021, 8, 31));
  value = date_value(2021, 3, 31);
  dateinc(&value, -30, 1, &unit);
  EXPECT_EQ(value, date_value(2021, 2, 28));
  value = date_value(2021, 1, 1);
  dateinc(&value, 7, 1, &unit);
  EXPECT_EQ(unit, 0u);
  EXPECT_EQ(value, date_value(2021, 1, 8));
}

TEST(DateInc, DivideIncrement) {
  double value = 0;
  unsigned count = 4;
  EXPECT_EQ(dateinc(&value, 365, 2, &count), 7);  // a year in 4: one quarter
  EXPECT_EQ(value, 1.0);
  count = 6;
  EXPECT_EQ(dateinc(&value, 365, 2, &count), 6);  // in 6: two months
  EXPECT_EQ(value, 2.0);
  count = 8;
  EXPECT_EQ(dateinc(&value, 365, 2, &count), 7);  // 8 divides nowhere: half a quarter
  EXPECT_EQ(value, 0.5);
  count = 3;
  EXPECT_EQ(dateinc(&value, 30, 2, &count), 6);  // a month in 3
  EXPECT_EQ(value, 1.0 / 3);
  count = 2;
  EXPECT_EQ(dateinc(&value, 5, 2, &count), 0);  // not a calendar unit
  count = 0;
  EXPECT_EQ(dateinc(&value, 365, 2, &count), 0);
}

TEST(DateInc, FractionalCalendarStep) {
  unsigned months = 6;
  double value = date_value(2021, 1, 1);
  dateinc(&value, 1.5, 3, &months);  // halfway from 1 February to 1 March
  EXPECT_EQ(value, date_value(2021, 2, 15));
  value = date_value(2021, 1, 1);
  dateinc(&value, 2, 3, &months);
  EXPECT_EQ(value, date_value(2021, 3, 1));
  unsigned days = 4;
  value = 10;
  dateinc(&value, 1.5, 3, &days);
  EXPECT_EQ(value, 11.5);
  unsigned hours = 3;
  value = 10;
  dateinc(&value, 12, 3, &hours);
  EXPECT_EQ(value, 10.5);
}

TEST(DateInc, SnapIncrement) {
  unsigned code = 99;
  double value = 6.5;
  dateinc(&value, 0, 4, &code);
  EXPECT_EQ(value, 7.0);
  EXPECT_EQ(code, 16u);
  value = -29;
  dateinc(&value, 0, 4, &code);
  EXPECT_EQ(value, -31.0);
  EXPECT_EQ(code, 32u);
  value = 80;
  dateinc(&value, 0, 4, &code);
  EXPECT_EQ(value, 91.0);
  EXPECT_EQ(code, 64u);
  value = 200;
  dateinc(&value, 0, 4, &code);
  EXPECT_EQ(value, 200.0);
  EXPECT_EQ(code, 0u);
}

TEST(DateInc, QueryWeekdayAndDayOfMonth) {
  double value = date_value(2024, 2, 29, 12);  // a Thursday
  double slot = 0;
  unsigned code = 16;
  EXPECT_EQ(KILNUTIL_dateinc(&value, &slot, 5, &code), 16);
  int answer = 0;
  std::memcpy(&answer, &slot, sizeof answer);
  EXPECT_EQ(answer, 4);
  code = 32;
  EXPECT_EQ(KILNUTIL_dateinc(&value, &slot, 5, &code), 32);
  std::memcpy(&answer, &slot, sizeof answer);
  EXPECT_EQ(answer, 29);
  code = 0x10007;
  EXPECT_EQ(KILNUTIL_dateinc(&value, &slot, 5, &code), 7);
  std::memcpy(&answer, &slot, sizeof answer);
  EXPECT_EQ(answer, 0);
}

TEST(DateInc, MoveToWeekday) {
  double value = date_value(2024, 2, 29, 12);  // Thursday
  EXPECT_EQ(dateinc(&value, int_argument(1), 6), 0);
  EXPECT_EQ(value, date_value(2024, 2, 26, 12));  // Monday of that week
  dateinc(&value, int_argument(6), 6);
  EXPECT_EQ(value, date_value(2024, 3, 2, 12));
}

TEST(DateInc, DayWeekdayOrDateFromText) {
  double value = date_value(2024, 2, 29, 12);
  char day[] = "3";
  KILNUTIL_dateinc(&value, reinterpret_cast<double*>(day), 7, nullptr);
  EXPECT_EQ(value, date_value(2024, 2, 3));
  char weekday[] = "friday";
  KILNUTIL_dateinc(&value, reinterpret_cast<double*>(weekday), 7, nullptr);  // 3 Feb is a Saturday
  EXPECT_EQ(value, date_value(2024, 2, 2));
  char abbreviation[] = "Sun";
  KILNUTIL_dateinc(&value, reinterpret_cast<double*>(abbreviation), 7, nullptr);
  EXPECT_EQ(value, date_value(2024, 1, 28));
  char date[] = "2023-07-14 08:30";
  KILNUTIL_dateinc(&value, reinterpret_cast<double*>(date), 7, nullptr);
  EXPECT_EQ(value, date_value(2023, 7, 14, 8, 30));
  char nonsense[] = "soon";
  KILNUTIL_dateinc(&value, reinterpret_cast<double*>(nonsense), 7, nullptr);
  EXPECT_EQ(value, date_value(2023, 7, 14, 8, 30));
}

TEST(DateInc, MoveToDayOfMonth) {
  double value = date_value(2021, 12, 25, 9);
  dateinc(&value, int_argument(5), 9);  // 25 - 5 > 17: next month
  EXPECT_EQ(value, date_value(2022, 1, 5, 9));
  value = date_value(2021, 12, 20, 9);
  dateinc(&value, int_argument(5), 9);
  EXPECT_EQ(value, date_value(2021, 12, 5, 9));
  value = date_value(2021, 12, 20, 9);
  dateinc(&value, int_argument(0), 9);  // 20 - 0 > 17, day kept
  EXPECT_EQ(value, date_value(2022, 1, 20, 9));

  value = date_value(2021, 12, 20, 9);
  dateinc(&value, int_argument(4), 10);  // 16 > 15: first of the next month
  EXPECT_EQ(value, date_value(2022, 1, 1, 9));
  value = date_value(2021, 12, 20, 9);
  dateinc(&value, int_argument(5), 10);
  EXPECT_EQ(value, date_value(2021, 12, 1, 9));
}

TEST(DateInc, LeapDayTest) {
  double value = date_value(2024, 2, 29, 12);
  EXPECT_EQ(dateinc(&value, 0, 11), 1);
  value = date_value(2023, 2, 28);
  EXPECT_EQ(dateinc(&value, 0, 11), 0);
}

TEST(DateText, IsoDates) {
  EXPECT_EQ(KILNUTIL_str2date("2000-01-01"), 2451544.0);
  EXPECT_EQ(KILNUTIL_str2date(" 2000-01-01T12:00 "), 2451544.5);
  EXPECT_DOUBLE_EQ(KILNUTIL_str2date("2000-01-01 00:00:01.5"), 2451544.0 + 1.5 / 86400);
  EXPECT_EQ(KILNUTIL_str2date("2000-02-30"), KILNUTIL_NANUM);
  EXPECT_EQ(KILNUTIL_str2date("2000-1-01"), KILNUTIL_NANUM);
  EXPECT_EQ(KILNUTIL_str2date("2000-01-01 24:00"), KILNUTIL_NANUM);
  EXPECT_EQ(KILNUTIL_str2date("2000-01-01x"), KILNUTIL_NANUM);
  EXPECT_EQ(KILNUTIL_str2date("0099-01-01"), KILNUTIL_NANUM);
  EXPECT_EQ(KILNUTIL_str2date(nullptr), KILNUTIL_NANUM);
}

}  // namespace
