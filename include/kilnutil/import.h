/* kilnutil import: cell ranges and their algebra, range reference text, block
 * transpose, bit fields, and the partial-import request parser.
 *
 * A CellRange holds a first and last row and column, 0-based and inclusive.
 * Special values:
 *   -1 as last row (column)          to the end: every row (column) from the first on
 *   (0, -1) as a row (column) pair   all rows (columns)
 *   KILNUTIL_RANGE_ALL in any field  all rows (columns) for its pair
 *   all four KILNUTIL_RANGE_ALL      the unset range, meaning everything
 *   (0, 0, -1, -1)                   the whole sheet
 *   all four KILNUTIL_RANGE_EMPTY    the empty range
 * Functions that take a cell position take the column before the row, except
 * KILNUTIL_InitRangeCell, which takes the row first. */
#ifndef KILNUTIL_IMPORT_H
#define KILNUTIL_IMPORT_H

#include "kilnutil/export.h"

#ifndef __cplusplus
#  include <stdbool.h>
#endif

#define KILNUTIL_RANGE_ALL (-1000000000)
#define KILNUTIL_RANGE_EMPTY (-1000000001)

KILNUTIL_BEGIN_C

typedef struct CellRange {
  int r1; /* first row */
  int c1; /* first column */
  int r2; /* last row, inclusive; -1: to the end */
  int c2; /* last column, inclusive; -1: to the end */
} CellRange;

/* ---- Building. */
/* All four fields KILNUTIL_RANGE_ALL: the unset range. */
KILNUTIL_API void KILNUTIL_InitRange(CellRange* range);
/* All four fields KILNUTIL_RANGE_EMPTY. */
KILNUTIL_API void KILNUTIL_InitEmptyRange(CellRange* range);
/* The whole sheet (0, 0, -1, -1). */
KILNUTIL_API void KILNUTIL_InitRangeWhole(CellRange* range);
/* One cell; row first, then column. */
KILNUTIL_API void KILNUTIL_InitRangeCell(CellRange* range, int row, int col);
/* One row, all columns. */
KILNUTIL_API void KILNUTIL_InitRangeRow(CellRange* range, int row);
/* One column, all rows. */
KILNUTIL_API void KILNUTIL_InitRangeCol(CellRange* range, int col);
KILNUTIL_API void KILNUTIL_SetRangeAllRows(CellRange* range);
KILNUTIL_API void KILNUTIL_SetRangeAllColumns(CellRange* range);
KILNUTIL_API void KILNUTIL_SetRangeAllRowsColumns(CellRange* range);
/* (r1, c1, r2, c2) becomes (c1, r1, c2, r2). */
KILNUTIL_API void KILNUTIL_TransposeRange(CellRange* range);
/* A pair whose two values are both negative becomes (0, -1); 1 if a pair changed. */
KILNUTIL_API int KILNUTIL_CheckWholeRowCol(CellRange* range);
/* selection: first column, last column + 1, first row, last row + 1.
 * direction non-zero: range to selection (a dimension that covers everything
 * leaves its entries as they were); 0: selection to range. */
KILNUTIL_API void KILNUTIL_ConvertRangeSelection(CellRange* range, int* selection, int direction);

/* ---- Tests: 0 or 1. */
KILNUTIL_API int KILNUTIL_AreEqualRanges(const CellRange* a, const CellRange* b);
KILNUTIL_API int KILNUTIL_IsEmptyRange(const CellRange* range);
/* The whole sheet or the unset range (and nothing else). */
KILNUTIL_API int KILNUTIL_IsRangeAll(const CellRange* range);
/* r1 or r2 is KILNUTIL_RANGE_ALL, or the rows are (0, -1). */
KILNUTIL_API int KILNUTIL_IsRangeAllRows(const CellRange* range);
KILNUTIL_API int KILNUTIL_IsRangeAllColumns(const CellRange* range);
/* r1 >= 1 and r2 == -1. */
KILNUTIL_API int KILNUTIL_IsRangeRowsToEnd(const CellRange* range);
KILNUTIL_API int KILNUTIL_IsRangeColsToEnd(const CellRange* range);
KILNUTIL_API int KILNUTIL_IsRangeNormalized(const CellRange* range);
/* Not null and a single cell. */
KILNUTIL_API int KILNUTIL_IsRangeSingleCell(const CellRange* range);
/* Whether index lies in the row pair (row_flag non-zero) or the column pair.
 * In a to-the-end pair, -1 lies inside. Null range: 0. */
