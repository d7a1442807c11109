// The missing value: the one double that stands for "no value" everywhere.
#include <kilnutil/frame.h>

extern "C" {

double get_missing_value(void) { return KILNUTIL_NANUM; }

int is_missing_value(double v) { return v == KILNUTIL_NANUM ? 1 : 0; }

}  // extern "C"
