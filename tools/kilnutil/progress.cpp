// The progress bar. Whether standard error is a terminal is read from the
// process's descriptor table (/proc/self/fd/2 naming a terminal device), so
// the tool needs no system header for it; where that table does not exist
// no bar is shown.
#include "progress.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace kilnutil_cli {

bool stderr_is_terminal() {
  std::error_code error;
  const std::string target = std::filesystem::read_symlink("/proc/self/fd/2", error).string();
  if (error) return false;
  return target.starts_with("/dev/pts/") || target.starts_with("/dev/tty") || target.starts_with("/dev/console");
}

Progress::Progress(std::string label, std::uint64_t total)
    : label_(std::move(label)),
      total_(total),
      enabled_(stderr_is_terminal()),
      start_(std::chrono::steady_clock::now()),
      last_(start_) {}

Progress::~Progress() {
  if (shown_) std::fprintf(stderr, "\r\033[K");
}

void Progress::update(std::uint64_t done) {
  if (!enabled_) return;
  const auto now = std::chrono::steady_clock::now();
  if (now - start_ < std::chrono::seconds(1) || now - last_ < std::chrono::milliseconds(200)) return;
  last_ = now;
  shown_ = true;
  const double mib = static_cast<double>(done) / (1 << 20);
  if (total_ == 0) {
    std::fprintf(stderr, "\r%s %.0f MiB", label_.c_str(), mib);
  } else {
    constexpr int kWidth = 30;
    const double share = static_cast<double>(done) / static_cast<double>(total_);
    const int filled = static_cast<int>(share * kWidth);
    std::fprintf(stderr, "\r%s [%-*.*s] %3.0f%% %.0f MiB", label_.c_str(), kWidth, filled,
                 "==============================", share * 100, mib);
  }
  std::fflush(stderr);
}

}  // namespace kilnutil_cli
