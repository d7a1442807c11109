# Encoding detection and conversion to UTF-8 through the tool.
set(enc tests/data/encodings)
set(cli tests/data/cli)
kilnutil_cli_test(NAME detect_files ARGS detect ${enc}/utf16le_mark.txt ${enc}/utf16be.txt ${enc}/utf8_mark.txt
  ${enc}/utf8.txt ${enc}/ascii.txt ${enc}/empty.txt
  STDOUT "utf16le_mark.txt: 258 UTF-16LE with mark, mark 2 bytes, read as UTF-16LE with mark\n.*utf16be.txt: 3 UTF-16BE, mark 0 bytes, read as UTF-16BE\n.*utf8_mark.txt: 257 UTF-8 with mark, mark 3 bytes, read as UTF-8 with mark\n.*utf8.txt: 1 UTF-8, mark 0 bytes, read as UTF-8\n.*ascii.txt: 512 ASCII, mark 0 bytes, read as ASCII\n.*empty.txt: 255 empty, mark 0 bytes, read as empty\n")
kilnutil_cli_test(NAME detect_late_utf8 ARGS detect ${cli}/late_utf8.csv
  STDOUT "late_utf8.csv: 512 ASCII, mark 0 bytes, read as UTF-8 \\(ASCII in the bytes the detection examined; first non-ASCII byte at offset 75831, valid UTF-8 to the end\\)\n")
kilnutil_cli_test(NAME detect_utf32le_json ARGS detect --json ${cli}/utf32le_mark.txt
  STDOUT "^\\[{\"file\":\"tests/data/cli/utf32le_mark.txt\",\"code\":258,\"name\":\"UTF-16LE with mark\",\"mark_bytes\":2,\"read_as\":\"UTF-32LE with mark\"}\\]\n$")
kilnutil_cli_test(NAME detect_missing_file_goes_on ARGS detect ${enc}/missing.txt ${enc}/ascii.txt RC 1
  STDOUT "ascii.txt: 512 ASCII" STDERR "^kilnutil: .*missing.txt: No such file or directory\n$")
kilnutil_cli_test(NAME detect_no_file ARGS detect RC 2 STDERR "^kilnutil: detect takes")

kilnutil_cli_test(NAME to_utf8_utf16le ARGS to-utf8 ${enc}/utf16le_mark.txt STDOUT "^Grüße € 5\r\nzweite Zeile\r\n$")
kilnutil_cli_test(NAME to_utf8_utf16be ARGS to-utf8 ${enc}/utf16be.txt STDOUT "^Grüße € 5\r\nzweite Zeile\r\n$")
kilnutil_cli_test(NAME to_utf8_utf8_mark ARGS to-utf8 ${enc}/utf8_mark.txt STDOUT "^Grüße € 5\r\n")
kilnutil_cli_test(NAME to_utf8_utf32le ARGS to-utf8 ${cli}/utf32le_mark.txt STDOUT "^Grüße, 日本 😀\nzweite Zeile\n$")
kilnutil_cli_test(NAME to_utf8_utf32be ARGS to-utf8 ${cli}/utf32be_mark.txt STDOUT "^Grüße, 日本 😀\nzweite Zeile\n$")
kilnutil_cli_test(NAME to_utf8_late_utf8_from_pipe ARGS to-utf8 - STDIN ${cli}/late_utf8.csv STDOUT "\n9999,Zürich,1\\.5\n$")
kilnutil_cli_test(NAME to_utf8_late_cp1252_from_pipe ARGS to-utf8 - STDIN ${cli}/late_cp1252.csv STDOUT "\n9999,Zürich,1\\.5\n$")
kilnutil_cli_test(NAME to_utf8_invalid_utf8 ARGS to-utf8 ${cli}/invalid_utf8.txt RC 1 STDOUT "^Grüße\ncaf$"
  STDERR "^kilnutil: tests/data/cli/invalid_utf8.txt: illegal input sequence at position 11 \\(invalid UTF-8 byte 0xC3\\); --replace writes U\\+FFFD instead\n$")
kilnutil_cli_test(NAME to_utf8_replace ARGS to-utf8 --replace ${cli}/invalid_utf8.txt STDOUT "^Grüße\ncaf�\\(\n$")
kilnutil_cli_test(NAME to_utf8_lone_surrogate ARGS to-utf8 ${cli}/utf16le_lone_surrogate.txt RC 1
  STDERR "illegal input sequence at position 6 \\(code unit 0xD800 is not a character\\)")
