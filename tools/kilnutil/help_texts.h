// The help texts of the tool's commands: options, one per line, and examples;
// and the guide to row and column requests (`kilnutil help requests`).
#pragma once

#include "text_options.h"

namespace kilnutil_cli {

inline constexpr const char kHelpHelp[] =
    "  COMMAND              the usage, options and examples of one command\n"
    "  requests             the row and column request syntax of preview\n"
    "example:\n"
    "  kilnutil help preview";

inline constexpr const char kVersionHelp[] =
    "example:\n"
    "  kilnutil version";

inline constexpr const char kCharsHelp[] =
    "  TEXT                 UTF-8 text; - reads standard input\n"
    "example:\n"
    "  kilnutil chars 'aé😀'";

inline constexpr const char kPreviewHelp[] =
    "  FILE                 a delimited text file; - reads standard input\n"
    "  --rows REQUEST       the rows to show, by line number (see 'kilnutil help requests')\n"
    "  --cols REQUEST       the columns to show, by position\n"
    "  --limit N            show at most N wanted rows (default 10; 0 all; --csv/--ndjson: all)\n"
    "  --sep C              the separator: one character, tab, blank or none (default: guessed)\n"
    "  --decimal C          the decimal mark, . or , (default: chosen from the data)\n"
    "  --skip N             lines before the header\n"
    "  --comment C          lines starting with C are comments (default #; '' for none)\n"
    "  --header, --no-header  whether the first table line names the columns (default: guessed)\n"
    "  --width N            cut table cells to N characters with … (default 24)\n"
    "  --date-values        show the date value of ISO dates beside them (in --csv/--ndjson: instead)\n"
    "  --json               one JSON document with the rows and what was detected\n"
    "  --ndjson             one JSON object per row, keyed by column name\n"
    "  --csv                the selected rows and columns as UTF-8 CSV, numbers as "
    "read\n" KILNUTIL_CLI_TEXT_OPTIONS_HELP
    "examples:\n"
    "  kilnutil preview examples/precipitation_cp1252.csv --rows \"2:0 ~5\" --cols \"1 3\"\n"
    "  kilnutil preview data.txt --sep ';' --decimal . --skip 2 --csv > clean.csv";

inline constexpr const char kSplitHelp[] =
    "  --statements         cut into statements (the default)\n"
    "  --terms              cut into terms and the operators between them\n"
    "  --tokens             cut into tokens\n"
    "  TEXT                 script text; - (or nothing) reads standard input line by line\n"
    "example:\n"
    "  kilnutil split --terms 'a + b*c'";

inline constexpr const char kNumberHelp[] =
    "  --lenient            allow text after the number\n"
    "  TEXT...              the texts to parse; exit code 1 when one is not a number\n"
    "example:\n"
    "  kilnutil number 3 3.25 -1.5e3";

inline constexpr const char kDateHelp[] =
    "  --system NAME        the date system (default Vela-JulianDate; JulianDate, 1899-12-30, 1904, ...)\n"
    "  --to-date VALUE      the date of a date value\n"
    "  --convert V FROM TO  a value of one date system in another\n"
    "  --step N UNIT DATE   DATE stepped by N days (d), months (m), quarters (q) or years (y)\n"
    "examples:\n"
    "  kilnutil date '2000-01-01 12:00'\n"
    "  kilnutil date --system 1899-12-30 --to-date 45351.75";

inline constexpr const char kDetectHelp[] =
    "  FILE...              the files; - reads standard input\n"
    "  --json               a JSON array, one object per file\n" KILNUTIL_CLI_TEXT_OPTIONS_HELP
    "example:\n"
    "  kilnutil detect examples/*.csv";

inline constexpr const char kToUtf8Help[] =
    "  FILE                 the text file; - (or nothing) reads standard input\n"
    "  -o OUT               write to OUT instead of standard output\n" KILNUTIL_CLI_TEXT_OPTIONS_HELP
    "examples:\n"
    "  kilnutil to-utf8 examples/precipitation_cp1252.csv -o precipitation.csv\n"
    "  kilnutil to-utf8 -c shift_jis old.txt";

inline constexpr const char kBase64Help[] =
    "  -d, --decode         decode Base64 text (strict: only line feeds may stand between groups)\n"
    "  -i, --ignore-garbage when decoding, skip characters outside the Base64 alphabet\n"
    "  -w, --wrap COLS      wrap encoded lines after COLS characters (default 76; 0 for none)\n"
    "  FILE                 the input; - (or nothing) reads standard input\n"
    "examples:\n"
    "  kilnutil base64 -w 0 picture.png\n"
    "  kilnutil base64 -d message.b64 > message.bin";

inline constexpr const char kRequestsGuide[] =
    "Row and column requests (preview --rows and --cols)\n"
    "\n"
    "A request is a list of items separated by blanks; rows are line numbers of\n"
    "the file, columns are positions, both counted from 1. Later items override\n"
    "earlier ones; an empty request wants everything.\n"
    "\n"
    "  3            line (column) 3 only\n"
    "  2:10         2 to 10\n"
    "  2:0          2 to the end\n"
    "  ~5           not 5 (alone it wants nothing: write 1:0 ~5)\n"
    "  2:0 ~5       2 to the end except 5\n"
    "  ~3:6         not 3 to 6\n"
    "  1:0|2-3      blocks of 2, skipping 3 after each: 1 2, 6 7, 11 12, ...\n"
    "  1:100|1-9    every 10th of 1 to 100: 1, 11, 21, ...\n"
    "  1 3 5        1, 3 and 5\n"
    "\n"
    "examples:\n"
    "  kilnutil preview data.csv --rows \"2:0 ~5\" --cols \"1 3\"\n"
    "  kilnutil preview data.csv --rows \"1:0|1-9\" --limit 0";

}  // namespace kilnutil_cli
