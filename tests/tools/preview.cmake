# The preview command on the bundled examples and on the awkward layouts of
# real files: the separator, field count, header, decimal mark and cells it
# finds, and its answers to wrong requests.
set(cli tests/data/cli)
kilnutil_cli_test(NAME preview_utf8_mark ARGS preview examples/weather_utf8_bom.csv --rows 2:3 --cols "1 3"
  STDOUT "^row  time              temperature_°C\n  2  2024-03-01 06:00             2\\.4\n  3  2024-03-01 12:00             6\\.9\n\nfile       examples/weather_utf8_bom.csv\nencoding   UTF-8 with mark\nseparator  \",\" \\(the library's guess\\)\ndecimal    \"\\.\" .*\nheader     line 1\nlines      9\nfields     5\nrows       2:3 \\(2 wanted, 2 shown\\)\ncolumns    1 3\n$")
kilnutil_cli_test(NAME preview_cp1252_decimal_commas ARGS preview examples/precipitation_cp1252.csv --rows "7 2:0 ~3:6" --csv
  STDOUT "^Datum,Messstelle,Temperatur \\(°C\\),Niederschlag \\(mm\\),Bemerkung\n2024-01-01,München,-1\\.5,0,Frost\n2024-01-06,Düsseldorf,1\\.2,--,Messgerät defekt\n2024-01-07,Würzburg,-3\\.4,0,Glätte\n$")
kilnutil_cli_test(NAME preview_cp1252_summary ARGS preview examples/precipitation_cp1252.csv --limit 1
  STDOUT "encoding   Windows-1252 \\(code page 1252\\).*separator  \";\".*decimal    \",\" \\(from the data: 0 numbers with a decimal point, 13 with a decimal comma\\)")
kilnutil_cli_test(NAME preview_utf16_tabs_json ARGS preview examples/samples_utf16le.txt --rows 5:6 --cols "3 5" --json
  STDOUT "^{\"file\":\"examples/samples_utf16le.txt\",\"columns\":\\[{\"column\":3,\"name\":\"concentration_mg/L\"},{\"column\":5,\"name\":\"operator\"}\\],\"rows\":\\[{\"row\":5,\"cells\":\\[{\"column\":3,\"text\":\"\",\"number\":null,\"date\":null},{\"column\":5,\"text\":\"Zoë\",\"number\":null,\"date\":null}\\]},{\"row\":6,\"cells\":\\[{\"column\":3,\"text\":\"0\\.087\",\"number\":0\\.087,\"date\":null},{\"column\":5,\"text\":\"Łukasz\",\"number\":null,\"date\":null}\\]}\\],\"encoding\":\"UTF-16LE with mark\",\"separator\":\"tab\",.*\"lines\":7,\"fields\":5,.*\"wanted_rows\":2,\"shown_rows\":2}\n$")
kilnutil_cli_test(NAME preview_limit ARGS preview examples/weather_utf8_bom.csv --limit 1 --cols 4
  STDOUT "^row  humidity_%\n  2          81\n.*rows       all \\(8 wanted, 1 shown\\)\n")
kilnutil_cli_test(NAME preview_limit_zero_and_stdin ARGS preview - --limit 0 --ndjson --cols 1 STDIN examples/weather_utf8_bom.csv
  STDOUT "^{\"row\":2,\"time\":\"2024-03-01 06:00\"}\n.*{\"row\":9,\"time\":\"2024-03-03 12:00\"}\n$")

# Encodings decided on the whole file: non-ASCII text after the bytes the
# library examines.
kilnutil_cli_test(NAME preview_late_utf8 ARGS preview ${cli}/late_utf8.csv --rows 4002 --csv
  STDOUT "^id,city,value\n9999,Zürich,1\\.5\n$")
kilnutil_cli_test(NAME preview_late_utf8_named ARGS preview ${cli}/late_utf8.csv --limit 1
  STDOUT "encoding   UTF-8 \\(ASCII in the bytes the detection examined; first non-ASCII byte at offset 75831")
