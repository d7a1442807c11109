/* kilnutil math: exported interface of the math subsystem. */
#ifndef KILNUTIL_MATH_H
#define KILNUTIL_MATH_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_MATH_H */
