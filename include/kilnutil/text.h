/* kilnutil text: scanning script text.
 *
 * Text is NUL-terminated UTF-8. Positions are pointers into the caller's
 * text; functions that cut text write NULs into it; nothing allocates.
 *
 * An exposed character lies outside quoted sections (double or single
 * quotes), outside brackets and outside numeric literals. Searches keep a
 * little process-wide state (the escape switch, the last scan position, the
 * pair nesting of KILNUTIL_strchr, the enclosed-token flag): call them from
 * one thread. */
#ifndef KILNUTIL_TEXT_H
#define KILNUTIL_TEXT_H

#include "kilnutil/export.h"

KILNUTIL_BEGIN_C

/* ---- Character classes. */
/* Class of c: 2 letters, "_" and "`"; 3 digits and "."; 4 * + - / = ^;
 * 5 ( < [ {; 6 ) > ] }; 7 NUL and ";"; 8 tab, LF, CR, space (and 160 while
 * the no-break-space setting is on); 15 & and |; 16 anything else. The mask
 * of KILNUTIL_test_char_cntrl reads "(", "&", "|" as 4 and the arithmetic
 * operators and tab as 0 when it shares a bit with their modifier (1 for
 * "(", 2 operators, 4 tab, 16 "&" "|"). */
KILNUTIL_API unsigned char KILNUTIL_test_char(int c);
/* 1 for space, 9 to 13, and 160 while the no-break-space setting is on. */
KILNUTIL_API int KILNUTIL_isspace(int c);
/* 1 for the double quote, 2 for the single quote, else 0. */
KILNUTIL_API int KILNUTIL_is_quote_char(int c);
/* The pair class of an opener: 1 "(", 2 "{", 3 the double quote, 4 "[";
 * else 0. The class indexes the closer table ")", "}", double quote, "]". */
KILNUTIL_API int is_begin_quote(int c);
/* The pair class of a closer: 1 ")", 2 "}", 3 the double quote, 4 "]"; else 0. */
KILNUTIL_API int is_end_quote(int c);

/* ---- General character search. Mode bit 0 clear: c outside brackets and
 * double-quoted sections ("(" ")", "{" "}", "[" "]", one kind at a time).
 * Bit 0: plain search; with bit 1 the last occurrence. 0x4: plain, after the
 * run of c that starts the text. 0x10: plain, within the text trimmed of
 * white space at both ends. 0x20: c's other case matches too. */
#define KILNUTIL_STRCHR_EXPOSED 0x0u
#define KILNUTIL_STRCHR_PLAIN 0x1u
#define KILNUTIL_STRCHR_BACKWARD 0x2u
#define KILNUTIL_STRCHR_AFTER_LEADING_RUN 0x4u
#define KILNUTIL_STRCHR_TRIMMED 0x10u
#define KILNUTIL_STRCHR_EITHER_CASE 0x20u
KILNUTIL_API char* KILNUTIL_strchr(const char* text, int c, unsigned int mode);
/* Last c at or before from (from null: anywhere); plain. */
KILNUTIL_API char* KILNUTIL_strchr_reverse(const char* text, int c, const char* from);

/* ---- Exposed search. target 0: any white space. flags: 0x40 numbers are not
 * skipped; 0x80 case-blind; 0x100 (loc) single quote quotes only as the first
 * character; 0x1000000, 0x2000000, 0x4000000, 0x8000000: "(" ")", "{" "}",
 * "[" "]", "<" ">" are not brackets ("<" ">" never with loc 0 unless the
 * angle-bracket setting is on); 0x10000000, 0x20000000 (loc): single, double
 * quote is not a quote. *status: 0, or -1 when a quoted section is left open.
 * A position at or past end (when given) is never returned.
 * Control calls (text null) return the last scan position (the text's start,
 * or the first quoted section or number the last search skipped). target -1:
 * *status = the escape switch, then escapes are off; target -2: the escape
 * switch = *status (which the call has set to 0 first). */
