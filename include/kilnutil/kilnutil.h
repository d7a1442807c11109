/* kilnutil: the whole exported interface. Include this one header from C or C++. */
#ifndef KILNUTIL_KILNUTIL_H
#define KILNUTIL_KILNUTIL_H

#include "kilnutil/export.h"
#include "kilnutil/version.h"
#include "kilnutil/platform.h"
#include "kilnutil/frame.h"
#include "kilnutil/unicode.h"
#include "kilnutil/text.h"
#include "kilnutil/numeric.h"
#include "kilnutil/datetime.h"
#include "kilnutil/import.h"
#include "kilnutil/math.h"
#include "kilnutil/color.h"
#include "kilnutil/locale.h"
#include "kilnutil/files.h"

#endif /* KILNUTIL_KILNUTIL_H */
