#include "platform/file_system.h"
#include "platform/open_flags.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

namespace kiln::platform {

long long stream_position(std::FILE* stream) { return ftello(stream); }

bool seek_stream(std::FILE* stream, long long offset) {
  return fseeko(stream, static_cast<off_t>(offset), SEEK_SET) == 0;
}

bool seek_stream_end(std::FILE* stream) { return fseeko(stream, 0, SEEK_END) == 0; }

std::FILE* open_stream(const char* path, const char* mode) { return std::fopen(path, mode); }

bool file_exists(const char* path) { return access(path, F_OK) == 0; }

int test_file_access(const char* path, int mode) { return access(path, mode); }

bool remove_file(const char* path) { return unlink(path) == 0; }

bool make_folder(const char* path) { return mkdir(path, 0777) == 0 || errno == EEXIST; }

std::string temporary_folder() {
  const char* folder = std::getenv("TMPDIR");
  return folder == nullptr || *folder == '\0' ? "/tmp" : folder;
}

std::FILE* create_temporary_file(const std::string& folder, const char* prefix, std::string& path) {
  const std::string pattern = folder + "/" + prefix + "XXXXXX";
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  const int descriptor = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  std::FILE* stream = fdopen(descriptor, "wb");
  if (stream == nullptr) {
    close(descriptor);
    unlink(name.data());
    return nullptr;
  }
  path = name.data();
  return stream;
}

int open_file_descriptor(const char* path, bool reads, bool writes, OpenRule rule, bool create_read_only) {
  const mode_t permissions = create_read_only ? 0444 : 0666;
  return open(path, O_CLOEXEC | access_and_creation_flags(reads, writes, rule), permissions);
}

void* open_file_handle(const char* path, bool reads, bool writes, OpenRule rule, bool create_read_only) {
  const int descriptor = open_file_descriptor(path, reads, writes, rule, create_read_only);
  return descriptor < 0 ? invalid_file_handle() : reinterpret_cast<void*>(static_cast<intptr_t>(descriptor));
}

bool close_file_handle(void* handle) { return close(static_cast<int>(reinterpret_cast<intptr_t>(handle))) == 0; }

}  // namespace kiln::platform
