# The preview command on the bundled examples: what it detects, the cells of
# the wanted rows and columns, and its answers to a missing file and a wrong
# request.
kilnutil_cli_test(NAME preview_utf8_mark ARGS preview examples/weather_utf8_bom.csv --rows 2:3 --cols "1 3"
  STDOUT "encoding   UTF-8 with mark \\(code 0x101\\)\nseparator  \",\", decimal separator \"\\.\"\nlines      9\nfields     5\nrows       2:3 \\(2 wanted, 2 shown\\)\ncolumns    1 3\n\nline 2\n  1  \"2024-03-01 06:00\"  --  date 2460370\\.25\n  3  \"2\\.4\"  2\\.4\n\nline 3\n  1  \"2024-03-01 12:00\"  --  date 2460370\\.5\n  3  \"6\\.9\"  6\\.9\n$")
kilnutil_cli_test(NAME preview_cp1252_decimal_commas ARGS preview examples/precipitation_cp1252.csv --rows "7 2:0 ~3:6"
  STDOUT "encoding   code page \\(code 0x000\\)\nseparator  \";\", decimal separator \",\"\nlines      8\nfields     5\nrows       .* \\(3 wanted, 3 shown\\)\n.*line 2\n  1  \"2024-01-01\"  --  date 2460310\n  2  \"München\"  --\n  3  \"-1,5\"  -1\\.5\n  4  \"0,0\"  0\n  5  \"Frost\"  --\n\nline 7\n.*  4  \"--\"  --\n  5  \"Messgerät defekt\"  --\n\nline 8\n  1  \"2024-01-07\"  --  date 2460316\n  2  \"Würzburg\"")
kilnutil_cli_test(NAME preview_utf16_tabs_json ARGS preview examples/samples_utf16le.txt --rows 5:6 --cols "3 5" --json
  STDOUT "^{\"file\":\"examples/samples_utf16le.txt\",\"encoding\":{\"code\":258,\"name\":\"UTF-16LE with mark\"},\"separator\":\"\\\\t\",\"decimal_separator\":\"\\.\",\"lines\":7,\"fields\":5,\"rows_request\":\"5:6\",\"cols_request\":\"3 5\",\"wanted_rows\":2,\"rows\":\\[{\"line\":5,\"cells\":\\[{\"column\":3,\"text\":\"\",\"number\":null,\"date\":null},{\"column\":5,\"text\":\"Zoë\",\"number\":null,\"date\":null}\\]},{\"line\":6,\"cells\":\\[{\"column\":3,\"text\":\"0\\.087\",\"number\":0\\.087,\"date\":null},{\"column\":5,\"text\":\"Łukasz\",\"number\":null,\"date\":null}\\]}\\]}\n$")
kilnutil_cli_test(NAME preview_limit ARGS preview examples/weather_utf8_bom.csv --limit 1 --cols 4
  STDOUT "rows       all \\(9 wanted, 1 shown\\)\ncolumns    4\n\nline 1\n  4  \"humidity_%\"  --\n$")
kilnutil_cli_test(NAME preview_missing_file ARGS preview examples/no_such_file.csv
  RC 1 STDERR "^kilnutil: cannot open 'examples/no_such_file.csv'\n$")
kilnutil_cli_test(NAME preview_wrong_request ARGS preview examples/weather_utf8_bom.csv --rows "rows a-b"
  RC 2 STDERR "^kilnutil: invalid row request 'rows a-b': no item such as 3, 2:10, 2:0, ~5 or 1:0\\|2-3\n$")
kilnutil_cli_test(NAME preview_wrong_column_request ARGS preview examples/weather_utf8_bom.csv --cols "all of them"
  RC 2 STDERR "^kilnutil: invalid column request 'all of them': ")
kilnutil_cli_test(NAME preview_no_file ARGS preview RC 2 STDERR "^kilnutil: preview needs a file")
kilnutil_cli_test(NAME preview_bad_limit ARGS preview examples/weather_utf8_bom.csv --limit -3 RC 2 STDERR "--limit needs")
