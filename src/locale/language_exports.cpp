// Exports of the resource language selection.
#include "locale/language_state.h"
#include "locale/language_table.h"
#include "locale/stored_language.h"

#include <kilnutil/locale.h>

#include <algorithm>
#include <cstring>
#include <string>

namespace {

using namespace kiln::locale;

// Writes a one-letter text into out (two bytes) when the index has a letter.
void write_letter(char* out, unsigned index) {
  const char* letter = letter_of_index(index);
  if (out == nullptr || letter == nullptr) return;
  out[0] = letter[0];
  out[1] = '\0';
}

const char* letter_or_english(unsigned index) {
  const char* letter = letter_of_index(index);
  return letter != nullptr ? letter : "E";
}

}  // namespace

extern "C" {

unsigned char KILNUTIL_ResourceLanguageIndex(unsigned char index, int get) {
  return get != 0 ? resource_language() : exchange_resource_language(index);
}

unsigned char KILNUTIL_UserLanguageIndex(void) { return user_language(); }

int KILNUTIL_SetResourceLang(const char* text, char* current, char* stored) {
  write_letter(current, resource_language());
  write_letter(stored, stored_language_index());
  if (text == nullptr || *text == '\0') return 0;
  const char* letter = letter_of_index(index_of_letter(static_cast<unsigned char>(*text)));
  if (letter != nullptr) store_language_letter(letter[0]);
  return 1;
}

unsigned int KILNUTIL_setup_resource_language(void) { return setup_thread_language(); }

unsigned short KILNUTIL_GetResourceLanguageIDEx(int index) {
  return identifier_of_index(index < 0 ? resource_language() : static_cast<unsigned>(index));
}

unsigned int KILNUTIL_get_res_language_index(const char* text, int by_name) {
  if (text == nullptr || *text == '\0') return KILNUTIL_LANGUAGE_UNKNOWN_NAME;
  if (by_name == 0) return index_of_letter(static_cast<unsigned char>(*text));
  const unsigned char index = index_of_name(text);
  return index != KILNUTIL_LANGUAGE_UNDETERMINED ? index : KILNUTIL_LANGUAGE_UNKNOWN_NAME;
}

const char* KILNUTIL_language_character(int index, int user) {
  if (index == KILNUTIL_LANGUAGE_CURRENT) return letter_or_english(user != 0 ? user_language() : resource_language());
  return letter_or_english(static_cast<unsigned>(index));
}

const char* KILNUTIL_language_str(void) {
  const char* name = name_of_index(resource_language());
  return name != nullptr ? name : "English";
}

int KILNUTIL_language_charset(void) {
  return resource_language() == KILNUTIL_LANGUAGE_JAPANESE ? KILNUTIL_CHARSET_SHIFTJIS : 0;
}

unsigned int KILNUTIL_GetDefLocalPath(char* buffer, int size, unsigned int index) {
  if (buffer == nullptr || size < 1) return index;
  std::string path = "Localization\\";
  if (index != KILNUTIL_LANGUAGE_ROOT_PATH) path = path + letter_or_english(index) + "\\";
  const size_t length = std::min(path.size(), static_cast<size_t>(size) - 1);
  std::memcpy(buffer, path.data(), length);
  buffer[length] = '\0';
  return index;
}

}  // extern "C"
