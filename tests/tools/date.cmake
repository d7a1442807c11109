# kilnutil date: values in date systems, conversions and calendar steps.
kilnutil_cli_test(NAME date.default_system ARGS date "2000-01-01 12:00" STDOUT "^2451544.5\n$")
kilnutil_cli_test(NAME date.julian_system ARGS date --system JulianDate "2000-01-01 12:00" STDOUT "^2451545\n$")
kilnutil_cli_test(NAME date.serial_to_date ARGS date --system 1899-12-30 --to-date 45351.75
  STDOUT "^2024-02-29 18:00:00.000\n$")
kilnutil_cli_test(NAME date.convert ARGS date --convert 36526 1899-12-30 1904 STDOUT "^35064\n$")
kilnutil_cli_test(NAME date.step_month ARGS date --step 1 m 2021-01-31 STDOUT "^2021-02-28 00:00:00.000\t2459273\n$")
kilnutil_cli_test(NAME date.step_back_year ARGS date --system 1899-12-30 --step -1 y 2020-02-29
  STDOUT "^2019-02-28 00:00:00.000\t43524\n$")
kilnutil_cli_test(NAME date.unknown_system ARGS date --system Mars 2000-01-01 RC 2 STDERR "unknown date system")
kilnutil_cli_test(NAME date.bad_date ARGS date 2000-02-30 RC 1 STDERR "not a date")