KILNUTIL_API int is_row_col_in_inside_range(int index, const CellRange* range, unsigned char row_flag);
/* A negative row (column) is in every range. */
KILNUTIL_API int KILNUTIL_IsRowInRange(const CellRange* range, int row);
KILNUTIL_API int KILNUTIL_IsColInRange(const CellRange* range, int col);
/* Column first, then row. */
KILNUTIL_API int KILNUTIL_IsCellInRange(const CellRange* range, int col, int row);
/* Index of the first of count ranges holding the cell, or -1. */
KILNUTIL_API int KILNUTIL_FindCellRange(const CellRange* ranges, int count, int col, int row);
KILNUTIL_API int KILNUTIL_IsCellInRanges(const CellRange* ranges, int count, int col, int row);
/* Whether inner lies within outer. */
KILNUTIL_API int KILNUTIL_IsRangeInRange(const CellRange* inner, const CellRange* outer);
KILNUTIL_API int KILNUTIL_IsRangeIntersectRange(const CellRange* a, const CellRange* b);

/* ---- Combining. */
/* 1 and the intersection written to out, or 0 with out untouched. */
KILNUTIL_API int KILNUTIL_IntersectRange(const CellRange* a, const CellRange* b, CellRange* out);
/* Merges b into a when they share one dimension and overlap in the other;
 * ranges that merely touch are not merged. 1 if merged, else 0. */
KILNUTIL_API int KILNUTIL_UnionRange(CellRange* a, const CellRange* b);
/* The range bounding count ranges; 0 for a null array or count below 1. */
KILNUTIL_API int KILNUTIL_GetBoundingRange(const CellRange* ranges, int count, CellRange* out);

/* ---- Range reference text: [book]sheet!$A$1:$C$10.
 * Copies the book name, sheet name and the row (digits) and column (letters)
 * texts of both references into the outputs (each may be null; outputs that
 * the text does not set are left empty). The text is modified while parsing
 * and restored on success. 1 if parsed, else 0. */
KILNUTIL_API int KILNUTIL_parse_one_range_string(char* text, char* book, char* sheet, char* row1, char* col1,
                                                 char* row2, char* col2);
/* The same function under its second name. */
KILNUTIL_API int parse_data_range_str(char* text, char* book, char* sheet, char* row1, char* col1, char* row2,
                                      char* col2);

/* ---- Block transpose: the rows x cols block of elem_size-byte elements
 * (row-major) becomes its cols x rows transpose in place. 0 done, 1 when the
 * scratch copy cannot be allocated (the data is then unchanged). */
KILNUTIL_API int KILNUTIL_RowColChange(void* block, unsigned short rows, unsigned short cols, int elem_size);

/* ---- Bit fields: one bit per cell of a grid. */
/* Byte index of a cell, its bit number into *bit. The third argument is the
 * width in cells (plain order: index y * width + x, least significant bit
 * first) or the row stride in bytes (bitmap order: most significant bit first). */
typedef int (*KILNUTIL_BitFieldIndexFunc)(int y, int x, int width_or_stride, unsigned char* bit);
KILNUTIL_API void KILNUTIL_InitBitField(unsigned char* field, int size);
KILNUTIL_API int KILNUTIL_GetBitFieldSize(int width, int height);
KILNUTIL_API int KILNUTIL_GetBitFieldHeight(int size, int width);
KILNUTIL_API int KILNUTIL_GetBitFieldIndexOffset(int y, int x, int width, unsigned char* bit);
KILNUTIL_API int KILNUTIL_GetBitFieldIndexOffset_BITMAP(int y, int x, int stride, unsigned char* bit);
/* Sets the cell's bit when the low 32 bits of value are non-zero, else clears
 * it. Returns 1. */
