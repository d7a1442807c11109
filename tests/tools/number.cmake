# kilnutil number: parse codes, 17-digit values and the missing value.
kilnutil_cli_test(NAME number.codes ARGS number 3 3.25 -1.5e3 0.1
  STDOUT "^3\t1\t3\n3.25\t2\t3.25\n-1.5e3\t4\t-1500\n0.1\t2\t0.10000000000000001\n$")
kilnutil_cli_test(NAME number.not_a_number ARGS number abc 1e308 RC 1
  STDOUT "^abc\t0\t--\n1e308\t0\t--\n$")
kilnutil_cli_test(NAME number.lenient ARGS number --lenient "12 x" STDOUT "^12 x\t1\t12\n$")
kilnutil_cli_test(NAME number.no_text ARGS number RC 2 STDERR "number takes")
