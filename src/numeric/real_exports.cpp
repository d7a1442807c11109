// Real numbers in text: the exported forms.
#include "frame/missing_value.h"
#include "numeric/real_parser.h"

#include <kilnutil/numeric.h>

using namespace kiln::numeric;

extern "C" {

unsigned int KILNUTIL_cvtstr2real_ex(char* text, double* value, unsigned int flags, int* integer_part) {
  return convert_real_text(text, value, flags, integer_part);
}

unsigned int KILNUTIL_cvtstr2real(char* text, double* value) {
  return convert_real_text(text, value, kRealStrict, nullptr);
}

double KILNUTIL_str2real(char* text) {
  double value = 0.0;
  return convert_real_text(text, &value, kRealStrict, nullptr) ? value : kiln::frame::kMissingValue;
}

double KILNUTIL_dbStr2Real(char* text) {
  double value = 0.0;
  return convert_real_text(text, &value, kRealStrict, nullptr) ? value : 0.0;
}

}  // extern "C"
