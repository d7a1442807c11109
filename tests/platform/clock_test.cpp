#include "platform/clock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

TEST(Clock, LocalTimeMatchesTheCLibrary) {
  const std::time_t before = std::time(nullptr);
  const SYSTEMTIME now = kiln::platform::local_time();
  std::tm fields{};
  localtime_r(&before, &fields);
  EXPECT_EQ(now.wYear, fields.tm_year + 1900);
  EXPECT_GE(now.wMonth, 1);
  EXPECT_LE(now.wMonth, 12);
  EXPECT_LE(now.wDayOfWeek, 6);
  EXPECT_LE(now.wMilliseconds, 999);
}

TEST(Clock, TickCountNeverGoesBack) {
  const auto first = kiln::platform::tick_count();
  const auto second = kiln::platform::tick_count();
  EXPECT_LE(static_cast<std::uint32_t>(second - first), 1000u);
}

}  // namespace