kilnutil_cli_test(NAME preview_late_cp1252 ARGS preview ${cli}/late_cp1252.csv --rows 4002 --csv
  STDOUT "^id,city,value\n9999,Zürich,1\\.5\n$")
kilnutil_cli_test(NAME preview_binary_refused ARGS preview ${cli}/binary.bin
  RC 1 STDERR "^kilnutil: tests/data/cli/binary.bin: looks binary \\(NUL byte at offset 0\\); --force reads it as text\n$")

# Layouts: the tool's separator when the library's guess fails, titles,
# comments, quoted line ends, wide headers, carriage returns.
kilnutil_cli_test(NAME preview_ragged_first_lines ARGS preview ${cli}/ragged_first.csv --rows 2:3
  STDOUT "^row  a  b  c   d\n  2  1  2  --  --\n  3  3  4   5   6\n.*separator  \",\" \\(chosen by the tool: 4 of 6 lines have 4 fields; the library found no separator\\)\n.*fields     4\n.*ragged     2 rows")
kilnutil_cli_test(NAME preview_comment_and_blank_lines ARGS preview ${cli}/comments.csv --csv
  STDOUT "^x,y,z\n1\\.5,2,3\n4\\.25,5,6\n7,8,9\n$")
kilnutil_cli_test(NAME preview_comment_summary ARGS preview ${cli}/comments.csv
  STDOUT "separator  \";\".*decimal    \"\\.\".*header     line 4\nlines      9\nfields     3\n.*skipped    0 by --skip, 0 title lines, 5 comment or blank lines")
kilnutil_cli_test(NAME preview_title_line ARGS preview ${cli}/title_line.csv
  STDOUT "^row  x  y  z\n  3  1  2  3\n.*separator  \",\" \\(chosen by the tool: 4 of 5 lines have 3 fields.*header     line 2\n.*1 title lines")
kilnutil_cli_test(NAME preview_multiline_quoted_field ARGS preview ${cli}/multiline_quoted.csv --cols 2:3 --csv
  STDOUT "^note,value\n\"first line\nsecond line\",2\\.5\n\"say \"\"hi\"\"\",3\nplain,4\n$")
kilnutil_cli_test(NAME preview_multiline_lines ARGS preview ${cli}/multiline_quoted.csv STDOUT "lines      4\nfields     3\n")
kilnutil_cli_test(NAME preview_header_over_64k ARGS preview ${cli}/wide_header.csv --cols "1 4000" --csv
  STDOUT "^measurement_column_00000,measurement_column_03999\n0,3999\n$")
kilnutil_cli_test(NAME preview_header_over_64k_fields ARGS preview ${cli}/wide_header.csv --cols 1 STDOUT "fields     4000\n")
kilnutil_cli_test(NAME preview_cr_only ARGS preview ${cli}/cr_only.csv --csv STDOUT "^x,y\n1,2\n3,4\n5,6\n$")
kilnutil_cli_test(NAME preview_single_line ARGS preview ${cli}/single_line.csv
  STDOUT "^row  1   2   3\n  1  10  20  30\n.*separator  \";\".*header     none\nlines      1\nfields     3\n")
kilnutil_cli_test(NAME preview_semicolon_decimal_point ARGS preview ${cli}/semicolon_point.csv --csv
  STDOUT "^name,value,weight\nalpha,1\\.5,2\\.25\nbeta,3\\.75,4\ngamma,-0\\.5,1000\n$")
kilnutil_cli_test(NAME preview_tab_decimal_comma ARGS preview ${cli}/tab_comma.tsv --csv
  STDOUT "^name,value\nalpha,1\\.5\nbeta,2\\.25\ngamma,-3\\.125\n$")
