# kilnutil sort and kilnutil invert: a column sorted with its line numbers
# (text cells as the missing value), matrices inverted, and the failures.
kilnutil_cli_test(NAME sort.column_descending ARGS sort --desc --column 3 examples/precipitation_cp1252.csv
  STDOUT "^4\\.5999999999999996\t5\n3\\.1000000000000001\t4\n.*0\\.80000000000000004\t3\n--\t1\n-1\\.5\t2\n-3\\.3999999999999999\t8\n$")
kilnutil_cli_test(NAME sort.stdin_missing_values_first ARGS sort - STDIN tests/data/sort_column.txt
  STDOUT "^-2\t4\n--\t1\n--\t3\n--\t5\n3\t2\n3\t6\n$")
kilnutil_cli_test(NAME sort.explicit_separator ARGS sort --separator tab --column 2 examples/samples_utf16le.txt
  STDOUT "^--\t1\n")
kilnutil_cli_test(NAME sort.missing_file ARGS sort tests/data/no_such_file.txt RC 1
  STDERR "^kilnutil: tests/data/no_such_file.txt: ")
kilnutil_cli_test(NAME sort.bad_column ARGS sort --column 0 RC 2 STDERR "--column needs")
kilnutil_cli_test(NAME invert.two_by_two ARGS invert tests/data/matrices/two_by_two.txt
  STDOUT "^0\\.6[0-9]* -0\\.7[0-9]*\n-0\\.2[0-9]* 0\\.4[0-9]*\n$")
kilnutil_cli_test(NAME invert.separators_stdin ARGS invert - STDIN tests/data/matrices/mixed_separators.txt
  STDOUT "^-24\\.0*[0-9]* 18\\.0*[0-9]* 5\\.0*[0-9]*\n")
kilnutil_cli_test(NAME invert.singular ARGS invert tests/data/matrices/singular.txt RC 1
  STDOUT "^$" STDERR "^kilnutil: tests/data/matrices/singular.txt: singular\n$")
kilnutil_cli_test(NAME invert.not_square ARGS invert tests/data/matrices/not_square.txt RC 1 STDERR "not square")
kilnutil_cli_test(NAME invert.two_files ARGS invert a b RC 2 STDERR "invert takes one file")
