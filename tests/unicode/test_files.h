// Files for the encoding tests: a private folder removed afterwards, whole
// file reads and writes, and glibc's iconv as the independent converter the
// library's results are compared with.
#pragma once

#include <gtest/gtest.h>

#include <iconv.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

namespace kiln_test {

class TempFolder {
public:
  TempFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kiln-enc-XXXXXX").string();
    if (mkdtemp(pattern.data()) != nullptr) path_ = pattern;
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string file(const std::string& name) const { return (path_ / name).string(); }
  const std::filesystem::path& path() const { return path_; }
  // Names of the entries in the folder (to see that no temporary file is left).
  size_t entry_count() const {
    return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
  }

private:
  std::filesystem::path path_;
};

inline void write_file(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string read_file(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// `bytes` converted by glibc's iconv, or nothing when iconv refuses them.
inline std::optional<std::string> iconv_convert(const char* from, const char* to, const std::string& bytes) {
  iconv_t converter = iconv_open(to, from);
  if (converter == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  std::string output(bytes.size() * 4 + 16, '\0');
  char* in = const_cast<char*>(bytes.data());
  size_t in_left = bytes.size();
  char* out = output.data();
  size_t out_left = output.size();
  const size_t result = iconv(converter, &in, &in_left, &out, &out_left);
  iconv_close(converter);
  if (result == static_cast<size_t>(-1)) return std::nullopt;
  output.resize(output.size() - out_left);
  return output;
}

}  // namespace kiln_test
