// What a file test needs of the platform's own file services. Each platform
// has its own file behind this header (file_access_posix.cpp,
// file_access_win32.cpp), chosen by CMake.
#pragma once

#include <kilnutil/unicode.h>

#include <filesystem>
#include <string_view>

namespace kiln_test {

// Writes all of `bytes` through a handle of KILNUTIL_UTF8_CreateFile (a file
// descriptor on POSIX, a CreateFileW handle on Windows).
bool write_to_handle(HANDLE handle, std::string_view bytes);
// Closes such a handle (close, CloseHandle).
bool close_handle(HANDLE handle);

// Makes a folder refuse new files; false where this process can't be refused
// that way: on POSIX the superuser passes permission bits, and on Windows a
// folder's read-only attribute does not stop new files (only an access list
// would, which the Windows emulator the tests run under does not enforce).
bool make_folder_read_only(const std::filesystem::path& folder);
void make_folder_writable(const std::filesystem::path& folder);

}  // namespace kiln_test
