// Writes that fail as on a full disk: a call run in a child process whose
// files may not grow past a limit (POSIX only: fork, pipe, setrlimit; Windows
// has no per-process file size limit).
#pragma once

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace kiln_test {

constexpr int kNoResultFromChild = 12345;

// Runs `call` in a child whose files may grow to at most `limit` bytes
// (writes beyond fail instead of killing it) and returns its result.
inline int with_file_size_limit(rlim_t limit, const std::function<int()>& call) {
  int channel[2];
  if (pipe(channel) != 0) return kNoResultFromChild;
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit rl{limit, limit};
    setrlimit(RLIMIT_FSIZE, &rl);
    const int result = call();
    ssize_t ignored = write(channel[1], &result, sizeof result);
    (void)ignored;
    _exit(0);
  }
  close(channel[1]);
  int result = kNoResultFromChild;
  if (read(channel[0], &result, sizeof result) != sizeof result) result = kNoResultFromChild;
  close(channel[0]);
  waitpid(child, nullptr, 0);
  return result;
}

}  // namespace kiln_test
