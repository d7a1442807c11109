// File-system services by the wide Win32 and runtime-library calls; the
// library's UTF-8 paths are converted to UTF-16 for every call.
#include "platform/file_system.h"
#include "platform/open_flags.h"
#include "platform/win32/wide_text.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>

#include <cerrno>

namespace kiln::platform {

using win32::wide_from_utf8;

long long stream_position(std::FILE* stream) { return _ftelli64(stream); }

bool seek_stream(std::FILE* stream, long long offset) { return _fseeki64(stream, offset, SEEK_SET) == 0; }

bool seek_stream_end(std::FILE* stream) { return _fseeki64(stream, 0, SEEK_END) == 0; }

std::FILE* open_stream(const char* path, const char* mode) {
  // "e" (not inherited by child processes) is spelt "N" by this runtime.
  std::wstring wide_mode = wide_from_utf8(mode);
  for (wchar_t& letter : wide_mode) {
    if (letter == L'e') letter = L'N';
  }
  return _wfopen(wide_from_utf8(path).c_str(), wide_mode.c_str());
}

bool file_exists(const char* path) {
  return GetFileAttributesW(wide_from_utf8(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

int test_file_access(const char* path, int mode) { return _waccess(wide_from_utf8(path).c_str(), mode); }

bool remove_file(const char* path) { return DeleteFileW(wide_from_utf8(path).c_str()) != 0; }

bool make_folder(const char* path) {
  return CreateDirectoryW(wide_from_utf8(path).c_str(), nullptr) != 0 || GetLastError() == ERROR_ALREADY_EXISTS;
}

std::string temporary_folder() {
  wchar_t folder[MAX_PATH + 1];
  const DWORD length = GetTempPathW(MAX_PATH + 1, folder);
  if (length == 0 || length > MAX_PATH) return ".";
  std::string result = win32::utf8_from_wide(folder);
  // Without the separator that ends it, as the POSIX folder is given.
  while (result.size() > 1 && (result.back() == '\\' || result.back() == '/')) result.pop_back();
  return result;
}

std::FILE* create_temporary_file(const std::string& folder, const char* prefix, std::string& path) {
  wchar_t name[MAX_PATH];
  if (GetTempFileNameW(wide_from_utf8(folder.c_str()).c_str(), wide_from_utf8(prefix).c_str(), 0, name) == 0) {
    return nullptr;
  }
  std::FILE* stream = _wfopen(name, L"wbN");
  if (stream == nullptr) {
    DeleteFileW(name);
    return nullptr;
  }
  path = win32::utf8_from_wide(name);
  return stream;
}

int open_file_descriptor(const char* path, bool reads, bool writes, OpenRule rule, bool create_read_only) {
  const int permissions = create_read_only ? _S_IREAD : _S_IREAD | _S_IWRITE;
  return _wopen(wide_from_utf8(path).c_str(),
                _O_BINARY | _O_NOINHERIT | access_and_creation_flags(reads, writes, rule), permissions);
}

namespace {

DWORD creation_disposition(OpenRule rule) {
  switch (rule) {
    case OpenRule::kCreateNew: return CREATE_NEW;
    case OpenRule::kCreateAlways: return CREATE_ALWAYS;
    case OpenRule::kOpenExisting: return OPEN_EXISTING;
    case OpenRule::kOpenAlways: return OPEN_ALWAYS;
    case OpenRule::kTruncateExisting: return TRUNCATE_EXISTING;
  }
  return OPEN_EXISTING;
}

}  // namespace

void* open_file_handle(const char* path, bool reads, bool writes, OpenRule rule, bool create_read_only) {
  const DWORD access = (reads ? GENERIC_READ : 0u) | (writes ? GENERIC_WRITE : 0u);
  const DWORD attributes = create_read_only ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL;
  return CreateFileW(wide_from_utf8(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                     creation_disposition(rule), attributes, nullptr);
}

bool close_file_handle(void* handle) { return CloseHandle(handle) != 0; }

}  // namespace kiln::platform
