// Date systems by code and by name.
#include "date_helpers.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace date_test;

TEST(DateSystems, OffsetsByCode) {
  EXPECT_EQ(DateTime_DateSys(0, 0), 2415018.0);
  EXPECT_EQ(DateTime_DateSys(0, 1), 2415018.5);
  EXPECT_EQ(DateTime_DateSys(0, 101), 0.0);
  EXPECT_EQ(DateTime_DateSys(0, 1904), -1462.0);
  EXPECT_EQ(DateTime_DateSys(0, 1900), -2.0);
  EXPECT_EQ(DateTime_DateSys(0, 2099), -static_cast<double>(serial_of(2099, 1, 1)));
  EXPECT_EQ(DateTime_DateSys(0, 2100), 2415018.0);  // unknown: the active offset
  EXPECT_EQ(DateTime_DateSys(0, -1), 2415018.0);
  EXPECT_EQ(DateTime_DateSys(7, 1), 2415018.0);
}

TEST(DateSystems, ActivatingASystem) {
  DateSystemScope scope(1);
  EXPECT_EQ(DateTime_DateSys(2, 0), 2415018.5);
  EXPECT_EQ(DateTime_DateSys(1, 55), 2415018.5);  // unknown code: stays
  EXPECT_EQ(DateTime_DateSys(1, 101), 0.0);
  EXPECT_EQ(DateTime_DateSys(0, -5), 0.0);
}

TEST(DateSystems, SixPmIsTodayAtSixOClock) {
  const double offset = DateTime_DateSys(0, 100);
  const double today = get_current_date(true) - 2415018.0;
  EXPECT_EQ(offset, 1.0 - (today + 0.75));
  EXPECT_EQ(offset, std::floor(offset) + 0.25);
}

TEST(DateSystems, OffsetsByName) {
  EXPECT_EQ(GetDateOffset("1899-12-30", "JulianDate"), 2415018.5);
  EXPECT_EQ(GetDateOffset("JulianDate", "julianDATE"), 0.0);
  EXPECT_EQ(GetDateOffset("1899", "JulianDate"), KILNUTIL_NANUM);
  EXPECT_EQ(GetDateOffset("1904", "1899-12-30"), 1462.0);
  EXPECT_EQ(GetDateOffset("vela-juliandate", "1904"), -1462.0 - 2415018.0);
  EXPECT_EQ(GetDateOffset(nullptr, "JulianDate"), 0.5);
  EXPECT_EQ(GetDateOffset("", "Active"), 0.0);
  EXPECT_EQ(GetDateOffset("Active", "Vela-JulianDate"), 0.0);
  EXPECT_EQ(GetDateOffset("1904x", "Active"), KILNUTIL_NANUM);
  EXPECT_EQ(GetDateOffset("x1904", "Active"), KILNUTIL_NANUM);
  EXPECT_EQ(GetDateOffset("2100", "Active"), KILNUTIL_NANUM);
}

}  // namespace
