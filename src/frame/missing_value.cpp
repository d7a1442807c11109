// The missing value: the one double that stands for "no value" everywhere.
#include "frame/missing_value.h"

extern "C" {

double get_missing_value(void) { return kiln::frame::kMissingValue; }

int is_missing_value(double v) { return kiln::frame::is_missing(v) ? 1 : 0; }

}  // extern "C"
