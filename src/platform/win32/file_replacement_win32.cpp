// Crash-safe file replacement on Windows: the temporary file is made beside
// the original by GetTempFileNameW, flushed, and moved over the original by
// MoveFileExW with replace and write-through. The original's identity is its
// volume serial number and file index.
#include "platform/file_replacement.h"
#include "platform/win32/wide_text.h"
#include "platform/write_all.h"

#include <windows.h>

#include <io.h>
#include <fcntl.h>

namespace kiln::platform {

namespace {

std::string folder_of(const std::string& path) {
  const size_t separator = path.find_last_of("/\\");
  if (separator == std::string::npos) return ".";
  return separator == 0 ? path.substr(0, 1) : path.substr(0, separator);
}

struct FileIdentity {
  bool exists = false;
  unsigned long long volume = 0;
  unsigned long long index = 0;
};

FileIdentity identity_of(const std::wstring& path) {
  FileIdentity identity;
  HANDLE file = CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                            nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return identity;
  BY_HANDLE_FILE_INFORMATION information{};
  if (GetFileInformationByHandle(file, &information) != 0) {
    identity.exists = true;
    identity.volume = information.dwVolumeSerialNumber;
    identity.index = (static_cast<unsigned long long>(information.nFileIndexHigh) << 32) | information.nFileIndexLow;
  }
  CloseHandle(file);
  return identity;
}

}  // namespace

FileReplacement::FileReplacement(const char* path) : path_(path != nullptr ? path : "") {}

FileReplacement::~FileReplacement() { discard(); }

void FileReplacement::discard() {
  if (descriptor_ >= 0) _close(descriptor_);
  descriptor_ = -1;
  if (!temporary_path_.empty()) DeleteFileW(win32::wide_from_utf8(temporary_path_.c_str()).c_str());
  temporary_path_.clear();
}

bool FileReplacement::create() {
  if (path_.empty()) return false;
  const FileIdentity original = identity_of(win32::wide_from_utf8(path_.c_str()));
  original_existed_ = original.exists;
  original_device_ = original.volume;
  original_inode_ = original.index;
  wchar_t name[MAX_PATH];
  if (GetTempFileNameW(win32::wide_from_utf8(folder_of(path_).c_str()).c_str(), L"kln", 0, name) == 0) return false;
  descriptor_ = _wopen(name, _O_WRONLY | _O_TRUNC | _O_BINARY | _O_NOINHERIT);
  if (descriptor_ < 0) {
    DeleteFileW(name);
    return false;
  }
  temporary_path_ = win32::utf8_from_wide(name);
  return true;
}

bool FileReplacement::write(const void* data, size_t size) {
  if (write_failed_) return false;
  write_failed_ = !write_all(static_cast<const char*>(data), size, [this](const char* bytes, size_t count) {
    const unsigned chunk = count > 0x40000000u ? 0x40000000u : static_cast<unsigned>(count);
    return static_cast<long long>(_write(descriptor_, bytes, chunk));
  });
  return !write_failed_;
}

ReplaceStatus FileReplacement::commit() {
  if (descriptor_ < 0) return ReplaceStatus::kCantCreate;
  const bool flushed = !write_failed_ && _commit(descriptor_) == 0;
  const bool closed = _close(descriptor_) == 0;
  descriptor_ = -1;
  if (!flushed || !closed) {
    discard();
    return ReplaceStatus::kShortWrite;
  }
  const std::wstring wide_path = win32::wide_from_utf8(path_.c_str());
  const FileIdentity now = identity_of(wide_path);
  const bool unchanged =
      original_existed_ ? now.exists && now.volume == original_device_ && now.index == original_inode_ : !now.exists;
  if (!unchanged) {
    discard();
    return ReplaceStatus::kVanished;
  }
  if (MoveFileExW(win32::wide_from_utf8(temporary_path_.c_str()).c_str(), wide_path.c_str(),
                  MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) == 0) {
    discard();
    return ReplaceStatus::kShortWrite;
  }
  temporary_path_.clear();
  return ReplaceStatus::kDone;
}

bool temporary_name_extends_original() { return false; }

}  // namespace kiln::platform
