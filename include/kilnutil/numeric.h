/* kilnutil numeric: exported interface of the numeric subsystem. */
#ifndef KILNUTIL_NUMERIC_H
#define KILNUTIL_NUMERIC_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_NUMERIC_H */
