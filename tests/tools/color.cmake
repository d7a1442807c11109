# kilnutil color: colour strings in the models, the list, ramps, failures.
kilnutil_cli_test(NAME color.models ARGS color Orange "RGB(1,2,3)" --to html
  STDOUT "^Orange\thtml\t#FF8000\nRGB\\(1,2,3\\)\thtml\t#010203\n$")
kilnutil_cli_test(NAME color.lab ARGS color "#F00" --to lab STDOUT "^#F00\tlab\t53.2408 80.0925 67.2032\n$")
kilnutil_cli_test(NAME color.hsl_reads_lightness_second ARGS color "HSL(0,120,240)" --to hsl
  STDOUT "^HSL\\(0,120,240\\)\thsl\t0 100 50\n$")
kilnutil_cli_test(NAME color.all ARGS color 3 STDOUT "^3\trgb\t0 255 0\n3\thtml\t#00FF00\n.*3\thunterlab\t")
kilnutil_cli_test(NAME color.list ARGS color --list STDOUT "^1\tBlack\t#000000\n2\tRed\t#FF0000\n.*24\tDark Gray\t#404040\n$")
kilnutil_cli_test(NAME color.ramp ARGS color --ramp Black White 3 STDOUT "^0\t#000000\n1\t#808080\n2\t#FFFFFF\n$")
kilnutil_cli_test(NAME color.not_a_colour ARGS color Red "#GG0000" RC 1
  STDOUT "^Red\trgb" STDERR "^kilnutil: #GG0000: not a colour\n$")
kilnutil_cli_test(NAME color.beyond_list ARGS color 30 RC 1 STDERR "colour 30 is not in the colour list")
kilnutil_cli_test(NAME color.bad_model ARGS color Red --to rainbow RC 2 STDERR "--to takes one of")
kilnutil_cli_test(NAME color.bad_ramp ARGS color --ramp Red Blue 0 RC 2 STDERR "N must be")
kilnutil_cli_test(NAME color.no_text ARGS color RC 2 STDERR "color takes")
