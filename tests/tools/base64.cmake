# kilnutil base64: the output form of the common command-line tools, strict
# decoding, and a differential check against coreutils on random inputs.
set(enc tests/data/encodings)
kilnutil_cli_test(NAME base64_encode ARGS base64 - STDIN ${enc}/ascii.txt STDOUT "^cGxhaW4gQVNDSUkgdGV4dAo=\n$")
kilnutil_cli_test(NAME base64_wrap ARGS base64 -w 8 ${enc}/ascii.txt STDOUT "^cGxhaW4g\nQVNDSUkg\ndGV4dAo=\n$")
kilnutil_cli_test(NAME base64_no_wrap ARGS base64 --wrap=0 ${enc}/ascii.txt STDOUT "^cGxhaW4gQVNDSUkgdGV4dAo=$")
kilnutil_cli_test(NAME base64_empty ARGS base64 ${enc}/empty.txt STDOUT "^$")
kilnutil_cli_test(NAME base64_decode_strict_carriage_return ARGS base64 -d ${enc}/foobar.b64 RC 1 STDOUT "^foo$"
  STDERR "character 0x0D at offset 4 is not Base64")
kilnutil_cli_test(NAME base64_decode ARGS base64 -d -i ${enc}/foobar.b64 STDOUT "^foobar$")
kilnutil_cli_test(NAME base64_decode_garbage_refused ARGS base64 -d - STDIN ${PROJECT_SOURCE_DIR}/tests/data/cli/pipe.txt
  RC 1 STDERR "^kilnutil: standard input: invalid input: character 0x7C at offset 1 is not Base64 \\(-i skips such characters\\)\n$")
kilnutil_cli_test(NAME base64_decode_misplaced_padding ARGS base64 -d - STDIN ${PROJECT_SOURCE_DIR}/tests/data/cli/bad_padding.b64
  RC 1 STDOUT "^a$" STDERR "misplaced padding")
kilnutil_cli_test(NAME base64_missing ARGS base64 ${enc}/missing.txt RC 1 STDERR "^kilnutil: .*missing.txt: No such file or directory\n$")
kilnutil_cli_test(NAME base64_directory ARGS base64 ${enc} RC 1 STDERR "^kilnutil: tests/data/encodings: Is a directory\n$")
kilnutil_cli_test(NAME base64_usage ARGS base64 -x RC 2 STDERR "^kilnutil: base64 takes")
kilnutil_cli_test(NAME base64_bad_wrap ARGS base64 -w x RC 2 STDERR "invalid wrap size 'x'")

find_program(coreutils_base64 base64)
find_program(python3_for_base64 python3)
if(coreutils_base64 AND python3_for_base64)
  add_test(NAME cli.base64_differential
    COMMAND ${python3_for_base64} ${CMAKE_CURRENT_SOURCE_DIR}/tools/base64_differential.py
      ${coreutils_base64} ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:kilnutil_cli>)
  set_tests_properties(cli.base64_differential PROPERTIES LABELS cli)
endif()
kilnutil_cli_test(NAME base64_decode_stdin ARGS base64 --decode STDIN ${PROJECT_SOURCE_DIR}/tests/data/encodings/foobar.b64
  RC 1 STDOUT "^foo$" STDERR "^kilnutil: standard input: invalid input")
kilnutil_cli_test(NAME base64_help_example ARGS help base64 STDOUT "-w, --wrap COLS.*kilnutil base64 -w 0")
