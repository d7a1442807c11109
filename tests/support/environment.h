// The process environment for tests: variables read, set and removed by name
// (UTF-8 values), and a change undone at the end of a scope. Each platform
// has its own file behind this header (environment_posix.cpp,
// environment_win32.cpp), chosen by CMake.
#pragma once

#include <optional>
#include <string>

namespace kiln_test {

std::optional<std::string> environment_variable(const char* name);
// An empty value removes the variable on Windows; tests give none.
void set_environment_variable(const char* name, const std::string& value);
void unset_environment_variable(const char* name);

// The variable that names the folder of the system's temporary files: TMPDIR
// on POSIX, TMP on Windows (read by GetTempPathW).
const char* temporary_folder_variable();

// Sets (or with nullopt removes) a variable and puts its old value back when
// the scope ends.
class ScopedVariable {
public:
  ScopedVariable(const char* name, const std::optional<std::string>& value)
      : name_(name), old_(environment_variable(name)) {
    assign(name_, value);
  }
  ~ScopedVariable() { assign(name_, old_); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

private:
  static void assign(const char* name, const std::optional<std::string>& value) {
    if (value) {
      set_environment_variable(name, *value);
    } else {
      unset_environment_variable(name);
    }
  }
  const char* name_;
  std::optional<std::string> old_;
};

}  // namespace kiln_test