#define KILNUTIL_EXPOSED_ANY_SPACE 0                   /* target */
#define KILNUTIL_EXPOSED_SAVE_AND_DISABLE_ESCAPES (-1) /* target of a control call */
#define KILNUTIL_EXPOSED_RESTORE_ESCAPES (-2)          /* target of a control call */
#define KILNUTIL_EXPOSED_KEEP_NUMBERS 0x40u
#define KILNUTIL_EXPOSED_CASE_BLIND 0x80u
#define KILNUTIL_EXPOSED_SINGLE_QUOTE_FIRST_ONLY 0x100u
#define KILNUTIL_EXPOSED_NO_PARENTHESES 0x1000000u
#define KILNUTIL_EXPOSED_NO_BRACES 0x2000000u
#define KILNUTIL_EXPOSED_NO_SQUARE_BRACKETS 0x4000000u
#define KILNUTIL_EXPOSED_NO_ANGLE_BRACKETS 0x8000000u
#define KILNUTIL_EXPOSED_NO_SINGLE_QUOTE 0x10000000u
#define KILNUTIL_EXPOSED_NO_DOUBLE_QUOTE 0x20000000u
KILNUTIL_API char* KILNUTIL_exposed_char_pos_ex_loc_ex(const char* text, int target, unsigned int flags, int* status,
                                                       int loc, const char* end);
/* The last exposed target (or the hit at which a quoted section was left open). */
KILNUTIL_API char* KILNUTIL_exposed_char_pos_from_end(const char* text, int target, int* status);
/* The first c1 of KILNUTIL_strchr mode 0 whose next byte is c2. */
KILNUTIL_API char* KILNUTIL_exposed_2_char_pos(const char* text, int c1, int c2);
/* The first exposed, stand-alone occurrence of word, case-blind. flags:
 * 0x1000 skip comments and spaces first; 0x2000 need not stand alone;
 * 0x4000 match case. */
#define KILNUTIL_WORD_SKIP_COMMENTS 0x1000u
#define KILNUTIL_WORD_ANYWHERE 0x2000u
#define KILNUTIL_WORD_MATCH_CASE 0x4000u
KILNUTIL_API char* KILNUTIL_exposed_word_pos(const char* text, const char* word, unsigned int flags);

/* ---- Brackets. */
/* The ")" (or "}") closing a "(" (or "{") open before text. *error: 0; 1 when
 * none closes it; 2 or 3 for an unclosed single or double quote. */
KILNUTIL_API char* KILNUTIL_find_end_parenthesis(const char* text, int* error);
KILNUTIL_API char* KILNUTIL_find_end_curly_brace(const char* text, int* error);
/* The opener matching the closer at closer, searched from start. When
 * colon_flag is given and 0, it becomes 1 if the first closer found is
 * followed by ":" not followed by "[". */
KILNUTIL_API char* KILNUTIL_find_matching_opening_paranthesis_ex(const char* start, const char* closer,
                                                                 unsigned int flags, int* colon_flag);
/* 0 matched; 1 a stray closer (or an opener followed by a stray closer);
 * 2 one opener left open; 8 several. *position: where. */
KILNUTIL_API int KILNUTIL_count_bracket_mismatch(const char* text, char** position, int open, int close,
                                                 unsigned int flags);
KILNUTIL_API int KILNUTIL_count_parenthesis_mismatch_ex(const char* text, char** position, unsigned int flags);
/* Over all bracket kinds and quotes: 0; 1 stray closer; 2 or 3 unclosed
 * single or double quote; 2 one opener open; 4 an opener, then a stray
 * closer; 8 several. */
KILNUTIL_API int KILNUTIL_count_quote_mismatch(const char* text, char** position);

/* ---- Stripping an enclosing pair ("(" ")", "{" "}", double quotes, "[" "]").
 * options: 1 trim leading spaces first; 2 the closer need not be last; 0x1000
 * cut a last closer even when it does not match exposed; bits 24 to 31:
 * exposed-search flags. *kind: the pair's class 1 to 4, -1 (0x1000 case),
 * -2 (no opener but a closer last), 0. Returns the inner text. */
