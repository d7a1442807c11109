// Date systems by code and by name.
#include "date_helpers.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>

#include <gtest/gtest.h>

#include <cmath>
#include <utility>

namespace {

using namespace date_test;

// Unknown codes and modes answer the active offset.
TEST(DateSystems, OffsetsByCode) {
  const std::pair<int, double> cases[] = {
      {0, 2415018.0},    {1, 2415018.5},  {101, 0.0},
      {1904, -1462.0},   {1900, -2.0},    {2099, -static_cast<double>(serial_of(2099, 1, 1))},
      {2100, 2415018.0}, {-1, 2415018.0},
  };
  for (const auto& [code, offset] : cases) EXPECT_EQ(DateTime_DateSys(0, code), offset) << code;
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

// Names ignore case; a null or empty name, like "Active", is the active
// system; years outside 1900..2099 and other names are unknown.
TEST(DateSystems, OffsetsByName) {
  const struct {
    const char* from;
    const char* to;
    double offset;
  } cases[] = {
      {"1899-12-30", "JulianDate", 2415018.5},
      {"JulianDate", "julianDATE", 0.0},
      {"1899", "JulianDate", KILNUTIL_NANUM},
      {"1904", "1899-12-30", 1462.0},
      {"vela-juliandate", "1904", -1462.0 - 2415018.0},
      {nullptr, "JulianDate", 0.5},
      {"", "Active", 0.0},
      {"Active", "Vela-JulianDate", 0.0},
      {"1904x", "Active", KILNUTIL_NANUM},
      {"x1904", "Active", KILNUTIL_NANUM},
      {"2100", "Active", KILNUTIL_NANUM},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(GetDateOffset(c.from, c.to), c.offset) << (c.from ? c.from : "(null)") << " to " << c.to;
  }
}

}  // namespace
