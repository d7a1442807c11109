# Installs the library, its headers, a CMake package (find_package(kilnutil)
# gives kilnutil::kilnutil) and a pkg-config file.
include(CMakePackageConfigHelpers)

install(TARGETS kilnutil EXPORT kilnutilTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/kilnutil DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
if(TARGET kilnutil_cli)
  install(TARGETS kilnutil_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

set(KILNUTIL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/kilnutil)
install(EXPORT kilnutilTargets NAMESPACE kilnutil:: DESTINATION ${KILNUTIL_CMAKE_DIR})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kilnutilConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kilnutilConfig.cmake INSTALL_DESTINATION ${KILNUTIL_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kilnutilConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kilnutilConfig.cmake ${PROJECT_BINARY_DIR}/kilnutilConfigVersion.cmake
  DESTINATION ${KILNUTIL_CMAKE_DIR})

# The pkg-config file finds its prefix relative to where it is installed, so
# an installation moved or made with `cmake --install --prefix` stays right.
string(REGEX REPLACE "[^/]+" ".." KILNUTIL_PC_TO_PREFIX "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
configure_file(${PROJECT_SOURCE_DIR}/cmake/kilnutil.pc.in ${PROJECT_BINARY_DIR}/kilnutil.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kilnutil.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
