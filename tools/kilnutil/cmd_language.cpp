// kilnutil language [LETTER|NAME]: the languages determined for this process
// and the stored choice, or a new choice stored for the next processes.
#include "commands.h"

#include <kilnutil/locale.h>

#include <cstdio>
#include <string>

namespace kilnutil_cli {

namespace {

void show_language(const char* label, int index) {
  const unsigned id = KILNUTIL_GetResourceLanguageIDEx(index);
  if (id == 0) {
    std::printf("%s\tundetermined\n", label);
    return;
  }
  std::printf("%s\t%s\t0x%04X\n", label, KILNUTIL_language_character(index, 0), id);
}

// The index of a language letter or name (either case), or 0.
unsigned language_index(const char* text) {
  const unsigned by_name = KILNUTIL_get_res_language_index(text, 1);
  if (by_name >= KILNUTIL_LANGUAGE_ENGLISH && by_name <= KILNUTIL_LANGUAGE_CHINESE) return by_name;
  const char letter[2] = {static_cast<char>(text[0] >= 'a' && text[0] <= 'z' ? text[0] - 32 : text[0]), '\0'};
  const unsigned by_letter = text[1] == '\0' ? KILNUTIL_get_res_language_index(letter, 0) : 0;
  return by_letter >= KILNUTIL_LANGUAGE_ENGLISH && by_letter <= KILNUTIL_LANGUAGE_CHINESE ? by_letter : 0;
}

}  // namespace

int run_language(Args args) {
  if (args.size() > 1) return usage_error("language takes at most one language");
  if (args.empty()) {
    char stored[2] = "";
    KILNUTIL_SetResourceLang(nullptr, nullptr, stored);
    show_language("resource", KILNUTIL_ResourceLanguageIndex(0, 1));
    show_language("user", KILNUTIL_UserLanguageIndex());
    std::printf("stored\t%s\n", stored[0] != '\0' ? stored : "none");
    return kOk;
  }
  const unsigned index = language_index(args[0]);
  if (index == 0) return usage_error(std::string("unknown language '") + args[0] + "' (E, G, J, C or a name)");
  const char* letter = KILNUTIL_language_character(static_cast<int>(index), 0);
  char stored[2] = "";
  KILNUTIL_SetResourceLang(letter, nullptr, nullptr);
  KILNUTIL_SetResourceLang(nullptr, nullptr, stored);
  if (stored[0] != letter[0]) return input_error("the language choice could not be stored");
  std::printf("stored\t%s\t(from the next start)\n", letter);
  return kOk;
}

}  // namespace kilnutil_cli
