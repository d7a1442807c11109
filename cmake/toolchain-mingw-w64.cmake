# Cross-building kilnutil.dll for 64-bit Windows with Debian's mingw-w64
# (the POSIX threads flavour, for std::thread). The cross-built programs run
# under Wine, found here as the emulator ctest uses.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(KILNUTIL_MINGW_PREFIX x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${KILNUTIL_MINGW_PREFIX}-gcc-posix)
set(CMAKE_CXX_COMPILER ${KILNUTIL_MINGW_PREFIX}-g++-posix)
set(CMAKE_RC_COMPILER ${KILNUTIL_MINGW_PREFIX}-windres)
set(CMAKE_OBJDUMP ${KILNUTIL_MINGW_PREFIX}-objdump CACHE FILEPATH "objdump for PE files")

set(CMAKE_FIND_ROOT_PATH /usr/${KILNUTIL_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Nothing beside Windows' own DLLs: the compiler's runtime libraries and the
# threads library are linked into every program and into the DLL.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static-libgcc -static-libstdc++ -static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static-libgcc -static-libstdc++ -static")

find_program(KILNUTIL_WINE NAMES wine64 wine PATHS /usr/lib/wine /usr/lib64/wine NO_CMAKE_FIND_ROOT_PATH)
if(KILNUTIL_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${KILNUTIL_WINE})
endif()

# The OpenMP runtime as a static archive (FindOpenMP would pick the import
# library of libgomp-1.dll).
execute_process(COMMAND ${CMAKE_C_COMPILER} -print-file-name=libgomp.a
  OUTPUT_VARIABLE KILNUTIL_STATIC_GOMP OUTPUT_STRIP_TRAILING_WHITESPACE)
if(IS_ABSOLUTE "${KILNUTIL_STATIC_GOMP}")
  set(OpenMP_gomp_LIBRARY "${KILNUTIL_STATIC_GOMP}" CACHE FILEPATH "The OpenMP runtime, linked statically" FORCE)
endif()

# Programs and the DLL in one folder, where Windows looks for a program's DLLs.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
