/* kilnutil color: exported interface of the color subsystem. */
#ifndef KILNUTIL_COLOR_H
#define KILNUTIL_COLOR_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_COLOR_H */
