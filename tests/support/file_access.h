// What a file test needs of the platform's own file services. Each platform
// has its own file behind this header (file_access_posix.cpp,
// file_access_win32.cpp), chosen by CMake.
#pragma once

#include <kilnutil/unicode.h>

#include <filesystem>
#include <fstream>
#include <string_view>

namespace kiln_test {

// Writes all of `bytes` through a handle of KILNUTIL_UTF8_CreateFile (a file
// descriptor on POSIX, a CreateFileW handle on Windows).
bool write_to_handle(HANDLE handle, std::string_view bytes);
// Closes such a handle (close, CloseHandle).
bool close_handle(HANDLE handle);

// Whether a new file can be made in `folder` (one is made and removed).
inline bool folder_takes_new_files(const std::filesystem::path& folder) {
  const std::filesystem::path probe = folder / "probe";
  if (!std::ofstream(probe).is_open()) return false;
  std::filesystem::remove(probe);
  return true;
}

// Makes a folder refuse new files: no write permission on POSIX, an access
// list entry denying new files and folders on Windows. False, with the
// folder left writable, where a new file can still be made: the superuser
// passes permission bits, and Wine does not enforce access lists.
bool make_folder_read_only(const std::filesystem::path& folder);
void make_folder_writable(const std::filesystem::path& folder);

}  // namespace kiln_test
