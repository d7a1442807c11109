// kilnutil path check PATH... | split PATH...: the syntax code of each path
// with its meaning, or its folder, name and extension.
#include "commands.h"

#include <kilnutil/files.h>

#include <cstdio>
#include <string>
#include <vector>

namespace kilnutil_cli {

namespace {

const char* code_meaning(int code) {
  switch (code) {
    case KILNUTIL_PATH_DRIVE: return "valid drive path";
    case KILNUTIL_PATH_UNC: return "valid UNC path";
    case KILNUTIL_PATH_NOT_ABSOLUTE: return "neither a drive letter with ':' nor two leading backslashes";
    case KILNUTIL_PATH_BAD_SERVER: return "invalid server name";
    case KILNUTIL_PATH_BAD_CHARACTER: return "forbidden character";
    case KILNUTIL_PATH_DOUBLE_BACKSLASH: return "two consecutive backslashes";
    case KILNUTIL_PATH_DRIVE_RELATIVE: return "drive-relative path";
    default: return "unknown";
  }
}

int check_paths(Args paths) {
  int status = kOk;
  for (const char* path : paths) {
    int code = 0;
    if (KILNUTIL_IsPathValidSyntax(path, &code) == 0) status = kInputFailed;
    std::printf("%s\t%d\t%s\n", path, code, code_meaning(code));
  }
  return status;
}

int split_paths(Args paths) {
  for (const char* path : paths) {
    const size_t size = std::string(path).size() + 1;
    std::vector<char> folder(size), name(size), extension(size);
    KILNUTIL_SeparatePath(path, folder.data(), name.data(), extension.data());
    std::printf("%s\t%s\t%s\t%s\n", path, folder.data(), name.data(), extension.data());
  }
  return kOk;
}

}  // namespace

int run_path(Args args) {
  if (args.size() < 2) return usage_error("path takes 'check' or 'split' and one or more paths");
  const std::string action = args[0];
  if (action == "check") return check_paths(args.subspan(1));
  if (action == "split") return split_paths(args.subspan(1));
  return usage_error("path: unknown action '" + action + "' (check or split)");
}

}  // namespace kilnutil_cli
