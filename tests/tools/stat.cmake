# kilnutil stat: values to 17 digits, failures with the error code, bad usage.
kilnutil_cli_test(NAME stat.t_quantile ARGS stat t-quantile 0.975 10 STDOUT "^2\\.22813884")
kilnutil_cli_test(NAME stat.chisq_cdf ARGS stat chisq-cdf 3.84 1 STDOUT "^0\\.949956478")
kilnutil_cli_test(NAME stat.normal_quantile ARGS stat normal-quantile 0.95 STDOUT "^1\\.6448536269514715\n$")
kilnutil_cli_test(NAME stat.round ARGS stat round 2.675 2 STDOUT "^2\\.68")
kilnutil_cli_test(NAME stat.inverf_of_one ARGS stat inverf 1 RC 1
  STDOUT "^--\n$" STDERR "stat inverf: no value, math error code 2")
kilnutil_cli_test(NAME stat.chisq_quantile_fails ARGS stat chisq-quantile 1 3 RC 1 STDERR "no value")
kilnutil_cli_test(NAME stat.list ARGS stat --list STDOUT "f-quantile P DF1 DF2")
kilnutil_cli_test(NAME stat.bad_integer ARGS stat t-quantile 0.9 2.5 RC 2 STDERR "not an integer")
kilnutil_cli_test(NAME stat.unknown ARGS stat nope 1 RC 2 STDERR "unknown function")
kilnutil_cli_test(NAME stat.arity ARGS stat beta 1 RC 2 STDERR "takes 2 argument")
