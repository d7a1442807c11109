// Replacing a file's contents without ever losing it: the new contents go to
// a temporary file in the same folder, which is flushed to disk and renamed
// over the original. Until that rename the original is untouched; on any
// failure the temporary file is removed and the original stays as it was.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>

namespace kiln::platform {

enum class ReplaceStatus {
  kDone,
  kCantCreate,  // no temporary file could be made beside the original
  kShortWrite,  // writing, flushing or renaming failed
  kVanished,    // the original was removed or replaced meanwhile
};

struct ByteRange {
  const void* data;
  size_t size;
};

class FileReplacement {
public:
  explicit FileReplacement(const char* path);
  ~FileReplacement();  // removes the temporary file unless committed
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  // Makes the temporary file (with the original's permissions, when it exists).
  bool create();
  // Appends bytes to the temporary file; false on a short write.
  bool write(const void* data, size_t size);
  // Flushes the temporary file to disk and renames it over the original, if
  // the original is still the file it was when create() ran (or still absent).
  ReplaceStatus commit();

  const std::string& temporary_path() const { return temporary_path_; }

private:
  void discard();

  std::string path_;
  std::string temporary_path_;
  int descriptor_ = -1;
  bool original_existed_ = false;
  unsigned long long original_device_ = 0;
  unsigned long long original_inode_ = 0;
  bool write_failed_ = false;
};

// create(), write() of each range, commit().
ReplaceStatus replace_file(const char* path, std::initializer_list<ByteRange> contents);

// Whether the temporary file's name is the original's with a suffix, so that
// an original named near the system's limit leaves no room for it (POSIX);
// the Windows backend's temporary names come from GetTempFileNameW and are
// short.
bool temporary_name_extends_original();

}  // namespace kiln::platform
