/* kilnutil import: exported interface of the import subsystem. */
#ifndef KILNUTIL_IMPORT_H
#define KILNUTIL_IMPORT_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_IMPORT_H */
