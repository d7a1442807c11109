# Warning set shared by the library, the tool, the tests, the benchmarks and
# the fuzz targets; errors when KILNUTIL_WERROR is on (debug and sanitizer
# presets).
#
# -Wsign-conversion stays off: the library mixes size_t lengths with the int
# counts and positions of its C interface on purpose, and the casts it would
# demand at every such boundary hide the conversions -Wconversion reports.
add_library(kilnutil_warnings INTERFACE)
target_compile_options(kilnutil_warnings INTERFACE
  $<$<COMPILE_LANGUAGE:C,CXX>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wcast-qual -Wundef>
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast>
  $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<CXX_COMPILER_ID:GNU>>:-Wduplicated-cond -Wlogical-op>
  $<$<AND:$<COMPILE_LANGUAGE:CXX>,$<CXX_COMPILER_ID:GNU>>:-Wuseless-cast>
  $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<CXX_COMPILER_ID:Clang>>:-Wmissing-prototypes>
  $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<BOOL:${KILNUTIL_WERROR}>>:-Werror>)

# The library's arithmetic gives the same doubles with every compiler and
# machine: no fused multiply-add contraction, never fast-math.
add_library(kilnutil_float_rules INTERFACE)
target_compile_options(kilnutil_float_rules INTERFACE
  $<$<COMPILE_LANGUAGE:C,CXX>:-ffp-contract=off -fno-fast-math>)