#define KILNUTIL_INSIDE_TRIM_LEADING 0x1u
#define KILNUTIL_INSIDE_CLOSER_ANYWHERE 0x2u
#define KILNUTIL_INSIDE_CUT_LAST_CLOSER 0x1000u
#define KILNUTIL_INSIDE_SEARCH_FLAG_BITS 0xFF000000u
KILNUTIL_API char* KILNUTIL_str_inside_ex(char* text, unsigned int options, int* kind);
KILNUTIL_API char* KILNUTIL_str_inside(char* text, unsigned int options);
/* Strips pairs while there are any (*removed: 1 when one was). */
KILNUTIL_API char* KILNUTIL_text_inside_remove_quotes_ex(char* text, int* removed, unsigned int options);
KILNUTIL_API char* KILNUTIL_text_inside_remove_quotes(char* text, int* removed);
KILNUTIL_API char* KILNUTIL_text_inside_remove_quotes_even_mismatch(char* text, int* removed);

/* ---- Quoted term: copies the next sep-separated term into dest (at most
 * size - 1 bytes; size -1: the text's length), honouring quote (doubled
 * quotes are kept). Returns the position behind the next sep, or null. */
KILNUTIL_API char* KILNUTIL_next_quoted_term_ex_ex(char* dest, const char* text, int sep, int quote, int drop_quotes,
                                                   int size);
KILNUTIL_API char* KILNUTIL_next_quoted_term(char* dest, const char* text, int sep);

/* ---- Tokens and words. Destination buffers must hold the text's length + 1. */
/* The next token (delimiters: white space, + - / ; = ^; "*" stays inside); an
 * enclosing bracket or quote pair at its start is dropped. Returns the
 * position of the following token. */
KILNUTIL_API char* KILNUTIL_next_token(char* dest, const char* text);
/* 1 when the last KILNUTIL_next_token dropped an enclosing pair. */
KILNUTIL_API int KILNUTIL_next_token_enclosed(void);
/* The next white-space-delimited word; returns the position of the one after. */
KILNUTIL_API char* KILNUTIL_next_word(char* dest, const char* text);
/* Copies up to the first character of separators; returns the first
 * non-space after it, or null. */
KILNUTIL_API char* KILNUTIL_get_next_word(char* dest, const char* text, const char* separators);
/* Copies up to the first separator of the list (in list order) that occurs;
 * returns the position behind it, or the text's end. */
KILNUTIL_API char* KILNUTIL_next_token_sep(char* dest, const char* text, const char* separators);
/* First character of text in set: exposed, or anywhere with flags 0x10000. */
KILNUTIL_API char* KILNUTIL_find_any_of_characters_in_str(const char* text, const char* set, unsigned int flags);

/* ---- Statements, terms and arguments (the text is cut in place). */
/* Cuts off the first statement (ending at ";", at a label ":", or at the "}"
 * of a brace block); *first: its start. Returns where the next begins, or
 * null; *status: 0, the character overwritten at that position, or -1 for an
 * unclosed "{". */
KILNUTIL_API char* KILNUTIL_separate_one_statement(char** first, char* text, int* status);
/* Cuts off the first term; *op: the operator that ended it (or -1 for a
 * missing closer); *end: where it ended. Returns where the rest begins. */
KILNUTIL_API char* KILNUTIL_separate_one_term(char** term, char* text, int* op, char** end);
/* The term between the last opener before closer and closer; returns the
 * opener's position or null. */
KILNUTIL_API char* KILNUTIL_get_preceeding_term(char** term, char* closer, char* text);
/* brackets[0]: an opener already passed; cuts text at its exposed closer.
 * Missing closer: brackets 65535, 65535; not an opener: 65534, 65535. */
KILNUTIL_API char* KILNUTIL_get_remaining_term(char** term, char* text, unsigned short* brackets);
/* Splits name(args) in place (closer null: the last character). 1 or 0. */
KILNUTIL_API int KILNUTIL_extract_arg_pointers(char* text, char** name, char** args, char* closer);
/* Splits into trimmed tokens (sep 0: ","; -1: white space); options is the
 * token-list limit. The count, or -n when token n (from 0) is empty. */
