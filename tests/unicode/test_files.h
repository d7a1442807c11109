// Files for the encoding tests: a private folder removed afterwards and whole
// file reads and writes. Paths are UTF-8 strings, as the library takes them
// (a narrow path given to the file system would be read in the ANSI code page
// on Windows).
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace kiln_test {

inline std::filesystem::path utf8_path(const std::string& utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

inline std::string utf8_string(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

class TempFolder {
public:
  // A new folder of a random name in the system's temporary folder.
  TempFolder() {
    std::random_device random;
    for (int attempt = 0; attempt < 100 && path_.empty(); ++attempt) {
      const auto candidate = std::filesystem::temp_directory_path() / ("kiln-enc-" + std::to_string(random()));
      std::error_code error;
      if (std::filesystem::create_directory(candidate, error)) path_ = candidate;
    }
  }
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string file(const std::string& name) const { return utf8_string(path_ / utf8_path(name)); }
  const std::filesystem::path& path() const { return path_; }
  // Names of the entries in the folder (to see that no temporary file is left).
  size_t entry_count() const {
    return static_cast<size_t>(std::distance(std::filesystem::directory_iterator(path_), {}));
  }

private:
  std::filesystem::path path_;
};

inline void write_file(const std::string& path, const std::string& bytes) {
  std::ofstream out(utf8_path(path), std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string read_file(const std::string& path) {
  std::ifstream in(utf8_path(path), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

}  // namespace kiln_test
