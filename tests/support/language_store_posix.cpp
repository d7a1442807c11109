// The language choice in settings.ini of a private configuration folder.
#include "support/language_store.h"

#include "support/environment.h"
#include "unicode/test_files.h"

#include <filesystem>
#include <list>

namespace kiln_test {

struct LanguageStore::Saved {
  TempFolder folder;
  std::list<ScopedVariable> variables;
  std::string settings_file() const { return folder.file("config/settings.ini"); }
};

LanguageStore::LanguageStore() : saved_(std::make_unique<Saved>()) {
  for (const char* name : {"XDG_CONFIG_HOME", "LC_ALL", "LC_MESSAGES", "LANG"}) {
    saved_->variables.emplace_back(name, std::nullopt);
  }
  saved_->variables.emplace_back("KILNUTIL_CONFIG_DIR", saved_->folder.file("config"));
}

LanguageStore::~LanguageStore() = default;

void LanguageStore::store(const std::string& value) {
  std::filesystem::create_directories(saved_->folder.path() / "config");
  write_file(saved_->settings_file(), "[General]\nLanguage=" + value + "\n");
}

std::optional<std::string> LanguageStore::stored() const {
  const std::string text = read_file(saved_->settings_file());
  const std::string key = "\nLanguage=";
  const size_t found = ("\n" + text).find(key);
  if (found == std::string::npos) return std::nullopt;
  const size_t start = found + key.size() - 1;
  return text.substr(start, text.find('\n', start) - start);
}

void LanguageStore::clear() {
  std::error_code ignored;
  std::filesystem::remove(utf8_path(saved_->settings_file()), ignored);
}

}  // namespace kiln_test
