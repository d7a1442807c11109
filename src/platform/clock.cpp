// Local time (GetLocalTime) and the tick count (GetTickCount) on POSIX clocks.
#include "platform/clock.h"

#include <ctime>

namespace kiln::platform {

SYSTEMTIME local_time() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm fields{};
  localtime_r(&now.tv_sec, &fields);
  SYSTEMTIME time{};
  time.wYear = static_cast<unsigned short>(fields.tm_year + 1900);
  time.wMonth = static_cast<unsigned short>(fields.tm_mon + 1);
  time.wDayOfWeek = static_cast<unsigned short>(fields.tm_wday);
  time.wDay = static_cast<unsigned short>(fields.tm_mday);
  time.wHour = static_cast<unsigned short>(fields.tm_hour);
  time.wMinute = static_cast<unsigned short>(fields.tm_min);
  time.wSecond = static_cast<unsigned short>(fields.tm_sec > 59 ? 59 : fields.tm_sec);
  time.wMilliseconds = static_cast<unsigned short>(now.tv_nsec / 1000000);
  return time;
}

std::uint32_t tick_count() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  const unsigned long long milliseconds =
      static_cast<unsigned long long>(now.tv_sec) * 1000ull + static_cast<unsigned long long>(now.tv_nsec) / 1000000ull;
  return static_cast<std::uint32_t>(milliseconds);
}

}  // namespace kiln::platform
