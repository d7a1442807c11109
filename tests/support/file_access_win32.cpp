// CreateFileW handles; folders that refuse new files are left to access
// lists, which these tests don't edit.
#include "support/file_access.h"

#include <windows.h>

namespace kiln_test {

bool write_to_handle(HANDLE handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const DWORD chunk = bytes.size() > 0x40000000u ? 0x40000000u : static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    if (WriteFile(handle, bytes.data(), chunk, &written, nullptr) == 0 || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

bool close_handle(HANDLE handle) { return CloseHandle(handle) != 0; }

bool make_folder_read_only(const std::filesystem::path& /*folder*/) { return false; }

void make_folder_writable(const std::filesystem::path& /*folder*/) {}

}  // namespace kiln_test
