// The resource, user and thread languages, kept for the process.
#include "locale/language_state.h"

#include "frame/settings.h"
#include "locale/language_table.h"
#include "locale/stored_language.h"
#include "platform/user_settings.h"

#include <atomic>

namespace kiln::locale {

namespace {

constexpr auto kRelaxed = std::memory_order_relaxed;

std::atomic<unsigned char> g_resource_language{kNotDetermined};
std::atomic<unsigned char> g_user_language{kNotDetermined};
std::atomic<unsigned short> g_thread_language{0};

// English, undetermined and any index above 4 leave the code page unset.
void set_code_page_of(unsigned char index) {
  frame::set_string_process_code_page_for_language(index == kEnglish ? kUndetermined : index);
}

}  // namespace

unsigned char determine_language() {
  const unsigned char stored = stored_language_index();
  if (stored != kNotDetermined) return stored;
  return process_locale_language_index();
}

unsigned char resource_language() {
  unsigned char index = g_resource_language.load(kRelaxed);
  if (index == kNotDetermined) {
    index = determine_language();
    g_resource_language.store(index, kRelaxed);
    set_code_page_of(index);
  }
  return index;
}

unsigned char exchange_resource_language(unsigned char index) {
  const unsigned char previous = g_resource_language.exchange(index, kRelaxed);
  set_code_page_of(index);
  return previous;
}

unsigned char user_language() {
  unsigned char index = g_user_language.load(kRelaxed);
  if (index == kNotDetermined) {
    index = determine_language();
    g_user_language.store(index, kRelaxed);
  }
  return index;
}

unsigned setup_thread_language() {
  const unsigned short wanted = identifier_of_index(resource_language());
  g_thread_language.store(wanted, kRelaxed);
  // The platform's thread language follows, where it has one.
  if (platform::thread_ui_language() == wanted) return wanted;
  return platform::set_thread_ui_language(wanted);
}

unsigned short thread_language() { return g_thread_language.load(kRelaxed); }

void forget_languages() {
  g_resource_language.store(kNotDetermined, kRelaxed);
  g_user_language.store(kNotDetermined, kRelaxed);
}

}  // namespace kiln::locale
