// No settings store and no thread language on POSIX.
#include "platform/user_settings.h"

namespace kiln::platform {

bool has_settings_store() { return false; }
bool read_setting(const char* /*name*/, std::string& /*value*/) { return false; }
bool write_setting(const char* /*name*/, const std::string& /*value*/) { return false; }

unsigned short user_ui_language() { return 0; }
unsigned short thread_ui_language() { return 0; }
unsigned short set_thread_ui_language(unsigned short language) { return language; }

}  // namespace kiln::platform
