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

# Test files built on POSIX only, because they need what a Windows C runtime
# does not have: glibc's iconv as the independent reference converter,
# fork/rlimit/pipe to make writes fail, POSIX permission bits, setenv, and
# file descriptors returned as handles. The behaviour they check is shared
# code; the Windows backend's own services are covered by tests/platform/.
set(KILNUTIL_POSIX_ONLY_TESTS
  unicode/convert_test.cpp unicode/detect_test.cpp unicode/file_rewrite_test.cpp
  unicode/text_file_utf8_test.cpp unicode/utf8_paths_test.cpp
  files/section_test.cpp color/list_file_test.cpp locale/language_test.cpp)
