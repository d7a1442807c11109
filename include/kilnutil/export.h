/* kilnutil: export macro, linkage guards and the character types shared by
 * every public header. */
#ifndef KILNUTIL_EXPORT_H
#define KILNUTIL_EXPORT_H

#if defined(_WIN32)
#  if defined(KILNUTIL_EXPORTED_BY_DEF_FILE)
/* Exported under another name by the DLL's .def file. */
#    define KILNUTIL_API
#  elif defined(KILNUTIL_BUILDING)
#    define KILNUTIL_API __declspec(dllexport)
#  else
#    define KILNUTIL_API __declspec(dllimport)
#  endif
#else
#  define KILNUTIL_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#  define KILNUTIL_BEGIN_C extern "C" {
#  define KILNUTIL_END_C }
#else
#  define KILNUTIL_BEGIN_C
#  define KILNUTIL_END_C
#endif

/* One UTF-16 code unit. Linux wchar_t is 32-bit, so it is never used for UTF-16. */
#if defined(_WIN32)
#  include <wchar.h>
typedef wchar_t KILN_WCHAR;
#elif defined(__cplusplus)
typedef char16_t KILN_WCHAR;
#else
#  include <uchar.h>
typedef char16_t KILN_WCHAR;
#endif

/* A KILN_WCHAR string or character literal: KILN_TEXT("abc"). */
#if defined(_WIN32)
#  define KILN_TEXT(literal) L##literal
#else
#  define KILN_TEXT(literal) u##literal
#endif

#endif /* KILNUTIL_EXPORT_H */
