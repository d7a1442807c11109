# Exports that share a name with a C runtime function (sqrt, pow, round, ...)
# must not capture the library's own use of the runtime. They are compiled
# into the shared library only (the static archive the tests link never
# defines them), and inside the shared library every other reference to one
# of those names is redirected by the linker (--wrap) to a forwarder in
# src/platform/runtime_name_bindings.cpp that calls the runtime's own,
# version-tagged definition. The tags are read from the C math library here.
set(KILNUTIL_RUNTIME_NAMES
  acos acosh asin asinh atanh ceil cosh expm1 floor hypot log10 log1p pow round sinh sqrt tan)

# Writes the header of version tags; sets KILNUTIL_RUNTIME_BINDINGS_FOUND.
function(kilnutil_write_runtime_versions header)
  set(KILNUTIL_RUNTIME_BINDINGS_FOUND FALSE PARENT_SCOPE)
  if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux" OR NOT CMAKE_NM)
    return()
  endif()
  execute_process(COMMAND ${CMAKE_C_COMPILER} -print-file-name=libm.so.6
    OUTPUT_VARIABLE libm OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${libm}" OR NOT EXISTS "${libm}")
    message(WARNING "C math library not found: runtime-named exports are not bound")
    return()
  endif()
  execute_process(COMMAND ${CMAKE_NM} -D --defined-only "${libm}" OUTPUT_VARIABLE symbols)
  set(text "/* Generated: the C math library's default version of each runtime name. */\n#pragma once\n")
  foreach(name IN LISTS KILNUTIL_RUNTIME_NAMES)
    if(NOT symbols MATCHES "[ \n]${name}@@([A-Za-z0-9_.]+)")
      message(WARNING "${name} has no default version in ${libm}: runtime-named exports are not bound")
      return()
    endif()
    string(APPEND text "#define KILNUTIL_RUNTIME_VERSION_${name} \"${CMAKE_MATCH_1}\"\n")
  endforeach()
  file(CONFIGURE OUTPUT "${header}" CONTENT "${text}" @ONLY)
  set(KILNUTIL_RUNTIME_BINDINGS_FOUND TRUE PARENT_SCOPE)
endfunction()

# The objects of the runtime-named exports and their bindings, for `target`.
function(kilnutil_add_runtime_names target)
  set(generated "${CMAKE_CURRENT_BINARY_DIR}/generated")
  kilnutil_write_runtime_versions("${generated}/platform/runtime_name_versions.h")
  if(NOT KILNUTIL_RUNTIME_BINDINGS_FOUND)
    return()
  endif()
  add_library(kilnutil_runtime_names OBJECT
    "${PROJECT_SOURCE_DIR}/src/math/runtime_name_exports.cpp"
    "${PROJECT_SOURCE_DIR}/src/platform/runtime_name_bindings.cpp")
  set_target_properties(kilnutil_runtime_names PROPERTIES
    POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  target_compile_definitions(kilnutil_runtime_names PRIVATE KILNUTIL_BUILDING)
  target_include_directories(kilnutil_runtime_names PRIVATE "${PROJECT_SOURCE_DIR}/src" "${generated}")
  target_link_libraries(kilnutil_runtime_names PUBLIC kilnutil_deps PRIVATE kilnutil_warnings)
  set_source_files_properties("${PROJECT_SOURCE_DIR}/src/math/runtime_name_exports.cpp"
    TARGET_DIRECTORY kilnutil_runtime_names PROPERTIES COMPILE_OPTIONS "-fno-builtin")
  target_sources(${target} PRIVATE $<TARGET_OBJECTS:kilnutil_runtime_names>)
  foreach(name IN LISTS KILNUTIL_RUNTIME_NAMES)
    target_link_options(${target} PRIVATE "LINKER:--wrap=${name}")
  endforeach()
endfunction()
