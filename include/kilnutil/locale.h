/* kilnutil locale: the user-interface language (English, German, Japanese,
 * Chinese), the stored choice, and the thread language that follows it.
 *
 * Language index: 1 English "E", 2 German "G", 3 Japanese "J", 4 Chinese "C";
 * 0 undetermined; 255 not yet determined. The stored choice is the key
 * Language in section [General] of settings.ini in $KILNUTIL_CONFIG_DIR (else
 * $XDG_CONFIG_HOME/kilnutil, else ~/.config/kilnutil); without it, the
 * language of the process locale (LC_ALL, LC_MESSAGES, LANG) decides. */
#ifndef KILNUTIL_LOCALE_H
#define KILNUTIL_LOCALE_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

#define KILNUTIL_LANGUAGE_UNDETERMINED 0
#define KILNUTIL_LANGUAGE_ENGLISH 1
#define KILNUTIL_LANGUAGE_GERMAN 2
#define KILNUTIL_LANGUAGE_JAPANESE 3
#define KILNUTIL_LANGUAGE_CHINESE 4
#define KILNUTIL_LANGUAGE_NOT_DETERMINED 255
#define KILNUTIL_LANGUAGE_UNKNOWN_NAME 0xFFFFFFFFu /* KILNUTIL_get_res_language_index */
#define KILNUTIL_LANGUAGE_CURRENT (-1)             /* index argument: the language in use */
#define KILNUTIL_LANGUAGE_ROOT_PATH 0xFFFFFFFFu    /* KILNUTIL_GetDefLocalPath: the folder above */
#define KILNUTIL_CHARSET_SHIFTJIS 128

/* get non-zero: the resource language (determined on first use); get 0:
 * stores index, sets the string-process code page to match and returns the
 * previous index. */
KILNUTIL_API unsigned char KILNUTIL_ResourceLanguageIndex(unsigned char index, int get);
/* The user language, determined on first use (kept apart from the resource
 * language). */
KILNUTIL_API unsigned char KILNUTIL_UserLanguageIndex(void);
/* current/stored (optional, 2 bytes): the letter in use and the stored
 * letter, written when known. A non-empty text whose first character is a
 * language letter stores that letter. 1 when text was given and not empty. */
KILNUTIL_API int KILNUTIL_SetResourceLang(const char* text, char* current, char* stored);
/* Makes the thread language follow the resource language; returns the
 * language identifier now in force. */
KILNUTIL_API unsigned int KILNUTIL_setup_resource_language(void);
/* 0x0409, 0x0407, 0x0411, 0x0804 for 1 to 4 (negative: the resource
 * language); 0 otherwise. */
KILNUTIL_API unsigned short KILNUTIL_GetResourceLanguageIDEx(int index);
/* by_name 0: by first letter (exact; unknown 255); otherwise by name, case
 * blind (unknown KILNUTIL_LANGUAGE_UNKNOWN_NAME). Null or empty text:
 * KILNUTIL_LANGUAGE_UNKNOWN_NAME. */
KILNUTIL_API unsigned int KILNUTIL_get_res_language_index(const char* text, int by_name);
/* The letter of index (-1: the user language when user is set, else the
 * resource language); "E" for anything unknown. */
KILNUTIL_API const char* KILNUTIL_language_character(int index, int user);
/* The name of the resource language; "English" for anything unknown. */
KILNUTIL_API const char* KILNUTIL_language_str(void);
/* KILNUTIL_CHARSET_SHIFTJIS for Japanese, else 0. */
KILNUTIL_API int KILNUTIL_language_charset(void);
/* Writes "Localization\X\" for the index's letter (E for anything unknown),
 * "Localization\" for KILNUTIL_LANGUAGE_ROOT_PATH, within size bytes; returns
 * index. */
KILNUTIL_API unsigned int KILNUTIL_GetDefLocalPath(char* buffer, int size, unsigned int index);

KILNUTIL_END_C

#endif /* KILNUTIL_LOCALE_H */
