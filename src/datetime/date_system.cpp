// Date systems: which day is day zero of a date value. The active system's
// offset is one process-wide double, changed only by
// DateTime_DateSys(1, code).
#include "datetime/date_system.h"

#include "datetime/calendar.h"
#include "frame/relaxed.h"
#include "numeric/integer_rule.h"
#include "platform/clock.h"
#include "unicode/ascii_case.h"

#include <kilnutil/datetime.h>
#include <kilnutil/numeric.h>

namespace kiln::datetime {
namespace {

constexpr int kActiveCode = -1;
constexpr int kUnknownCode = -2;
constexpr int kDefaultCode = 0;
constexpr int kAstronomicalCode = 1;
constexpr int kSixPmCode = 100;
constexpr int kSerialCode = 101;
constexpr int kFirstYearCode = 1900;
constexpr int kLastYearCode = 2099;
constexpr double kDefaultOffset = 2415018.0;
constexpr double kSixPm = 0.75;

frame::Relaxed<double> g_active_offset{kDefaultOffset};

// Today 18:00 local time is 1.0: days since 18:00 of the day before.
double six_pm_offset() {
  const SYSTEMTIME now = platform::local_time();
  return 1.0 - (static_cast<double>(serial_day(now.wYear, now.wMonth, now.wDay)) + kSixPm);
}

bool is_year_code(int code) { return code >= kFirstYearCode && code <= kLastYearCode; }

double offset_of_code(int code) {
  switch (code) {
    case kDefaultCode: return kDefaultOffset;
    case kAstronomicalCode: return kDefaultOffset + 0.5;
    case kSixPmCode: return six_pm_offset();
    case kSerialCode: return 0.0;
    default: break;
  }
  if (is_year_code(code)) return -static_cast<double>(serial_day(code, 1, 1));
  return g_active_offset.load();
}

int code_of_name(const char* name) {
  if (name == nullptr || *name == '\0' || unicode::equal_ignoring_ascii_case(name, "Active")) return kActiveCode;
  if (unicode::equal_ignoring_ascii_case(name, "Vela-JulianDate")) return kDefaultCode;
  if (unicode::equal_ignoring_ascii_case(name, "JulianDate")) return kAstronomicalCode;
  if (unicode::equal_ignoring_ascii_case(name, "6PM")) return kSixPmCode;
  if (unicode::equal_ignoring_ascii_case(name, "1899-12-30")) return kSerialCode;
  int year = 0;
  if ((name[0] == '1' || name[0] == '2') && numeric::convert_integer_text(name, &year) && is_year_code(year))
    return year;
  return kUnknownCode;
}

}  // namespace

double active_offset() { return g_active_offset.load(); }

}  // namespace kiln::datetime

using namespace kiln::datetime;

double DateTime_DateSys(int mode, int code) {
  if (mode == 0 && code >= 0) return offset_of_code(code);
  if (mode == 1) {
    const double offset = offset_of_code(code);
    g_active_offset.store(offset);
    return offset;
  }
  return active_offset();
}

double GetDateOffset(const char* from_name, const char* to_name) {
  const int from = code_of_name(from_name);
  const int to = code_of_name(to_name);
  if (from == kUnknownCode || to == kUnknownCode) return KILNUTIL_NANUM;
  if (from == to) return 0.0;
  return offset_of_code(to) - offset_of_code(from);
}
