# The Windows build: the platform layer's Win32 backend in place of the POSIX
# files, and kilnutil.dll with its import library. Exported names come from the
# export macro, except the script functions named like C runtime functions
# (sqrt, pow, ...): those are compiled under private names and exported under
# their runtime names by a generated .def file, so that nothing inside the DLL
# ever binds to them (the library's own sqrt calls reach the C runtime).
include_guard(GLOBAL)
include(${CMAKE_CURRENT_LIST_DIR}/KilnutilRuntimeNames.cmake)

# The POSIX backend's files (src/platform/<name>.cpp) that src/platform/win32/
# replaces; the shared files (bits, cpu_features, file_bytes) serve both.
set(KILNUTIL_POSIX_BACKEND_FILES
  case_mapping clock codepage file_replacement file_system global_memory host_system library_load runtime_math
  shared_library
  user_settings)

function(kilnutil_select_windows_backend sources_var)
  set(sources ${${sources_var}})
  foreach(name IN LISTS KILNUTIL_POSIX_BACKEND_FILES)
    list(FILTER sources EXCLUDE REGEX "/platform/${name}\\.cpp$")
  endforeach()
  file(GLOB windows_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/platform/win32/*.cpp")
  list(APPEND sources ${windows_sources})
  set(${sources_var} ${sources} PARENT_SCOPE)
endfunction()

# The private name of a runtime-named export inside the DLL.
function(kilnutil_runtime_export_symbol name out_var)
  set(${out_var} "kilnutil_runtime_export_${name}" PARENT_SCOPE)
endfunction()

function(kilnutil_write_def_file path)
  set(text "LIBRARY kilnutil.dll\nEXPORTS\n")
  foreach(name IN LISTS KILNUTIL_RUNTIME_NAMES)
    kilnutil_runtime_export_symbol(${name} symbol)
    string(APPEND text "    ${name} = ${symbol}\n")
  endforeach()
  file(CONFIGURE OUTPUT "${path}" CONTENT "${text}" @ONLY)
endfunction()

function(kilnutil_add_windows_library)
  set(def_file "${CMAKE_CURRENT_BINARY_DIR}/kilnutil_runtime_names.def")
  kilnutil_write_def_file("${def_file}")

  # The runtime-named exports under private names: every name in the file
  # (header declarations included) is renamed, and the export macro is left
  # empty there because the .def file exports them.
  set(renames "")
  foreach(name IN LISTS KILNUTIL_RUNTIME_NAMES)
    kilnutil_runtime_export_symbol(${name} symbol)
    list(APPEND renames "${name}=${symbol}")
  endforeach()
  add_library(kilnutil_runtime_names OBJECT "${PROJECT_SOURCE_DIR}/src/math/runtime_name_exports.cpp")
  target_compile_definitions(kilnutil_runtime_names PRIVATE KILNUTIL_BUILDING KILNUTIL_EXPORTED_BY_DEF_FILE ${renames})
  target_compile_options(kilnutil_runtime_names PRIVATE -fno-builtin)
  target_include_directories(kilnutil_runtime_names PRIVATE "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(kilnutil_runtime_names PUBLIC kilnutil_deps PRIVATE kilnutil_warnings kilnutil_float_rules)

  add_library(kilnutil SHARED $<TARGET_OBJECTS:kilnutil_objects> $<TARGET_OBJECTS:kilnutil_runtime_names> "${def_file}")
  add_library(kilnutil::kilnutil ALIAS kilnutil)
  # kilnutil.dll and its import library libkilnutil.dll.a.
  set_target_properties(kilnutil PROPERTIES PREFIX "" VERSION ${PROJECT_VERSION})
  target_include_directories(kilnutil PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(kilnutil PRIVATE $<BUILD_INTERFACE:kilnutil_deps>)
  target_link_options(kilnutil PRIVATE "LINKER:--no-undefined")
endfunction()
