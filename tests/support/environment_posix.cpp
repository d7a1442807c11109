// The environment through the C library's getenv, setenv and unsetenv.
#include "support/environment.h"

#include <cstdlib>

namespace kiln_test {

std::optional<std::string> environment_variable(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr) return std::nullopt;
  return std::string(value);
}

void set_environment_variable(const char* name, const std::string& value) { setenv(name, value.c_str(), 1); }

void unset_environment_variable(const char* name) { unsetenv(name); }

const char* temporary_folder_variable() { return "TMPDIR"; }

}  // namespace kiln_test