KILNUTIL_API int KILNUTIL_SetBitField(KILNUTIL_BitFieldIndexFunc index, unsigned char* field, int y, int x,
                                      int width_or_stride, long long value);
/* 1 when the cell's bit is set. */
KILNUTIL_API int KILNUTIL_TestBitField(KILNUTIL_BitFieldIndexFunc index, const unsigned char* field, int y, int x,
                                       int width_or_stride);

/* ---- Partial import: which rows and columns of a file to read.
 *
 * A request is a list of items, left to right, later items overriding earlier
 * ones; text between items is ignored. Numbers are 1-based:
 *   5          line 5
 *   3:8        lines 3 to 8;  3:0  line 3 and everything after it
 *   ~5         leave line 5 out
 *   1:100|2-3  from lines 1 to 100 take 2, skip 3, take 2, ...
 *   1:0|ave-7d a special selection word (ave, yave, max) with a count and unit
 * The whole request may end in a suffix "#", "/n" or "*n" (n an integer),
 * recorded in every part as its flip shift. */
typedef struct ImportFilesPartialPart {
  unsigned char include; /* 1 to take the matching indices, 0 to leave them out */
  int begin;             /* first index, 0-based */
  int end;               /* last index, 0-based; below begin: to the end */
  int count;             /* indices taken each period; below 1 matches nothing */
  int skip;              /* indices skipped after each taken group; below 1: none */
  int special_count;     /* the number written with a special selection word */
  char skip_unit;        /* 'd', 'y', 'm', 'q' after the skip number, or 0 */
  char special_unit;     /* the unit written with a special selection word, or 0 */
  char name[13];         /* "ave", "yave", "max", or empty */
  char flip_shift[9];    /* "#", "/n", "*n" (at most 6 characters), or empty */
} ImportFilesPartialPart;

/* Size in bytes of each request text buffer of tagImpFilePartialOpt. */
#define KILNUTIL_PARTIAL_REQUEST_SIZE 256

/* The partial-import options of an import. */
typedef struct tagImpFilePartialOpt {
  int enabled;                              /* 0: read everything */
  unsigned int flags;                       /* the host's other import options; not read here */
  char rows[KILNUTIL_PARTIAL_REQUEST_SIZE]; /* row request, NUL-terminated */
  char cols[KILNUTIL_PARTIAL_REQUEST_SIZE]; /* column request, NUL-terminated */
  int row_shift;                            /* header rows ahead of the data rows */
  int col_shift;                            /* leading columns ahead of the data columns */
} tagImpFilePartialOpt;

#ifdef __cplusplus
class ImportFilesPartials;
#else
typedef struct ImportFilesPartials ImportFilesPartials;
#endif

/* Parses opt's row and column requests into partials (each shifted by its
 * shift, its leading indices kept); a request left empty wants everything.
 * false when partial import is disabled (both containers are emptied). */
KILNUTIL_API bool parse_partial_range(ImportFilesPartials* partials, const tagImpFilePartialOpt* opt);
/* Parses a request that must hold exactly one part into *part (begin and end
 * 1-based when one_based). false for null arguments or any other number of parts. */
KILNUTIL_API bool parse_one_partial(const char* request, ImportFilesPartialPart* part, bool one_based);
/* Applies one selection clause "|selection-skip" to part: a count or a special
 * word from selection, a skip (or special count) and unit from skip. Whether
 * either text was non-empty. */
KILNUTIL_API bool skip_str_to_partial(const char* skip, ImportFilesPartialPart* part, const char* selection);
/* The skip-related values of one part (see ImportFilesPartialParts::IsSpecialSkip).
 * Each output may be null; name receives at most 13 bytes. */
KILNUTIL_API char GetSpecialSkip(const ImportFilesPartialPart* part, int* skip_at_least_one, int* begin, int* end,
                                 int* count, int total, int* skip, char* name, int* special_count, char* special_unit);

