// Standard input copied to a uniquely named file in the temporary folder.
#include "stdin_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <system_error>

namespace kilnutil_cli {

StdinFile::~StdinFile() {
  std::error_code ignored;
  if (!path_.empty()) std::filesystem::remove(path_, ignored);
}

const std::string& StdinFile::path() {
  if (!path_.empty()) return path_;
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
  if (error) return path_;
  std::random_device random;
  const std::filesystem::path candidate = folder / ("kilnutil-stdin-" + std::to_string(random()) + std::to_string(random()));
  std::ofstream out(candidate, std::ios::binary | std::ios::trunc);
  std::copy(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>(), std::ostreambuf_iterator<char>(out));
  out.close();
  if (out) path_ = candidate.string();
  return path_;
}

}  // namespace kilnutil_cli
