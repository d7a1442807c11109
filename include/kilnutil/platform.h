/* kilnutil platform types and the global-memory interface.
 *
 * On Windows these are the system's own types and functions. On POSIX the
 * library exports the global-memory functions itself, with the Windows
 * semantics (lock counts, movable blocks, zero-filled growth, GlobalFree
 * returning null on success), so that a host frees the handles the library
 * returns exactly as it does on Windows. */
#ifndef KILNUTIL_PLATFORM_H
#define KILNUTIL_PLATFORM_H

#include "kilnutil/export.h"
#include <stddef.h>

#if defined(_WIN32)
#  include <windows.h>
#else

typedef void* HGLOBAL;
typedef void* HWND;
typedef void* HINSTANCE;
typedef void* HMODULE;
typedef int BOOL;

#  define GMEM_FIXED 0x0000u
#  define GMEM_MOVEABLE 0x0002u
#  define GMEM_ZEROINIT 0x0040u
#  define GMEM_MODIFY 0x0080u
#  define GHND (GMEM_MOVEABLE | GMEM_ZEROINIT)
#  define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

/* The Windows SYSTEMTIME layout: eight unsigned 16-bit fields. */
typedef struct _SYSTEMTIME {
  unsigned short wYear;
  unsigned short wMonth;
  unsigned short wDayOfWeek;
  unsigned short wDay;
  unsigned short wHour;
  unsigned short wMinute;
  unsigned short wSecond;
  unsigned short wMilliseconds;
} SYSTEMTIME;

KILNUTIL_BEGIN_C

/* A block of `bytes` bytes. GMEM_FIXED: the handle is the block's address.
 * GMEM_MOVEABLE: an opaque handle; GlobalLock gives the address. GMEM_ZEROINIT
 * fills the block with zeros. Null when the memory cannot be had. */
KILNUTIL_API HGLOBAL GlobalAlloc(unsigned int flags, size_t bytes);
/* Resizes a block. A movable block may move; a fixed block moves only when
 * GMEM_MOVEABLE is given (otherwise growth fails and the block is kept).
 * GMEM_ZEROINIT zero-fills the growth. Null on failure, the old block intact. */
KILNUTIL_API HGLOBAL GlobalReAlloc(HGLOBAL mem, size_t bytes, unsigned int flags);
/* The block's address; for a movable block the lock count goes up by one. */
KILNUTIL_API void* GlobalLock(HGLOBAL mem);
/* Lowers a movable block's lock count; non-zero while it is still locked. */
KILNUTIL_API BOOL GlobalUnlock(HGLOBAL mem);
/* Frees the block: null on success, the handle itself when it is not one. */
KILNUTIL_API HGLOBAL GlobalFree(HGLOBAL mem);
/* The block's size in bytes as last allocated, 0 for an invalid handle. */
KILNUTIL_API size_t GlobalSize(HGLOBAL mem);

KILNUTIL_END_C

#endif /* !_WIN32 */

#endif /* KILNUTIL_PLATFORM_H */
