// A progress bar on standard error for work that takes more than a second,
// shown only when standard error is a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace kilnutil_cli {

class Progress {
public:
  // total: the bytes the work will read, 0 when unknown (a pipe).
  Progress(std::string label, std::uint64_t total);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void update(std::uint64_t done);

private:
  std::string label_;
  std::uint64_t total_;
  bool enabled_;
  bool shown_ = false;
  std::chrono::steady_clock::time_point start_;
  std::chrono::steady_clock::time_point last_;
};

// Whether standard error is a terminal.
bool stderr_is_terminal();

}  // namespace kilnutil_cli
