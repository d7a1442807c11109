// File descriptors and permission bits.
#include "support/file_access.h"

#include <unistd.h>

#include <cstdint>

namespace kiln_test {
namespace {

int descriptor_of(HANDLE handle) { return static_cast<int>(reinterpret_cast<intptr_t>(handle)); }

}  // namespace

bool write_to_handle(HANDLE handle, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(descriptor_of(handle), bytes.data(), bytes.size());
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<size_t>(written));
  }
  return true;
}

bool close_handle(HANDLE handle) { return close(descriptor_of(handle)) == 0; }

bool make_folder_read_only(const std::filesystem::path& folder) {
  if (geteuid() == 0) return false;
  using std::filesystem::perms;
  std::filesystem::permissions(folder, perms::owner_read | perms::owner_exec | perms::group_read | perms::group_exec |
                                           perms::others_read | perms::others_exec);
  return true;
}

void make_folder_writable(const std::filesystem::path& folder) {
  std::filesystem::permissions(folder, std::filesystem::perms::owner_write, std::filesystem::perm_options::add);
}

}  // namespace kiln_test
