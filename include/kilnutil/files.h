/* kilnutil files: sectioned text files (a section opens with a header line
 * holding its name in square brackets), the path syntax check and path
 * splitting. */
#ifndef KILNUTIL_FILES_H
#define KILNUTIL_FILES_H

#include "kilnutil/export.h"
#include "kilnutil/platform.h"

KILNUTIL_BEGIN_C

/* ---- Section headers. */
/* The "[" of a header line ("[name]" after optional white space, with none of
 * "!", "(", ")", "=" behind the closing bracket before a "//" comment), or
 * null; *end (optional) receives the closing bracket. */
KILNUTIL_API char* KILNUTIL_find_section_name(const char* line, char** end);
/* The header's name, trimmed of spaces and tabs in place (the closing bracket
 * becomes a NUL), or null when the line is no header. */
KILNUTIL_API char* KILNUTIL_get_file_section_name(char* line);

/* ---- Reading a section of a text file as UTF-8 text in a global memory
 * block the caller frees with GlobalFree. name null: the whole file; name "":
 * the preamble before the first header; otherwise the named section (names
 * compare without regard to ASCII case), which also sets *status and
 * *line_index (the 0-based line of its header, KILNUTIL_SECTION_NO_LINE when
 * none). */
#define KILNUTIL_SECTION_OK 0        /* found (or an empty section: null) */
#define KILNUTIL_SECTION_CANT_OPEN 1 /* the file can't be opened for reading */
#define KILNUTIL_SECTION_NOT_FOUND 2 /* no section of that name */
#define KILNUTIL_SECTION_NO_LINE 0xFFFFFFFFu
#define KILNUTIL_SECTION_NO_CONVERSION 0x1 /* the file's bytes as they are, past a UTF-8 mark */
#define KILNUTIL_SECTION_LINE_BYTES 1200   /* named reading's line buffer */
KILNUTIL_API HGLOBAL KILNUTIL_GetFileSectionEx(const char* path, const char* name, unsigned int* status,
                                               unsigned int* line_index, unsigned int flags);
KILNUTIL_API HGLOBAL KILNUTIL_GetFileSection(const char* path, const char* name, unsigned int* status);

/* ---- Path syntax. 1 when the path is a valid absolute drive or UNC path
 * (*code, optional, receives the code below), else 0. */
#define KILNUTIL_PATH_DRIVE 1
#define KILNUTIL_PATH_UNC 2
#define KILNUTIL_PATH_NOT_ABSOLUTE (-1)     /* neither "X:" nor two leading backslashes */
#define KILNUTIL_PATH_BAD_SERVER (-2)       /* invalid UNC server name */
#define KILNUTIL_PATH_BAD_CHARACTER (-3)    /* a forbidden character in the rest */
#define KILNUTIL_PATH_DOUBLE_BACKSLASH (-4) /* two consecutive backslashes in the rest */
#define KILNUTIL_PATH_DRIVE_RELATIVE (-5)   /* "X:" without a backslash, yet one later */
KILNUTIL_API int KILNUTIL_IsPathValidSyntax(const char* path, int* code);
/* Splits at the last ":" or backslash: folder (up to and including it), name
 * and (optional) extension from the last "." on. Returns folder when the path
 * holds a separator, else name. The outputs are sized by the caller: the
 * path's length plus 1 is always enough. */
KILNUTIL_API char* KILNUTIL_SeparatePath(const char* path, char* folder, char* name, char* extension);

KILNUTIL_END_C

#endif /* KILNUTIL_FILES_H */
