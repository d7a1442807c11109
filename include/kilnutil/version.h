/* kilnutil version (the build reads it from here too). */
#ifndef KILNUTIL_VERSION_H
#define KILNUTIL_VERSION_H

#include "kilnutil/export.h"

#define KILNUTIL_VERSION_MAJOR 1
#define KILNUTIL_VERSION_MINOR 0
#define KILNUTIL_VERSION_PATCH 0
#define KILNUTIL_VERSION_STRING "1.0.0"

#endif /* KILNUTIL_VERSION_H */
