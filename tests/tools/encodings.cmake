# Encoding detection, conversion to UTF-8 and Base64 through the tool.
set(enc tests/data/encodings)
kilnutil_cli_test(NAME detect_files ARGS detect ${enc}/utf16le_mark.txt ${enc}/utf16be.txt ${enc}/utf8_mark.txt
  ${enc}/utf8.txt ${enc}/sjis.txt ${enc}/ascii.txt ${enc}/empty.txt
  STDOUT "utf16le_mark.txt: 258 UTF-16LE with mark, mark 2 bytes\n.*utf16be.txt: 3 UTF-16BE, mark 0 bytes\n.*utf8_mark.txt: 257 UTF-8 with mark, mark 3 bytes\n.*utf8.txt: 1 UTF-8, mark 0 bytes\n.*sjis.txt: 0 code page, mark 0 bytes\n.*ascii.txt: 512 ASCII, mark 0 bytes\n.*empty.txt: 255 empty, mark 0 bytes\n")
kilnutil_cli_test(NAME detect_missing_file_goes_on ARGS detect ${enc}/missing.txt ${enc}/ascii.txt RC 1
  STDOUT "ascii.txt: 512 ASCII" STDERR "^kilnutil: cannot open '.*missing.txt'\n$")
kilnutil_cli_test(NAME detect_no_file ARGS detect RC 2 STDERR "^kilnutil: detect takes")
kilnutil_cli_test(NAME to_utf8_utf16le ARGS to-utf8 ${enc}/utf16le_mark.txt STDOUT "^Grüße € 5\r\nzweite Zeile\r\n$")
kilnutil_cli_test(NAME to_utf8_utf16be ARGS to-utf8 ${enc}/utf16be.txt STDOUT "^Grüße € 5\r\nzweite Zeile\r\n$")
kilnutil_cli_test(NAME to_utf8_utf8_mark ARGS to-utf8 ${enc}/utf8_mark.txt STDOUT "^Grüße € 5\r\n")
kilnutil_cli_test(NAME to_utf8_sjis ARGS to-utf8 ${enc}/sjis.txt -c 932 STDOUT "^日本語のテキスト\n$")
kilnutil_cli_test(NAME to_utf8_missing ARGS to-utf8 ${enc}/missing.txt RC 1 STDERR "^kilnutil: cannot open")
kilnutil_cli_test(NAME to_utf8_usage ARGS to-utf8 RC 2 STDERR "^kilnutil: to-utf8 takes")
kilnutil_cli_test(NAME base64_encode ARGS base64 - STDIN ${enc}/ascii.txt STDOUT "^cGxhaW4gQVNDSUkgdGV4dAo=\n$")
kilnutil_cli_test(NAME base64_decode ARGS base64 -d ${enc}/foobar.b64 STDOUT "^foobar$")
kilnutil_cli_test(NAME base64_missing ARGS base64 ${enc}/missing.txt RC 1 STDERR "^kilnutil: cannot read")
kilnutil_cli_test(NAME base64_usage ARGS base64 -x RC 2 STDERR "^kilnutil: base64 takes")
