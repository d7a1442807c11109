// The language choice in the registry: the value "Language" under
// HKEY_CURRENT_USER\Software\kilnutil. Whatever was there (of any type) is put
// back afterwards, and a key this test made is removed again.
#include "support/language_store.h"

#include "support/wide_text_win32.h"

#include <windows.h>

#include <vector>

namespace kiln_test {
namespace {

constexpr wchar_t kKey[] = L"Software\\kilnutil";
constexpr wchar_t kValue[] = L"Language";

bool key_exists() {
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
  RegCloseKey(key);
  return true;
}

void delete_value() { RegDeleteKeyValueW(HKEY_CURRENT_USER, kKey, kValue); }

}  // namespace

struct LanguageStore::Saved {
  bool key_existed = false;
  bool value_existed = false;
  DWORD type = 0;
  std::vector<BYTE> data;
};

LanguageStore::LanguageStore() : saved_(std::make_unique<Saved>()) {
  saved_->key_existed = key_exists();
  DWORD size = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_ANY | RRF_NOEXPAND, &saved_->type, nullptr, &size) ==
      ERROR_SUCCESS) {
    saved_->data.resize(size);
    saved_->value_existed = RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_ANY | RRF_NOEXPAND, &saved_->type,
                                         saved_->data.data(), &size) == ERROR_SUCCESS;
    saved_->data.resize(size);
  }
  delete_value();
}

LanguageStore::~LanguageStore() {
  delete_value();
  if (saved_->value_existed) {
    RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, saved_->type, saved_->data.data(),
                    static_cast<DWORD>(saved_->data.size()));
  } else if (!saved_->key_existed) {
    RegDeleteKeyW(HKEY_CURRENT_USER, kKey);
  }
}

void LanguageStore::store(const std::string& value) {
  const std::wstring text = wide_from_utf8(value);
  RegSetKeyValueW(HKEY_CURRENT_USER, kKey, kValue, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

std::optional<std::string> LanguageStore::stored() const {
  DWORD size = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_REG_SZ, nullptr, nullptr, &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  std::wstring text(size / sizeof(wchar_t), L'\0');
  if (RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_REG_SZ, nullptr, text.data(), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  text.resize(size / sizeof(wchar_t));
  while (!text.empty() && text.back() == L'\0') text.pop_back();
  return utf8_from_wide(text);
}

void LanguageStore::clear() { delete_value(); }

}  // namespace kiln_test
