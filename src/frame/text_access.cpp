// The character sources: an open stream read as UTF-8, and a UTF-8 string in
// memory. Members of exported classes are defined here, beside the class.
#include "unicode/char_stream.h"
#include "unicode/utf8.h"

#include <kilnutil/frame.h>
#include <kilnutil/unicode.h>

#include <cstdio>

namespace {

constexpr unsigned kEndOfText = KILNUTIL_COMMENT_END;

}  // namespace

VTextAccess::VTextAccess() = default;
VTextAccess::VTextAccess(const VTextAccess&) = default;
VTextAccess::VTextAccess(VTextAccess&&) noexcept = default;
VTextAccess& VTextAccess::operator=(const VTextAccess&) = default;
VTextAccess& VTextAccess::operator=(VTextAccess&&) noexcept = default;
VTextAccess::~VTextAccess() = default;

// ---- An open stream.

VTextAccessFromFile::VTextAccessFromFile(FILE* stream) : stream_(stream) {}
VTextAccessFromFile::VTextAccessFromFile(const VTextAccessFromFile&) = default;
VTextAccessFromFile::VTextAccessFromFile(VTextAccessFromFile&&) noexcept = default;
VTextAccessFromFile& VTextAccessFromFile::operator=(const VTextAccessFromFile&) = default;
VTextAccessFromFile& VTextAccessFromFile::operator=(VTextAccessFromFile&&) noexcept = default;
VTextAccessFromFile::~VTextAccessFromFile() = default;

// The source holds a stream, so the byte-source flag of the character
// readers never applies to it.
unsigned int VTextAccessFromFile::GetChar(unsigned int flags) {
  return static_cast<unsigned>(kiln::unicode::read_utf8_char(stream_, flags & ~unsigned{KILNUTIL_CHAR_SOURCE}));
}

void VTextAccessFromFile::UnGetChar(unsigned int c, unsigned int flags) {
  kiln::unicode::unread_utf8_char(c, stream_, flags & ~unsigned{KILNUTIL_CHAR_SOURCE});
}

bool VTextAccessFromFile::IsEOF(unsigned int c) {
  return c == kEndOfText || (stream_ != nullptr && std::feof(stream_) != 0);
}

// ---- A string in memory.

VTextAccessFromString::VTextAccessFromString(const char* text) : start_(text), position_(text) {}
VTextAccessFromString::VTextAccessFromString(const VTextAccessFromString&) = default;
VTextAccessFromString::VTextAccessFromString(VTextAccessFromString&&) noexcept = default;
VTextAccessFromString& VTextAccessFromString::operator=(const VTextAccessFromString&) = default;
VTextAccessFromString& VTextAccessFromString::operator=(VTextAccessFromString&&) noexcept = default;
VTextAccessFromString::~VTextAccessFromString() = default;

unsigned int VTextAccessFromString::GetChar(unsigned int) {
  if (position_ == nullptr || *position_ == '\0') return kEndOfText;
  int length = 0;
  const unsigned c = kiln::unicode::utf8_decode(reinterpret_cast<const unsigned char*>(position_), &length);
  position_ += length;
  return c;
}

// The start of the previous character is worked out but not kept: the
// position stays, so a character given back is skipped.
void VTextAccessFromString::UnGetChar(unsigned int, unsigned int) { static_cast<void>(start_); }

// 0xFFFFFFFF is accepted beside 0 so that a block comment left open at the
// string's end ends the reader instead of looping at the NUL.
bool VTextAccessFromString::IsEOF(unsigned int c) { return c == 0 || c == kEndOfText; }
