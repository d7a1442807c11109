cmake_minimum_required(VERSION 3.25)
# The Windows form of check_exports.cmake: compares the export table of
# kilnutil.dll (objdump -p, demangled) with the names in src/*/exports.txt.
# The lists name the Linux symbols, so three things are read the Windows way:
# the UTF-16 unit is wchar_t (char16_t on Linux), FILE is _iobuf (_IO_FILE
# on Linux), and the DLL exports no type-name strings ("typeinfo name for"),
# which the Windows loader has no use for. GlobalAlloc and its family are the
# system's own on Windows, so the POSIX build's list of them is left out.
# -DLIBRARY=path/to/kilnutil.dll -DSOURCE_DIR=project root -DOBJDUMP=... -DCXXFILT=...
execute_process(COMMAND ${OBJDUMP} -p "${LIBRARY}" OUTPUT_VARIABLE dump RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "${OBJDUMP} failed on ${LIBRARY}")
endif()
string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table\n(.*)" table "${dump}")
set(table "${CMAKE_MATCH_1}")
string(REGEX MATCHALL "\t\\[ *[0-9]+\\] [^\n]+" entries "${table}")
set(mangled "")
foreach(entry IN LISTS entries)
  string(REGEX REPLACE "^\t\\[ *[0-9]+\\] " "" name "${entry}")
  string(APPEND mangled "${name}\n")
endforeach()
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/exports_pe_names.txt" "${mangled}")
execute_process(COMMAND ${CXXFILT} INPUT_FILE "${CMAKE_CURRENT_BINARY_DIR}/exports_pe_names.txt"
  OUTPUT_VARIABLE demangled RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "${CXXFILT} failed")
endif()
string(REPLACE "\n" ";" exported "${demangled}")
list(FILTER exported EXCLUDE REGEX "^$")
list(REMOVE_DUPLICATES exported)

include("${SOURCE_DIR}/cmake/KilnutilExportLists.cmake")
kilnutil_read_export_lists(all_listed "${SOURCE_DIR}")
file(STRINGS "${SOURCE_DIR}/src/platform/exports.txt" posix_only REGEX "^[A-Za-z]")
set(listed "")
foreach(name IN LISTS all_listed)
  if(name IN_LIST posix_only OR name MATCHES "^typeinfo name for ")
    continue()
  endif()
  string(REPLACE "char16_t" "wchar_t" name "${name}")
  string(REPLACE "_IO_FILE" "_iobuf" name "${name}")
  list(APPEND listed "${name}")
endforeach()

kilnutil_compare_export_sets("${listed}" "${exported}")
