// The platform's store of the user's choices between runs and the thread's
// user-interface language. On Windows these are the registry (values under
// HKEY_CURRENT_USER\Software\kilnutil) and GetThreadUILanguage /
// SetThreadUILanguage; the POSIX build has neither (the locale subsystem
// keeps its own settings file and language there).
#pragma once

#include <string>

namespace kiln::platform {

// Whether the platform has a settings store (the registry).
bool has_settings_store();
// The string value `name`; false when it is absent or not a string.
bool read_setting(const char* name, std::string& value);
// Stores the string value `name`, making the key when missing.
bool write_setting(const char* name, const std::string& value);

// The user's default user-interface language identifier; 0 where the
// platform has none.
unsigned short user_ui_language();
// The thread's user-interface language identifier; 0 where the platform has
// none.
unsigned short thread_ui_language();
// Makes `language` the thread's user-interface language and returns the
// platform's answer (the identifier set, 0 on failure); where the platform
// has none, `language` itself.
unsigned short set_thread_ui_language(unsigned short language);

}  // namespace kiln::platform
