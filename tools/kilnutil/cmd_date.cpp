// kilnutil date: date values in any date system and back, conversion of a
// value between two systems, and calendar steps.
//
//   date [--system NAME] DATE                  the date value of DATE
//   date [--system NAME] --to-date VALUE       the date of a value
//   date --convert VALUE FROM TO               VALUE of system FROM in system TO
//   date [--system NAME] --step N UNIT DATE    DATE stepped by N days (d),
//                                              months (m), quarters (q) or years (y)
//
// DATE is "yyyy-mm-dd[ hh:mm[:ss[.fff]]]"; NAME is a date-system name
// ("Vela-JulianDate" by default, "JulianDate", "1899-12-30", "1904", "6PM", ...).
#include "commands.h"

#include <kilnutil/datetime.h>
#include <kilnutil/frame.h>
#include <kilnutil/numeric.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace kilnutil_cli {
namespace {

constexpr const char* kDateUsage =
    "date [--system NAME] DATE | [--system NAME] --to-date VALUE | --convert VALUE FROM TO | "
    "[--system NAME] --step N d|m|q|y DATE";

// KILNUTIL_dateinc's fractional-step operation and its unit codes.
constexpr unsigned short kStepOperation = 3;
unsigned step_unit_code(char unit) {
  switch (unit) {
    case 'd': return 4;
    case 'm': return 6;
    case 'q': return 7;
    case 'y': return 8;
    default: return 0;
  }
}

bool parse_number(const char* argument, double* value) {
  std::string text = argument;
  return KILNUTIL_cvtstr2real(text.data(), value) != 0;
}

// A date value of the active (default) system as "yyyy-mm-dd hh:mm:ss.fff".
std::string format_date(double active_value) {
  SYSTEMTIME t{};
  double milliseconds = 0;
  if (!JulianDateToSystemTime(&active_value, &t, &milliseconds, 3)) return {};
  char text[40];
  std::snprintf(text, sizeof text, "%04u-%02u-%02u %02u:%02u:%02u.%03u", t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute,
                t.wSecond, static_cast<unsigned>(milliseconds));
  return text;
}

struct DateCommand {
  const char* system = "Vela-JulianDate";
  Args rest;
};

int to_value(const DateCommand& c) {
  if (c.rest.size() != 1) return usage_error(kDateUsage);
  const double active = KILNUTIL_str2date(c.rest[0]);
  if (is_missing_value(active)) return input_error(std::string("not a date: ") + c.rest[0]);
  std::printf("%.17g\n", active + GetDateOffset("Active", c.system));
  return kOk;
}

int to_date(const DateCommand& c) {
  double value = 0;
  if (c.rest.size() != 1 || !parse_number(c.rest[0], &value)) return usage_error(kDateUsage);
  const std::string date = format_date(value + GetDateOffset(c.system, "Active"));
  if (date.empty()) return input_error(std::string("outside the calendar: ") + c.rest[0]);
  std::printf("%s\n", date.c_str());
  return kOk;
}

int convert(Args rest) {
  double value = 0;
  if (rest.size() != 3 || !parse_number(rest[0], &value)) return usage_error(kDateUsage);
  const double offset = GetDateOffset(rest[1], rest[2]);
  if (is_missing_value(offset)) return usage_error("unknown date system");
  std::printf("%.17g\n", value + offset);
  return kOk;
}

int step(const DateCommand& c) {
  double count = 0;
  if (c.rest.size() != 3 || !parse_number(c.rest[0], &count) || std::strlen(c.rest[1]) != 1)
    return usage_error(kDateUsage);
  unsigned unit = step_unit_code(c.rest[1][0]);
  if (unit == 0) return usage_error("the unit is d, m, q or y");
  double value = KILNUTIL_str2date(c.rest[2]);
  if (is_missing_value(value)) return input_error(std::string("not a date: ") + c.rest[2]);
  KILNUTIL_dateinc(&value, &count, kStepOperation, &unit);
  const std::string date = format_date(value);
  if (date.empty()) return input_error("the step leaves the calendar");
  std::printf("%s\t%.17g\n", date.c_str(), value + GetDateOffset("Active", c.system));
  return kOk;
}

}  // namespace

int run_date(Args args) {
  DateCommand c;
  c.rest = args;
  if (c.rest.size() >= 2 && std::strcmp(c.rest[0], "--system") == 0) {
    c.system = c.rest[1];
    c.rest = c.rest.subspan(2);
    if (is_missing_value(GetDateOffset("Active", c.system)))
      return usage_error(std::string("unknown date system: ") + c.system);
  }
  if (c.rest.empty()) return usage_error(kDateUsage);
  const std::string mode = c.rest[0];
  if (mode == "--convert")
    return c.system == std::string("Vela-JulianDate") ? convert(c.rest.subspan(1)) : usage_error(kDateUsage);
  if (mode == "--to-date") return to_date({c.system, c.rest.subspan(1)});
  if (mode == "--step") return step({c.system, c.rest.subspan(1)});
  return to_value(c);
}

}  // namespace kilnutil_cli
