// The four user-interface languages: index, letter, name, identifier.
#pragma once

namespace kiln::locale {

inline constexpr unsigned char kUndetermined = 0;
inline constexpr unsigned char kEnglish = 1;
inline constexpr unsigned char kJapanese = 3;
inline constexpr unsigned char kNotDetermined = 255;

// The index of a language letter (exactly "E", "G", "J" or "C"), else 255.
unsigned char index_of_letter(unsigned letter);
// The index of a language name compared without regard to ASCII case, or 0
// when it is none of the four.
unsigned char index_of_name(const char* name);
// The one-letter text of an index 1 to 4, else null.
const char* letter_of_index(unsigned index);
// The name of an index 1 to 4, else null.
const char* name_of_index(unsigned index);
// The language identifier of an index 1 to 4, else 0.
unsigned short identifier_of_index(unsigned index);

}  // namespace kiln::locale
