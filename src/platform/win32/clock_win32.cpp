#include "platform/clock.h"

namespace kiln::platform {

SYSTEMTIME local_time() {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return time;
}

std::uint32_t tick_count() { return GetTickCount(); }

}  // namespace kiln::platform