kilnutil_cli_test(NAME to_utf8_undefined_shift_jis_byte ARGS to-utf8 -c sjis ${cli}/legacy_cp932.txt --replace STDOUT "^日本語")
kilnutil_cli_test(NAME to_utf8_binary ARGS to-utf8 ${cli}/binary.bin RC 1 STDERR "looks binary \\(NUL byte at offset 0\\)")
kilnutil_cli_test(NAME to_utf8_control_bytes ARGS to-utf8 ${cli}/controls.bin RC 1 STDERR "looks binary \\(78% control bytes")
kilnutil_cli_test(NAME to_utf8_forced_binary ARGS to-utf8 --force ${cli}/controls.bin STDOUT "ABC")
kilnutil_cli_test(NAME to_utf8_missing ARGS to-utf8 ${enc}/missing.txt RC 1 STDERR "^kilnutil: .*missing.txt: No such file or directory\n$")
kilnutil_cli_test(NAME to_utf8_directory ARGS to-utf8 ${enc} RC 1 STDERR "^kilnutil: tests/data/encodings: Is a directory\n$")
kilnutil_cli_test(NAME to_utf8_usage ARGS to-utf8 a b RC 2 STDERR "^kilnutil: to-utf8 takes")
kilnutil_cli_test(NAME to_utf8_unknown_codepage ARGS to-utf8 -c 99999 ${enc}/ascii.txt RC 2 STDERR "unknown code page '99999'")

# Each legacy code page by the name a user gives.
include(${PROJECT_SOURCE_DIR}/tests/data/cli/legacy_expected.cmake)
list(LENGTH cli_legacy_cases legacy_count)  # file, name, text for each case
set(legacy_index 0)
while(legacy_index LESS legacy_count)
  list(GET cli_legacy_cases ${legacy_index} legacy_file)
  math(EXPR legacy_name_index "${legacy_index} + 1")
  math(EXPR legacy_text_index "${legacy_index} + 2")
  list(GET cli_legacy_cases ${legacy_name_index} legacy_name)
  list(GET cli_legacy_cases ${legacy_text_index} legacy_text)
  kilnutil_cli_test(NAME to_utf8_${legacy_file} ARGS to-utf8 -c ${legacy_name} ${cli}/${legacy_file} STDOUT "^${legacy_text}\n$")
  math(EXPR legacy_index "${legacy_index} + 3")
endwhile()
kilnutil_cli_test(NAME to_utf8_output_not_writable ARGS to-utf8 ${enc}/ascii.txt -o tests/data/no_such_folder/out.txt
  RC 1 STDERR "^kilnutil: tests/data/no_such_folder/out.txt: No such file or directory\n$")
if(EXISTS /dev/full)
  kilnutil_cli_test(NAME to_utf8_write_failure ARGS to-utf8 ${enc}/ascii.txt -o /dev/full
    RC 1 STDERR "^kilnutil: /dev/full: No space left on device\n$")
endif()
kilnutil_cli_test(NAME detect_stdin ARGS detect - STDIN ${cli}/late_cp1252.csv
  STDOUT "^-: 512 ASCII, mark 0 bytes, read as Windows-1252 \\(code page 1252\\)")
kilnutil_cli_test(NAME to_utf8_same_file ARGS to-utf8 ${enc}/ascii.txt -o ${enc}/ascii.txt RC 2 STDERR "must not be the input")
kilnutil_cli_test(NAME to_utf8_named_utf16 ARGS to-utf8 -c utf-16le ${enc}/utf16le_mark.txt STDOUT "^Grüße € 5\r\n")
kilnutil_cli_test(NAME detect_json_with_missing_file ARGS detect --json ${enc}/missing.txt ${enc}/utf8.txt RC 1
  STDOUT "^\\[{\"file\":\"tests/data/encodings/missing.txt\",\"code\":255,\"name\":\"empty\",\"mark_bytes\":0,\"error\":\"No such file or directory\"},{\"file\":\"tests/data/encodings/utf8.txt\",\"code\":1,.*\"read_as\":\"UTF-8\"}\\]\n$"
  STDERR "missing.txt: No such file or directory")
