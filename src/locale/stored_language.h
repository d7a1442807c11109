// Where the language choice is kept: the key Language of section [General]
// in settings.ini under the configuration folder; and the language of the
// process locale, which decides when no choice is stored.
#pragma once

#include <string>

namespace kiln::locale {

// settings.ini in $KILNUTIL_CONFIG_DIR, else $XDG_CONFIG_HOME/kilnutil, else
// $HOME/.config/kilnutil; empty when none of them is set.
std::string settings_file_path();

// The stored letter's index (its first character upper-cased), or 255 when
// none is stored or it is no language letter.
unsigned char stored_language_index();

// Stores letter as the choice, keeping the rest of the file; the folder is
// made when missing. The file is replaced whole, never left half-written.
bool store_language_letter(char letter);

// The language of the process locale: de, ja, zh, en give 2, 3, 4, 1;
// anything else 0.
unsigned char process_locale_language_index();

}  // namespace kiln::locale
