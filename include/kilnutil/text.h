/* kilnutil text: exported interface of the text subsystem. */
#ifndef KILNUTIL_TEXT_H
#define KILNUTIL_TEXT_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

KILNUTIL_END_C

#endif /* KILNUTIL_TEXT_H */
