/* kilnutil locale: exported interface of the locale subsystem. */
#ifndef KILNUTIL_LOCALE_H
#define KILNUTIL_LOCALE_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_LOCALE_H */
