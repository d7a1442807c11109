// Where the platform keeps the user's language choice between runs, emptied
// for a test and put back afterwards, so that the user's own choice is never
// read or changed: on POSIX settings.ini in a private configuration folder
// ($KILNUTIL_CONFIG_DIR), with the locale variables removed; on Windows the
// value "Language" under HKEY_CURRENT_USER\Software\kilnutil. Each platform
// has its own file behind this header (language_store_posix.cpp,
// language_store_win32.cpp), chosen by CMake.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace kiln_test {

class LanguageStore {
public:
  LanguageStore();
  ~LanguageStore();
  LanguageStore(const LanguageStore&) = delete;
  LanguageStore& operator=(const LanguageStore&) = delete;

  // Stores `value` as the choice, as an earlier run would have left it.
  void store(const std::string& value);
  // The stored value; nothing when none is stored.
  std::optional<std::string> stored() const;
  void clear();

private:
  struct Saved;
  std::unique_ptr<Saved> saved_;
};

}  // namespace kiln_test
