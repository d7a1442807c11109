# GoogleTest for the cross-built tests: compiled from Debian's googletest
# source package with the same compiler as the library (no prebuilt Windows
# GoogleTest exists). Sets GTest_FOUND and the GTest:: targets.
set(KILNUTIL_GOOGLETEST_SOURCE_DIR "/usr/src/googletest" CACHE PATH "GoogleTest's sources, for cross-built tests")
set(GTest_FOUND FALSE)
if(EXISTS "${KILNUTIL_GOOGLETEST_SOURCE_DIR}/CMakeLists.txt")
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK ON CACHE BOOL "" FORCE)
  add_subdirectory("${KILNUTIL_GOOGLETEST_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
  foreach(target gtest gtest_main gmock)
    if(NOT TARGET GTest::${target})
      add_library(GTest::${target} ALIAS ${target})
    endif()
  endforeach()
  set(GTest_FOUND TRUE)
endif()

# Test files built on POSIX only. Everything else runs on both builds; these
# hold just the checks Windows has no counterpart for:
# - *_iconv_test.cpp: glibc's iconv as the independent reference converter;
# - *_size_limit_test.cpp: writes made to fail by fork and setrlimit;
# - language_settings_file_test.cpp: the POSIX store of the language choice
#   (settings.ini) and the locale variables (Windows: the registry and the
#   user's interface language, language_registry_test.cpp).
set(KILNUTIL_POSIX_ONLY_TESTS
  unicode/convert_iconv_test.cpp unicode/file_rewrite_size_limit_test.cpp color/list_file_size_limit_test.cpp
  locale/language_settings_file_test.cpp)
