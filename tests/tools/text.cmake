# kilnutil split: statements, terms and tokens as the scanners cut them.
# (Arguments cannot hold ";" here: the statement separators come through standard input.)
kilnutil_cli_test(NAME split_statements ARGS split "start: x = {1,2}, {3,4} y=a?b:c"
  STDOUT "^start:\nx = {1,2}, {3,4}\ny=a\\?b:c\n$")
kilnutil_cli_test(NAME split_statements_stdin ARGS split - STDIN tests/text/data/script.txt
  STDOUT "^start:\nx = 1\ny = 2\nif \\(x\\) {y = 3; z = 4}\nw = \"a;b\"\n$")
kilnutil_cli_test(NAME split_terms ARGS split --terms "a + b*c \"q r\""
  STDOUT "^a\n\\+\nb\n\\*\nc\nq r\n$")
kilnutil_cli_test(NAME split_tokens ARGS split --tokens - STDIN tests/text/data/tokens.txt
  STDOUT "^a\n=\nb\n\\+\n1.5e-3\\*c\n;\nx \\+ 1\ny\n$")
kilnutil_cli_test(NAME split_unclosed_block ARGS split "x = {1" RC 1 STDERR "^kilnutil: split: a \"{\" is never closed")
kilnutil_cli_test(NAME split_unclosed_term ARGS split --terms "(a + b" RC 1 STDERR "never closed")
kilnutil_cli_test(NAME split_unknown_option ARGS split --words x RC 2 STDERR "^kilnutil: split: unknown option '--words'")
kilnutil_cli_test(NAME split_two_texts ARGS split a b RC 2 STDERR "split takes one text")