KILNUTIL_API int KILNUTIL_get_argument_list(char* text, char** list, int sep, int options);
/* Splits text at exposed sep (0: ","; -1: white space), up to max separators
 * (-1 no limit); stores trimmed tokens when list is given. The count. */
KILNUTIL_API int KILNUTIL_separate_str_to_token_list(char* text, char** list, int sep, int max);
/* Splits name[a][b]...: the number of subscripts, -1 for bad syntax or more
 * than max, -2 for a missing "]". */
KILNUTIL_API int KILNUTIL_separate_multidimensional_dereference(char* text, char** name, char** subscripts, int max);
/* Exposed separators (0: ",") plus one; with max above 0 stops once above
 * max, *rest: behind the last separator counted. */
KILNUTIL_API int KILNUTIL_get_token_count_ex(const char* text, int sep, int max, char** rest);
/* Plain separators plus one. */
KILNUTIL_API int KILNUTIL_token_count_no_chk_inside(const char* text, int sep);

KILNUTIL_END_C

/* ---- Narrow (UTF-8, A) and wide (UTF-16, W) token functions of text import.
 * Each forwards to the KILNUTILT_ template of the same job (below). */
KILNUTIL_BEGIN_C
/* The first character that is not white space. */
KILNUTIL_API char* KILNUTIL_TrimLeftA(char* text);
KILNUTIL_API KILN_WCHAR* KILNUTIL_TrimLeftW(KILN_WCHAR* text);
/* Overwrites trailing white space with NULs; returns text. */
KILNUTIL_API char* KILNUTIL_TrimRightA(char* text);
KILNUTIL_API KILN_WCHAR* KILNUTIL_TrimRightW(KILN_WCHAR* text);
KILNUTIL_API char* KILNUTIL_TrimBothA(char* text);
KILNUTIL_API KILN_WCHAR* KILNUTIL_TrimBothW(KILN_WCHAR* text);
/* The first exposed target (0: any white space). No loc: "<" ">" are
 * brackets unless 0x8000000; the quote bits 0x10000000 and 0x20000000 apply. */
KILNUTIL_API char* KILNUTIL_ExposedCharPosA(const char* text, int target, unsigned int flags, int* status);
KILNUTIL_API KILN_WCHAR* KILNUTIL_ExposedCharPosW(const KILN_WCHAR* text, int target, unsigned int flags, int* status);
/* KILNUTIL_strchr's modes: 0 the first c outside "(" ")", "{" "}", "[" "]"
 * and double quotes; 1 the first c anywhere (with 2: the last; 4: after the
 * leading run of c; 0x10: within the text trimmed at both ends); 0x20: either
 * case. */
KILNUTIL_API char* KILNUTIL_StrCharA(const char* text, int c, int mode);
KILNUTIL_API KILN_WCHAR* KILNUTIL_StrCharW(const KILN_WCHAR* text, int c, int mode);
/* Copies up to NUL, separators[0] or separators[1] (at most size - 1 units);
 * returns the position behind the separator, or of the NUL. size must be 2 or
 * more: below that the result is the position before text. */
KILNUTIL_API char* KILNUTIL_NextTokenA(char* dest, const char* text, const char* separators, int size);
KILNUTIL_API KILN_WCHAR* KILNUTIL_NextTokenW(KILN_WCHAR* dest, const KILN_WCHAR* text, const KILN_WCHAR* separators,
                                             int size);
/* Splits at exposed sep (0: ","; -1: white space), at most max separators
 * when max is above 0 (with -1 and 60000 the single quote is ordinary); stores
 * the trimmed tokens when list is given. Separators + 1, or the separators
 * found when the limit was reached. The narrow form is
 * KILNUTIL_separate_str_to_token_list. */
