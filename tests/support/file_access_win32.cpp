// CreateFileW handles; folders that refuse new files by an entry of their
// access list (the rest of the list is inherited from the parent folder).
#include "support/file_access.h"

#include <windows.h>

#include <aclapi.h>

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

namespace {

// The folder's own access list: empty, or one entry denying everyone new
// files and folders; inherited entries come after it either way.
bool set_own_access_list(const std::filesystem::path& folder, bool deny_new_entries) {
  BYTE everyone[SECURITY_MAX_SID_SIZE];
  DWORD sid_size = sizeof everyone;
  if (CreateWellKnownSid(WinWorldSid, nullptr, everyone, &sid_size) == 0) return false;
  alignas(ACL) BYTE list[256];
  ACL* acl = reinterpret_cast<ACL*>(list);
  if (InitializeAcl(acl, sizeof list, ACL_REVISION) == 0) return false;
  if (deny_new_entries && AddAccessDeniedAce(acl, ACL_REVISION, FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY, everyone) == 0) {
    return false;
  }
  std::wstring name = folder.wstring();
  return SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT,
                               DACL_SECURITY_INFORMATION | UNPROTECTED_DACL_SECURITY_INFORMATION, nullptr, nullptr, acl,
                               nullptr) == ERROR_SUCCESS;
}

}  // namespace

bool make_folder_read_only(const std::filesystem::path& folder) {
  if (set_own_access_list(folder, true) && !folder_takes_new_files(folder)) return true;
  make_folder_writable(folder);
  return false;
}

void make_folder_writable(const std::filesystem::path& folder) { set_own_access_list(folder, false); }

}  // namespace kiln_test
