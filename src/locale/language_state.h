// The process-wide languages: the resource language, the user language and
// the thread language, each determined or set on first use.
#pragma once

namespace kiln::locale {

// The resource language, determined on first use (which also sets the
// string-process code page).
unsigned char resource_language();
// Stores the resource language and sets the string-process code page;
// returns the previous index.
unsigned char exchange_resource_language(unsigned char index);
// The user language, determined on first use.
unsigned char user_language();
// Makes the thread language the resource language's identifier; returns it.
unsigned setup_thread_language();
// The thread's language identifier (0 until set).
unsigned short thread_language();

// The language from the stored choice, else the process locale (0 when
// neither names one).
unsigned char determine_language();

// Both indices back to "not yet determined" (for a process that changes its
// configuration folder, as the tests do).
void forget_languages();

}  // namespace kiln::locale