kilnutil_cli_test(NAME preview_pipe ARGS preview ${cli}/pipe.txt --rows 3 STDOUT "  3  4  5  6\n.*separator  \"\\|\" \\(chosen by the tool")
kilnutil_cli_test(NAME preview_header_one_short ARGS preview ${cli}/r_row_names.txt --ndjson --limit 1
  STDOUT "^{\"row\":2,\"1\":1,\"x\":1\\.5,\"y\":2}\n$")
kilnutil_cli_test(NAME preview_date_values ARGS preview ${cli}/dates.csv --date-values --cols 1 --csv
  STDOUT "^when\n2460370\\.25\n2460371\n$")
kilnutil_cli_test(NAME preview_cut_cells ARGS preview examples/precipitation_cp1252.csv --width 5 --rows 2 --cols 2
  STDOUT "^row  Mess…\n  2  Münc…\n")

# Options override every guess.
kilnutil_cli_test(NAME preview_overrides ARGS preview ${cli}/tab_comma.tsv --sep tab --decimal . --skip 1 --no-header --comment % --csv
  STDOUT "^1,2\nalpha,\"1,5\"\nbeta,\"2,25\"\ngamma,\"-3,125\"\n$")
kilnutil_cli_test(NAME preview_comments_kept ARGS preview ${cli}/comments.csv --skip 3 --comment % --header --cols 1 --csv
  STDOUT "^x\n1\\.5\n4\\.25\n# end\n7\n$")
kilnutil_cli_test(NAME preview_sep_tab_word ARGS preview ${cli}/tab_comma.tsv --sep tab --limit 1 STDOUT "separator  tab \\(as asked\\)")

# Wrong usage and unreadable input.
kilnutil_cli_test(NAME preview_missing_file ARGS preview examples/no_such_file.csv
  RC 1 STDERR "^kilnutil: examples/no_such_file.csv: No such file or directory\n$")
kilnutil_cli_test(NAME preview_directory ARGS preview examples RC 1 STDERR "^kilnutil: examples: Is a directory\n$")
kilnutil_cli_test(NAME preview_wrong_request ARGS preview examples/weather_utf8_bom.csv --rows "rows a-b"
  RC 2 STDERR "^kilnutil: invalid row request 'rows a-b': no item such as 3, 2:10, 2:0, ~5 or 1:0\\|2-3")
kilnutil_cli_test(NAME preview_wrong_column_request ARGS preview examples/weather_utf8_bom.csv --cols "all of them"
  RC 2 STDERR "^kilnutil: invalid column request 'all of them': ")
kilnutil_cli_test(NAME preview_no_file ARGS preview RC 2 STDERR "^kilnutil: preview needs a file")
kilnutil_cli_test(NAME preview_bad_limit ARGS preview examples/weather_utf8_bom.csv --limit -3 RC 2 STDERR "--limit needs")
kilnutil_cli_test(NAME preview_bad_separator ARGS preview examples/weather_utf8_bom.csv --sep ab RC 2 STDERR "--sep takes")
kilnutil_cli_test(NAME preview_unknown_codepage ARGS preview examples/weather_utf8_bom.csv -c klingon RC 2
  STDERR "^kilnutil: unknown code page 'klingon'")
kilnutil_cli_test(NAME preview_unclosed_quote ARGS preview ${cli}/unclosed_quote.csv
  RC 1 STDERR "^kilnutil: tests/data/cli/unclosed_quote.csv: the double quote opened in record 3 is never closed\n$")
kilnutil_cli_test(NAME preview_quote_inside_field ARGS preview ${cli}/inch_marks.tsv --csv
  STDOUT "^size,note\n\"5\"\" disk\",1\n\"3\\.5\"\" disk\",2\n$")
kilnutil_cli_test(NAME preview_table_line_ends ARGS preview ${cli}/multiline_quoted.csv --rows 2 --cols 2
  STDOUT "^row  note\n  2  first line↵second line\n")
