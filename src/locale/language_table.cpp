// The language table. Chinese takes the identifier of the default locale of
// the Chinese primary language, which is Chinese (Simplified, PRC) here.
#include "locale/language_table.h"

#include <cstring>

namespace kiln::locale {

namespace {

struct Language {
  char letter;
  const char* letter_text;
  const char* name;
  unsigned short identifier;
};

constexpr Language kLanguages[] = {
    {'E', "E", "English", 0x0409},
    {'G', "G", "German", 0x0407},
    {'J', "J", "Japanese", 0x0411},
    {'C', "C", "Chinese", 0x0804},
};
constexpr unsigned kLanguageCount = sizeof kLanguages / sizeof kLanguages[0];

const Language* language_of_index(unsigned index) {
  return index >= 1 && index <= kLanguageCount ? &kLanguages[index - 1] : nullptr;
}

char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

bool same_ignoring_case(const char* a, const char* b) {
  for (; *a != '\0' && *b != '\0'; ++a, ++b)
    if (ascii_lower(*a) != ascii_lower(*b)) return false;
  return *a == *b;
}

}  // namespace

unsigned char index_of_letter(unsigned letter) {
  for (unsigned i = 0; i < kLanguageCount; ++i)
    if (static_cast<unsigned>(kLanguages[i].letter) == letter) return static_cast<unsigned char>(i + 1);
  return kNotDetermined;
}

unsigned char index_of_name(const char* name) {
  for (unsigned i = 0; i < kLanguageCount; ++i)
    if (same_ignoring_case(kLanguages[i].name, name)) return static_cast<unsigned char>(i + 1);
  return kUndetermined;
}

const char* letter_of_index(unsigned index) {
  const Language* language = language_of_index(index);
  return language != nullptr ? language->letter_text : nullptr;
}

const char* name_of_index(unsigned index) {
  const Language* language = language_of_index(index);
  return language != nullptr ? language->name : nullptr;
}

unsigned short identifier_of_index(unsigned index) {
  const Language* language = language_of_index(index);
  return language != nullptr ? language->identifier : 0;
}

}  // namespace kiln::locale
