/* kilnutil files: exported interface of the files subsystem. */
#ifndef KILNUTIL_FILES_H
#define KILNUTIL_FILES_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_FILES_H */