KILNUTIL_END_C

#ifdef __cplusplus
#  include <vector>

/* The parts of one dimension (rows or columns), in the order written. */
class KILNUTIL_API ImportFilesPartialParts {
public:
  /* A growable array of parts; indexing out of range throws std::out_of_range. */
  class KILNUTIL_API PARTS {
  public:
    PARTS();
    PARTS(const PARTS& other);
    PARTS& operator=(const PARTS& other);
    ~PARTS();
    int GetSize() const;
    void SetSize(int size);
    void Reserve(int size);
    void Add(const ImportFilesPartialPart& part);
    void RemoveAll();
    ImportFilesPartialPart& operator[](int index);
    const ImportFilesPartialPart& operator[](int index) const;

  private:
    std::vector<ImportFilesPartialPart>* items_;
  };

  ImportFilesPartialParts();
  ImportFilesPartialParts(const ImportFilesPartialParts& other);
  ImportFilesPartialParts& operator=(const ImportFilesPartialParts& other);
  ~ImportFilesPartialParts();

  /* Replaces the parts with those of the request (may be null); true when at
   * least one item was parsed, otherwise the parts stay as they were. */
  bool Parse(const char* request);
  /* Holds exactly one part: 1-based begin and end, count, skip. true. */
  bool Set(int begin, int end, int count, int skip);
  /* Moves every part by amount; with add_leading and amount >= 1 also takes the
   * amount leading indices. true when there was at least one part. */
  bool Shift(int amount, bool add_leading);
  /* Removes every part: everything is wanted again. */
  void RemoveAll();
  /* Whether the 0-based index is wanted; the last part holding it decides. */
  bool Check(int index) const;
  /* Wanted indices from from to to, inclusive. */
  int GetNumData(int from, int to) const;
  /* The first run in [from, to) of indices held by any part (included or not). */
  bool GetNextBeginEnd(int from, int to, int& begin, int& end) const;
  bool GetNextBeginEnd(int from, int to, int* begin, int* end) const;
  int GetPartialParts() const;
  /* The part, or null when index is out of range. */
  ImportFilesPartialPart* GetPart(int index);
  const ImportFilesPartialPart* GetPart(int index) const;
  const char* GetFlipShift(int index) const;
  /* One part with count >= 1 and end >= 1: its first and last index, skip and
   * number of periods. Outputs may be null. */
  bool IsSingleRange(int* last, int* blocks, int* skip, int* first) const;
  /* Exactly one part: copied out (begin and end 1-based when one_based). */
  bool GetSingleRange(ImportFilesPartialPart& part, bool one_based) const;
  bool GetSingleRange(ImportFilesPartialPart* part, bool one_based) const;
  /* Exactly one part: its skip values (an open end becomes total - 1); the
   * result is its skip unit letter. Otherwise 0 and an empty name. */
  char IsSpecialSkip(int& skip_at_least_one, int& begin, int& end, int& count, int total, int& skip, char* name,
                     int& special_count, char& special_unit) const;
  char IsSpecialSkip(int* skip_at_least_one, int* begin, int* end, int* count, int total, int* skip, char* name,
                     int* special_count, char* special_unit) const;
  /* The first part's special unit when its name is "yave", else 0. */
  char GetAveAcrossYears() const;
  static bool IsAveAcrossYears(const char* name);

private:
  PARTS parts_;
};

/* The wanted rows and columns of an import. */
class KILNUTIL_API ImportFilesPartials {
public:
  ImportFilesPartials();
  ImportFilesPartials(const ImportFilesPartials& other);
  ImportFilesPartials& operator=(const ImportFilesPartials& other);
  ~ImportFilesPartials();

  bool CheckRow(int row) const;
  bool CheckCol(int col) const;
  bool Check(int row, int col) const;

  ImportFilesPartialParts rows;
  ImportFilesPartialParts cols;
};
#endif /* __cplusplus */

#endif /* KILNUTIL_IMPORT_H */
