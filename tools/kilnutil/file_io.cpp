// Chunked reading and writing with the system's reason on failure.
#include "file_io.h"

#include "cli.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace kilnutil_cli {

InputFile::~InputFile() { close(); }

void InputFile::close() {
  if (owned_ && stream_ != nullptr) std::fclose(stream_);
  stream_ = nullptr;
  owned_ = false;
}

bool InputFile::open(const std::string& name) {
  close();
  name_ = name;
  error_.clear();
  offset_ = 0;
  if (name == "-") {
    stream_ = stdin;
  } else {
    // A folder is refused by name: POSIX opens one and fails the first read,
    // Windows refuses to open it with a plain "Permission denied".
    std::error_code ignored;
    if (std::filesystem::is_directory(name, ignored)) {
      error_ = system_reason(EISDIR);
      return false;
    }
    errno = 0;
    stream_ = std::fopen(name.c_str(), "rb");
    if (stream_ == nullptr) {
      error_ = system_reason(errno);
      return false;
    }
    owned_ = true;
  }
  std::error_code ignored;
  const std::filesystem::path path = name == "-" ? "/dev/stdin" : name;
  seekable_ = std::filesystem::is_regular_file(path, ignored) && std::fseek(stream_, 0, SEEK_CUR) == 0;
  if (seekable_) size_ = std::filesystem::file_size(path, ignored);
  if (ignored) size_ = 0;
  return true;
}

std::size_t InputFile::read(char* buffer, std::size_t size) {
  if (stream_ == nullptr || size == 0) return 0;
  errno = 0;
  const std::size_t got = std::fread(buffer, 1, size, stream_);
  if (got == 0 && std::ferror(stream_)) error_ = system_reason(errno != 0 ? errno : EIO);
  offset_ += got;
  return got;
}

std::size_t InputFile::read_full(char* buffer, std::size_t size) {
  std::size_t total = 0;
  while (total < size) {
    const std::size_t got = read(buffer + total, size - total);
    if (got == 0) break;
    total += got;
  }
  return total;
}

bool InputFile::seek_back(std::uint64_t offset) {
  if (!seekable_ || std::fseek(stream_, static_cast<long>(offset), SEEK_SET) != 0) return false;
  offset_ = offset;
  return true;
}

void InputFile::adopt(std::FILE* stream, std::uint64_t offset) {
  close();
  stream_ = stream;
  offset_ = offset;
  owned_ = true;
  seekable_ = false;
}

OutputFile::~OutputFile() {
  if (owned_ && stream_ != nullptr) std::fclose(stream_);
}

bool OutputFile::open(const std::string& name) {
  name_ = name.empty() ? "-" : name;
  if (name_ == "-") {
    stream_ = stdout;
    return true;
  }
  errno = 0;
  stream_ = std::fopen(name_.c_str(), "wb");
  if (stream_ == nullptr) {
    error_ = system_reason(errno);
    return false;
  }
  owned_ = true;
  return true;
}

bool OutputFile::write(const char* bytes, std::size_t size) {
  if (stream_ == nullptr || !error_.empty()) return false;
  errno = 0;
  if (std::fwrite(bytes, 1, size, stream_) == size) return true;
  error_ = system_reason(errno != 0 ? errno : EIO);
  return false;
}

bool OutputFile::finish() {
  if (stream_ == nullptr) return error_.empty();
  errno = 0;
  const bool flushed = std::fflush(stream_) == 0 && !std::ferror(stream_);
  if (!flushed && error_.empty()) error_ = system_reason(errno != 0 ? errno : EIO);
  if (owned_ && std::fclose(stream_) != 0 && error_.empty()) error_ = system_reason(errno != 0 ? errno : EIO);
  stream_ = nullptr;
  owned_ = false;
  return error_.empty();
}

}  // namespace kilnutil_cli
