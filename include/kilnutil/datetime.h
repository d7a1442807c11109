/* kilnutil datetime: exported interface of the datetime subsystem. */
#ifndef KILNUTIL_DATETIME_H
#define KILNUTIL_DATETIME_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_DATETIME_H */
