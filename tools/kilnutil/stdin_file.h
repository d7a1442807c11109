// Standard input kept in a temporary file, for commands that read FILE|- but
// open files through the library's import path (which needs a path).
#pragma once

#include <string>

namespace kilnutil_cli {

class StdinFile {
public:
  StdinFile() = default;
  ~StdinFile();
  StdinFile(const StdinFile&) = delete;
  StdinFile& operator=(const StdinFile&) = delete;

  // Copies standard input on first use; "" when the copy cannot be written.
  const std::string& path();

private:
  std::string path_;
};

}  // namespace kilnutil_cli
