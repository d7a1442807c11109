#include "platform/file_replacement.h"
#include "platform/write_all.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace kiln::platform {

namespace {

std::string folder_of(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// Makes the rename itself durable.
void sync_folder(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  fsync(descriptor);
  close(descriptor);
}

}  // namespace

FileReplacement::FileReplacement(const char* path) : path_(path != nullptr ? path : "") {}

FileReplacement::~FileReplacement() { discard(); }

void FileReplacement::discard() {
  if (descriptor_ >= 0) close(descriptor_);
  descriptor_ = -1;
  if (!temporary_path_.empty()) unlink(temporary_path_.c_str());
  temporary_path_.clear();
}

bool FileReplacement::create() {
  if (path_.empty()) return false;
  // A symbolic link keeps pointing at the file whose contents change.
  if (char* target = realpath(path_.c_str(), nullptr); target != nullptr) {
    path_ = target;
    std::free(target);
  }
  struct stat original {};
  original_existed_ = stat(path_.c_str(), &original) == 0;
  if (original_existed_) {
    original_device_ = original.st_dev;
    original_inode_ = original.st_ino;
  }
  std::string pattern = path_ + ".kiln-XXXXXX";
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  descriptor_ = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor_ < 0) return false;
  temporary_path_ = name.data();
  if (original_existed_) fchmod(descriptor_, original.st_mode & 07777);
  return true;
}

bool FileReplacement::write(const void* data, size_t size) {
  if (write_failed_) return false;
  write_failed_ = !write_all(static_cast<const char*>(data), size, [this](const char* bytes, size_t count) {
    ssize_t written;
    do {
      written = ::write(descriptor_, bytes, count);
    } while (written < 0 && errno == EINTR);
    return static_cast<long long>(written);
  });
  return !write_failed_;
}

ReplaceStatus FileReplacement::commit() {
  if (descriptor_ < 0) return ReplaceStatus::kCantCreate;
  const bool flushed = !write_failed_ && fsync(descriptor_) == 0;
  const bool closed = close(descriptor_) == 0;
  descriptor_ = -1;
  if (!flushed || !closed) {
    discard();
    return ReplaceStatus::kShortWrite;
  }
  struct stat now {};
  const bool exists_now = stat(path_.c_str(), &now) == 0;
  const bool unchanged =
      original_existed_ ? exists_now && now.st_dev == original_device_ && now.st_ino == original_inode_ : !exists_now;
  if (!unchanged) {
    discard();
    return ReplaceStatus::kVanished;
  }
  if (std::rename(temporary_path_.c_str(), path_.c_str()) != 0) {
    discard();
    return ReplaceStatus::kShortWrite;
  }
  temporary_path_.clear();
  sync_folder(folder_of(path_));
  return ReplaceStatus::kDone;
}

bool temporary_name_extends_original() { return true; }

}  // namespace kiln::platform
