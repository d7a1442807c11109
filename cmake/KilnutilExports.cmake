# The exported interface is listed once, in src/<subsystem>/exports.txt: one
# name a line, either a C name or the demangled signature of a C++ member (as
# `nm -DC` prints it). This module turns the lists into the ELF version script
# so that the linker exports exactly those names; tests/exports compares the
# built library's dynamic symbols with the same lists.
set(KILNUTIL_VERSION_NODE "KILNUTIL_${PROJECT_VERSION_MAJOR}")

include(${CMAKE_CURRENT_LIST_DIR}/KilnutilExportLists.cmake)
# The configuration (and so the version script) is redone when a list is
# added or edited.
file(GLOB kilnutil_export_lists CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/*/exports.txt")
set_property(DIRECTORY "${PROJECT_SOURCE_DIR}" APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${kilnutil_export_lists})

function(kilnutil_write_version_script path)
  kilnutil_read_export_lists(names "${PROJECT_SOURCE_DIR}")
  set(c_names "")
  set(cxx_names "")
  foreach(name IN LISTS names)
    if(name MATCHES "[(:< ]")
      string(APPEND cxx_names "      \"${name}\";\n")
    else()
      string(APPEND c_names "    ${name};\n")
    endif()
  endforeach()
  set(text "${KILNUTIL_VERSION_NODE} {\n  global:\n${c_names}")
  if(cxx_names)
    string(APPEND text "    extern \"C++\" {\n${cxx_names}    };\n")
  endif()
  string(APPEND text "  local:\n    *;\n};\n")
  file(CONFIGURE OUTPUT "${path}" CONTENT "${text}" @ONLY)
endfunction()