#define KILNUTIL_TOKENS_SEP_COMMA 0          /* sep */
#define KILNUTIL_TOKENS_SEP_WHITE_SPACE (-1) /* sep */
#define KILNUTIL_TOKENS_NO_LIMIT (-1)        /* max; the single quote is ordinary */
#define KILNUTIL_TOKENS_LIMIT_60000 60000    /* max; the single quote is ordinary */
KILNUTIL_API int KILNUTIL_SeparateStrToTokensA(char* text, char** list, int sep, int max);
KILNUTIL_API int KILNUTIL_SeparateStrToTokensW(KILN_WCHAR* text, KILN_WCHAR** list, int sep, int max);
/* Tokens in the first line (the text is restored). */
KILNUTIL_API int KILNUTIL_FirstLineTokensA(char* text, int sep);
KILNUTIL_API int KILNUTIL_FirstLineTokensW(KILN_WCHAR* text, int sep);
/* Line feeds + 1; a line feed ending the text opens no line. */
KILNUTIL_API int KILNUTIL_LineCountA(const char* text);
KILNUTIL_API int KILNUTIL_LineCountW(const KILN_WCHAR* text);
/* The largest number of tab-separated fields in the first lines lines. */
KILNUTIL_API int KILNUTIL_TestWordsInLineA(const char* text, int lines);
KILNUTIL_API int KILNUTIL_TestWordsInLineW(const KILN_WCHAR* text, int lines);
/* The separator-exclusion character: a separator that KILNUTILT_FindSeparator
 * never picks (the host sets its decimal separator, so that "," is not taken
 * for the column separator of text with decimal commas). Initially 0 (none).
 * The setter returns the previous character. */
KILNUTIL_API int KILNUTIL_SetSeparatorExclusionChar(int c);
KILNUTIL_API int KILNUTIL_GetSeparatorExclusionChar(void);
KILNUTIL_END_C

#ifdef __cplusplus
/* The templates behind the A and W functions, exported for char (UTF-8) and
 * KILN_WCHAR (UTF-16) text. */
template <class Ch>
KILNUTIL_API Ch* KILNUTILT_TrimLeft(Ch* text);
template <class Ch>
KILNUTIL_API Ch* KILNUTILT_TrimRight(Ch* text);
template <class Ch>
KILNUTIL_API Ch* KILNUTILT_TrimBoth(Ch* text);
template <class Ch>
KILNUTIL_API Ch* KILNUTILT_ExposedCharPos(const Ch* text, int target, unsigned int flags, int* status);
template <class Ch>
KILNUTIL_API Ch* KILNUTILT_StrChar(const Ch* text, int c, int mode);
template <class Ch>
KILNUTIL_API Ch* KILNUTILT_NextToken(Ch* dest, const Ch* text, const Ch* separators, int size);
template <class Ch>
KILNUTIL_API int KILNUTILT_SeparateStrToTokenList(Ch* text, Ch** list, int sep, int max);
template <class Ch>
KILNUTIL_API int KILNUTILT_FirstLineTokens(Ch* text, int sep);
template <class Ch>
KILNUTIL_API int KILNUTILT_LineCount(const Ch* text);
/* Tab-separated fields in the first line (only tabs count). */
template <class Ch>
KILNUTIL_API int KILNUTILT_WordsInLine(const Ch* text);
template <class Ch>
KILNUTIL_API int KILNUTILT_num_words_in_lines(const Ch* text, int lines);
/* The token count the first lines lines agree on (tab: the largest), or -1
 * (lines below 1; not tab: the text ends before the lines do), -2 (not tab: a
 * line with fewer than two tokens), -3 (not tab: lines disagree). A count that
 * reaches enough (above 0) is returned at once. */
template <class Ch>
KILNUTIL_API int KILNUTILT_CountConsistenTokens(Ch* text, int sep, int enough, int lines);
/* The column separator of delimited text: 9 (tab), 44 (",") or 59 (";"), or
 * -1 (lines below 1 checks 3 lines). */
template <class Ch>
KILNUTIL_API int KILNUTILT_FindSeparator(Ch* text, int enough, int lines);
#endif /* __cplusplus */

#endif /* KILNUTIL_TEXT_H */
