// The broken-down time record: filled with the time now, checked, or cut to
// its date.
#include "datetime/calendar.h"
#include "platform/clock.h"

#include <kilnutil/datetime.h>

using namespace kiln::datetime;

namespace {

constexpr int kFillWithNow = 1;
constexpr int kClearTimeOfDay = 16;

KilnTm record_of_now() {
  const SYSTEMTIME now = kiln::platform::local_time();
  KilnTm r{};
  r.tm_sec = now.wSecond;
  r.tm_min = now.wMinute;
  r.tm_hour = now.wHour;
  r.tm_mday = now.wDay;
  r.tm_mon = now.wMonth - 1;
  r.tm_year = now.wYear;
  r.tm_wday = now.wDayOfWeek;
  r.tm_yday = static_cast<int>(serial_day(now.wYear, now.wMonth, now.wDay) - serial_day(now.wYear, 1, 1));
  return r;
}

// Replaces each bad date field with today's; false when any was bad.
bool repair_date(KilnTm* record) {
  const KilnTm today = record_of_now();
  bool valid = true;
  if (record->tm_mon < 0 || record->tm_mon > 11) {
    record->tm_mon = today.tm_mon;
    valid = false;
  }
  if (record->tm_mday < 1 || record->tm_mday > 31) {
    record->tm_mday = today.tm_mday;
    valid = false;
  }
  if (record->tm_year < 0 || record->tm_year > kMaxYear) {
    record->tm_year = today.tm_year;
    valid = false;
  }
  return valid;
}

void clear_time_of_day(KilnTm* record) {
  record->tm_sec = 0;
  record->tm_min = 0;
  record->tm_hour = 0;
  record->tm_isdst = 0;
}

}  // namespace

int DateTime_CheckDate(KilnTm* record, int flags) {
  if (record == nullptr) return 0;
  int result = 1;
  if (flags & kFillWithNow) {
    *record = record_of_now();
  } else if (!repair_date(record)) {
    result = 0;
  }
  if (flags & kClearTimeOfDay) clear_time_of_day(record);
  return result;
}

void DateTime_ResetTimeOfDay(KilnTm* record) {
  if (record != nullptr) clear_time_of_day(record);
}
