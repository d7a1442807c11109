// File descriptors; folders made read-only by their permission bits.
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
  using std::filesystem::perms;
  std::filesystem::permissions(folder, perms::owner_write | perms::group_write | perms::others_write,
                               std::filesystem::perm_options::remove);
  if (!folder_takes_new_files(folder)) return true;
  make_folder_writable(folder);
  return false;
}

void make_folder_writable(const std::filesystem::path& folder) {
  std::filesystem::permissions(folder, std::filesystem::perms::owner_write, std::filesystem::perm_options::add);
}

}  // namespace kiln_test
