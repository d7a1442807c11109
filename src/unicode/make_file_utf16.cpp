// Making a file UTF-16 little-endian: a missing file is created (with its
// folders) holding the mark FF FE; an empty one gets the mark; code-page text
// without a mark is rewritten as UTF-16; anything else is left alone.
#include "platform/file_system.h"
#include "unicode/code_page_text.h"
#include "unicode/encoding_detect.h"
#include "unicode/file_rewrites.h"
#include "platform/file_bytes.h"
#include "platform/file_replacement.h"

#include <kilnutil/unicode.h>

#include <exception>
#include <string>

namespace kiln::unicode {

namespace {

constexpr unsigned char kUtf16LeMark[] = {0xFF, 0xFE};

// The UTF-8 form of a UTF-16 path, empty when it has none.
std::string utf8_path(const KILN_WCHAR* path) {
  const int bytes = platform::wide_to_multibyte(platform::kCodePageUtf8, path, -1, nullptr, 0);
  if (bytes <= 1) return {};
  std::string result(static_cast<size_t>(bytes), '\0');
  if (platform::wide_to_multibyte(platform::kCodePageUtf8, path, -1, result.data(), bytes) != bytes) return {};
  result.pop_back();
  return result;
}

// Creates every folder on the way to the last '/' of the path.
void make_folders_for(const std::string& path) {
  const size_t last = path.find_last_of('/');
  if (last == std::string::npos || last == 0) return;
  for (size_t slash = path.find('/', 1); slash != std::string::npos && slash <= last;
       slash = path.find('/', slash + 1)) {
    const std::string folder = path.substr(0, slash);
    if (!platform::make_folder(folder.c_str())) return;
  }
}

bool write_mark_only(const std::string& path) {
  return platform::replace_file(path.c_str(), {{kUtf16LeMark, sizeof kUtf16LeMark}}) == platform::ReplaceStatus::kDone;
}

// Rewrites code-page text without a mark as UTF-16LE with the mark.
void rewrite_as_utf16(const std::string& path) {
  platform::FileBytes file;
  if (platform::read_whole_file(path.c_str(), file) != platform::ReadStatus::kOk) return;
  if (file.size >= 2 && file.data[0] == 0xFF && file.data[1] == 0xFE) return;
  if (file.size > 0x7FFFFFFF) return;
  WideScratch units;
  const int count = to_wide(resolve_code_page(-1), reinterpret_cast<const char*>(file.data.get()),
                            static_cast<int>(file.size), units);
  if (count == 0) return;
  platform::replace_file(path.c_str(), {{kUtf16LeMark, sizeof kUtf16LeMark},
                                        {units.data(), static_cast<size_t>(count) * sizeof(KILN_WCHAR)}});
}

int make_file_utf16(const std::string& path) {
  if (path.empty()) return 0;
  if (!platform::file_exists(path.c_str())) {
    make_folders_for(path);
    return write_mark_only(path) ? 1 : 0;
  }
  const unsigned family = encoding_family(detect_file_encoding(path.c_str(), 0, kDetectMarkOnly));
  if (family == kEncodingUtf16Le) return 0;
  FILE* stream = kiln::platform::open_stream(path.c_str(), "rb");
  if (stream == nullptr) return 0;
  const long long size = platform::stream_size(stream);
  std::fclose(stream);
  if (size < 0 || size > 0xFFFFFFFFll) return 0;
  if (size == 0) return write_mark_only(path) ? 1 : 0;
  if (family == kEncodingCodePage) rewrite_as_utf16(path);
  return 0;
}

}  // namespace

int make_file_utf16_at(const KILN_WCHAR* path) {
  if (path == nullptr) return 0;
  try {
    return make_file_utf16(utf8_path(path));
  } catch (const std::exception&) {
    return 0;
  }
}

void make_file_utf16_from_utf8(const char* path, bool delete_first) {
  if (path == nullptr) return;
  WideScratch units;
  if (to_wide(platform::kCodePageUtf8, path, -1, units) == 0) return;
  if (delete_first) platform::remove_file(path);
  make_file_utf16_at(units.data());
}

}  // namespace kiln::unicode
