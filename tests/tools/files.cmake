# Sections, comment stripping, path syntax and the language choice through the tool.
set(sec tests/data/sections)
kilnutil_cli_test(NAME section.named ARGS section ${sec}/settings.ini window STDOUT "^x=1\r\n$")
kilnutil_cli_test(NAME section.whole ARGS section ${sec}/settings.ini STDOUT "^top line\r\n\\[General\\].*end\r\n$")
kilnutil_cli_test(NAME section.list ARGS section --list ${sec}/settings.ini
  STDOUT "^2\tGeneral\n5\tWindow\n7\tEmpty\n8\tLast\n$")
kilnutil_cli_test(NAME section.missing_name ARGS section ${sec}/settings.ini Nope RC 1
  STDERR "^kilnutil: .*settings.ini: no section Nope\n$")
kilnutil_cli_test(NAME section.missing_file ARGS section ${sec}/none.ini General RC 1 STDERR "none.ini: cannot read")
kilnutil_cli_test(NAME section.usage ARGS section RC 2 STDERR "^kilnutil: section takes")
kilnutil_cli_test(NAME strip_comments.file ARGS strip-comments ${sec}/script.qs
  STDOUT "^\nint n = 3;  double x = n/2;\ntype \"/\\* kept \\*/\"; \n$" STDERR "^lines: 4\n$")
kilnutil_cli_test(NAME strip_comments.stdin ARGS strip-comments - STDIN ${sec}/script.qs STDERR "^lines: 4\n$")
kilnutil_cli_test(NAME strip_comments.missing ARGS strip-comments ${sec}/none.qs RC 1 STDERR "none.qs: cannot open")
kilnutil_cli_test(NAME path.check ARGS path check "C:\\data\\a.txt" "C:data\\a.txt" RC 1
  STDOUT "^C:.data.a.txt\t1\tvalid drive path\nC:data.a.txt\t-5\tdrive-relative path\n$")
kilnutil_cli_test(NAME path.check_valid ARGS path check "\\\\server\\share" STDOUT "\t2\tvalid UNC path\n$")
kilnutil_cli_test(NAME path.split ARGS path split "C:\\data\\a.b.txt" STDOUT "\tC:.data.\ta.b.txt\t.txt\n$")
kilnutil_cli_test(NAME path.usage ARGS path move x RC 2 STDERR "unknown action")
kilnutil_cli_test(NAME language.unknown ARGS language Klingon RC 2 STDERR "^kilnutil: unknown language")
# The language commands use a configuration folder of their own, never the user's.
kilnutil_cli_test(NAME language.store ARGS language german STDOUT "^stored\tG\t")
kilnutil_cli_test(NAME language.show ARGS language STDOUT "stored\tG\n$")
set(language_config "KILNUTIL_CONFIG_DIR=${CMAKE_CURRENT_BINARY_DIR}/language_config")
set_tests_properties(cli.language.store cli.language.show cli.language.unknown PROPERTIES
  ENVIRONMENT "${language_config}" RESOURCE_LOCK kilnutil_language_config)
set_tests_properties(cli.language.show PROPERTIES DEPENDS cli.language.store)
