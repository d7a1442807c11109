# Warning set shared by the library, the tool, the tests and the benchmarks.
add_library(kilnutil_warnings INTERFACE)
target_compile_options(kilnutil_warnings INTERFACE
  $<$<COMPILE_LANGUAGE:C,CXX>:-Wall -Wextra>
  $<$<AND:$<COMPILE_LANGUAGE:C,CXX>,$<BOOL:${KILNUTIL_WERROR}>>:-Werror>)
