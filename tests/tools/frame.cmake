# The tool's general commands and its handling of wrong arguments.
kilnutil_cli_test(NAME help ARGS help STDOUT "commands:.*chars")
kilnutil_cli_test(NAME version ARGS version STDOUT "^kilnutil [0-9]+\\.[0-9]+\\.[0-9]+\n$")
kilnutil_cli_test(NAME no_command RC 2 STDERR "^kilnutil: no command given")
kilnutil_cli_test(NAME unknown_command ARGS frobnicate RC 2 STDERR "^kilnutil: unknown command 'frobnicate'")
kilnutil_cli_test(NAME version_extra_argument ARGS version now RC 2 STDERR "takes no arguments")
kilnutil_cli_test(NAME chars_text ARGS chars "aé😀"
  STDOUT "0 +1 +U\\+0061 +0061\n1 +2 +U\\+00E9 +00E9\n3 +4 +U\\+1F600 +D83D DE00\n")
kilnutil_cli_test(NAME chars_stdin ARGS chars - STDIN examples/chars.txt STDOUT "15 +4 +U\\+1F600 +D83D DE00")
kilnutil_cli_test(NAME chars_malformed ARGS chars - STDIN tests/data/malformed_utf8.txt STDOUT "U\\+1FFFFF +\\(none\\)")
kilnutil_cli_test(NAME chars_missing_text ARGS chars RC 2 STDERR "^kilnutil: chars takes one argument")
