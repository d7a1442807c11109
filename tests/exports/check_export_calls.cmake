# Every exported name is called by at least one test: each name of
# src/*/exports.txt must appear in tests/**/*.cpp, tests/**/*.c or
# tests/tools/*.cmake (a C++ member is looked for by its member name). Names a
# test cannot reach on this platform are listed, with the reason, in
# tests/exports/not_called.txt.
# -DSOURCE_DIR=project root
cmake_minimum_required(VERSION 3.25)
include("${SOURCE_DIR}/cmake/KilnutilExportLists.cmake")
kilnutil_read_export_lists(listed "${SOURCE_DIR}")

file(GLOB_RECURSE test_files "${SOURCE_DIR}/tests/*.cpp" "${SOURCE_DIR}/tests/*.c" "${SOURCE_DIR}/tests/*.h")
file(GLOB cli_files "${SOURCE_DIR}/tests/tools/*.cmake")
set(corpus "")
foreach(test_file IN LISTS test_files cli_files)
  file(READ "${test_file}" text)
  string(APPEND corpus "${text}\n")
endforeach()

set(excused "")
if(EXISTS "${SOURCE_DIR}/tests/exports/not_called.txt")
  file(STRINGS "${SOURCE_DIR}/tests/exports/not_called.txt" excused_lines)
  foreach(line IN LISTS excused_lines)
    if(line MATCHES "^([A-Za-z_][A-Za-z0-9_]*)")
      list(APPEND excused "${CMAKE_MATCH_1}")
    endif()
  endforeach()
endif()

# The name a test would write: a C name as it is; for a C++ member
# "Class::member(args)" or "Type Class<...>::member(args)", the member; for a
# destructor or an operator, which a test calls without naming it, the class.
function(callable_name entry out_var)
  string(REGEX REPLACE "\\(.*$" "" head "${entry}")
  string(REGEX REPLACE "::operator.*$" "" head "${head}")
  string(REGEX REPLACE "::~[A-Za-z0-9_]*$" "" head "${head}")
  string(REGEX REPLACE "<[^<>]*>" "" head "${head}")
  string(REGEX REPLACE "^.*[: ]" "" head "${head}")
  set(${out_var} "${head}" PARENT_SCOPE)
endfunction()

set(uncalled "")
foreach(entry IN LISTS listed)
  callable_name("${entry}" name)
  if(name STREQUAL "" OR name IN_LIST excused)
    continue()
  endif()
  string(REGEX MATCH "[^A-Za-z0-9_]${name}[^A-Za-z0-9_]" found "${corpus}")
  if(NOT found)
    list(APPEND uncalled "${name}")
  endif()
endforeach()
list(REMOVE_DUPLICATES uncalled)
if(uncalled)
  list(LENGTH uncalled count)
  string(REPLACE ";" "\n  " text "${uncalled}")
  message(FATAL_ERROR "${count} exports are called by no test:\n  ${text}")
endif()
