# Compares the dynamic symbols the library defines (nm -DC --defined-only)
# with the names listed in src/*/exports.txt: nothing may be exported by
# accident and nothing listed may be missing.
# -DLIBRARY=path/to/libkilnutil.so -DSOURCE_DIR=project root
find_program(NM nm REQUIRED)
execute_process(COMMAND ${NM} -D -C --defined-only "${LIBRARY}"
  OUTPUT_VARIABLE nm_out RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "nm failed on ${LIBRARY}")
endif()

string(REPLACE "\n" ";" nm_lines "${nm_out}")
set(exported "")
foreach(line IN LISTS nm_lines)
  # "<address> <type> <name>[@@version]"; skip the version node itself (type A).
  if(NOT line MATCHES "^[0-9a-fA-F]+ ([A-Za-z]) (.+)$")
    continue()
  endif()
  if(CMAKE_MATCH_1 STREQUAL "A")
    continue()
  endif()
  string(REGEX REPLACE "@.*$" "" name "${CMAKE_MATCH_2}")
  list(APPEND exported "${name}")
endforeach()
list(REMOVE_DUPLICATES exported)

include("${SOURCE_DIR}/cmake/KilnutilExportLists.cmake")
kilnutil_read_export_lists(listed "${SOURCE_DIR}")

kilnutil_compare_export_sets("${listed}" "${exported}")
