// The exposed search of a narrow text, its control calls, and the
// process-wide state of the exposed search: the escape switch and the last
// scan position.
#include "text/exposed_search.h"

#include "frame/relaxed.h"
#include "frame/settings.h"

#include <kilnutil/text.h>

namespace kiln::text {

namespace {

kiln::frame::Relaxed<int> g_escape_switch{0};                     // 0: backslashes escape; 1: they are ordinary
kiln::frame::Relaxed<const char*> g_last_scan_position{nullptr};  // see last_scan_position()

constexpr int kSaveAndDisableEscapes = KILNUTIL_EXPOSED_SAVE_AND_DISABLE_ESCAPES;
constexpr int kRestoreEscapes = KILNUTIL_EXPOSED_RESTORE_ESCAPES;

const char* control_call(int target, int* status) {
  if (target == kSaveAndDisableEscapes) {
    if (status != nullptr) *status = g_escape_switch.load();
    g_escape_switch.store(1);
  } else if (target == kRestoreEscapes && status != nullptr) {
    g_escape_switch.store(*status);
  }
  return g_last_scan_position.load();
}

}  // namespace

ScanRules scan_rules(unsigned flags, bool loc) {
  ScanRules rules;
  if (!loc && frame::parenth_use_angle_brackets() == 0) flags |= kNoAngleBrackets;
  rules.pairs = static_cast<unsigned char>(~(flags >> 24) & 0xF);
  if (loc) {
    rules.single_quote = !(flags & kNoSingleQuote);
    rules.double_quote = !(flags & kNoDoubleQuote);
    rules.single_quote_first_only = (flags & kSingleQuoteFirstOnly) != 0;
  }
  rules.skip_numbers = !(flags & kKeepNumbers);
  rules.escapes = g_escape_switch.load() == 0;
  return rules;
}

int escape_switch() { return g_escape_switch.load(); }

const char* last_scan_position() { return g_last_scan_position.load(); }

void record_scan(const char* text, const char* first_skipped) {
  g_last_scan_position.store(first_skipped != nullptr ? first_skipped : text);
}

const char* exposed_char(const char* text, int target, unsigned flags, int* status, bool loc, const char* end) {
  if (status != nullptr) *status = 0;
  const char* first_skipped = nullptr;
  const char* hit = find_exposed(text, target, flags, scan_rules(flags, loc), end, status, &first_skipped);
  record_scan(text, first_skipped);
  return hit;
}

const char* exposed_search_or_control(const char* text, int target, unsigned flags, int* status, bool loc,
                                      const char* end) {
  if (status != nullptr) *status = 0;
  if (text == nullptr) return control_call(target, status);
  return exposed_char(text, target, flags, status, loc, end);
}

}  // namespace kiln::text
