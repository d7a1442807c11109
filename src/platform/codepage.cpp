// Code pages on ICU: converters with the Windows-compatible tables, one per
// code page and thread, opened on first use and kept for the thread's life.
#include "platform/codepage.h"
#include "platform/uchar_text.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include <langinfo.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <string_view>
#include <unordered_map>

namespace kiln::platform {
namespace {

// ICU names of the Windows code pages. Pages not listed are tried as
// "windows-<n>", then "ibm-<n>".
struct CodePageName {
  unsigned code_page;
  const char* icu_name;
};
constexpr CodePageName kCodePageNames[] = {
    {65001, "UTF-8"},       {932, "windows-932"},  {936, "windows-936"},  {949, "windows-949"},  {950, "windows-950"},
    {20127, "US-ASCII"},    {28591, "ISO-8859-1"}, {28592, "ISO-8859-2"}, {28595, "ISO-8859-5"}, {28597, "ISO-8859-7"},
    {28605, "ISO-8859-15"}, {20932, "EUC-JP"},     {51932, "EUC-JP"},     {51949, "EUC-KR"},     {54936, "GB18030"},
    {20866, "KOI8-R"},      {21866, "KOI8-U"},     {10000, "macintosh"},
};

struct ConverterCloser {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

UConverter* open_converter(unsigned code_page) {
  UErrorCode status = U_ZERO_ERROR;
  for (const CodePageName& entry : kCodePageNames) {
    if (entry.code_page == code_page) {
      UConverter* converter = ucnv_open(entry.icu_name, &status);
      return U_SUCCESS(status) ? converter : nullptr;
    }
  }
  if (code_page == 1200 || code_page == 1201 || code_page > 0xFFFF) return nullptr;
  for (const char* prefix : {"windows-", "ibm-"}) {
    char name[32];
    std::snprintf(name, sizeof name, "%s%u", prefix, code_page);
    status = U_ZERO_ERROR;
    UConverter* converter = ucnv_open(name, &status);
    if (U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING) return converter;
    ucnv_close(converter);
  }
  return nullptr;
}

// Windows converters without WC_NO_BEST_FIT_CHARS use best-fit mappings,
// which are ICU's fallback mappings, and write "?" for what has no mapping
// (UTF-8 writes U+FFFD for unpaired surrogates, ICU's own substitute there).
void configure_like_windows(UConverter* converter, unsigned code_page) {
  ucnv_setFallback(converter, true);
  if (code_page != kCodePageUtf8) {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_setSubstChars(converter, "?", 1, &status);
  }
}

// The thread's converter for a code page, or null when ICU has none.
UConverter* converter_for(unsigned code_page) {
  thread_local std::unordered_map<unsigned, ConverterPtr> converters;
  auto found = converters.find(code_page);
  if (found == converters.end()) {
    UConverter* converter = open_converter(code_page);
    if (converter != nullptr) configure_like_windows(converter, code_page);
    found = converters.emplace(code_page, ConverterPtr(converter)).first;
  }
  return found->second.get();
}

// Writes into the caller's buffer, or only counts when it has no capacity.
template <typename Unit>
class Output {
public:
  Output(Unit* out, int capacity) : out_(out), capacity_(capacity) {}
  bool counting() const { return capacity_ == 0; }
  bool put(Unit unit) {
    if (!counting()) {
      if (size_ >= capacity_) return false;
      out_[size_] = unit;
    }
    ++size_;
    return true;
  }
  int size() const { return size_; }

private:
  Unit* out_;
  int capacity_;
  int size_ = 0;
};

int text_length(const char* text, int length) { return length < 0 ? static_cast<int>(std::strlen(text)) + 1 : length; }

int text_length(const KILN_WCHAR* text, int length) {
  if (length >= 0) return length;
  int n = 0;
  while (text[n] != 0) ++n;
  return n + 1;
}

// Bytes of the non-ASCII run that starts at `begin`: whole characters up to
// the next ASCII byte that starts a character (a trail byte may be ASCII in
// double-byte code pages).
int non_ascii_run(unsigned code_page, const unsigned char* begin, const unsigned char* end) {
  const unsigned char* p = begin;
  while (p < end && *p >= 0x80) {
    p += (is_lead_byte(code_page, *p) && p + 1 < end) ? 2 : 1;
  }
  return static_cast<int>(p - begin);
}

bool convert_run_to_wide(UConverter* converter, const char* run, int run_length, Output<KILN_WCHAR>& output) {
  UChar buffer[512];
  const char* source = run;
  const char* source_end = run + run_length;
  ucnv_resetToUnicode(converter);
  UErrorCode status;
  do {
    status = U_ZERO_ERROR;
    UChar* target = buffer;
    ucnv_toUnicode(converter, &target, buffer + std::size(buffer), &source, source_end, nullptr, true, &status);
    for (const UChar* u = buffer; u < target; ++u) {
      if (!output.put(static_cast<KILN_WCHAR>(*u))) return false;
    }
  } while (status == U_BUFFER_OVERFLOW_ERROR);
  return U_SUCCESS(status);
}

// The upper half of a single-byte code page, read once per thread through the
// converter (each byte on its own is a whole character there).
using SingleByteTable = std::array<KILN_WCHAR, 128>;

const SingleByteTable* single_byte_table(unsigned code_page, UConverter* converter) {
  thread_local std::unordered_map<unsigned, std::unique_ptr<SingleByteTable>> tables;
  auto found = tables.find(code_page);
  if (found != tables.end()) return found->second.get();
  std::unique_ptr<SingleByteTable> table;
  if (ucnv_getMaxCharSize(converter) == 1) {
    table = std::make_unique<SingleByteTable>();
    for (int b = 0x80; b <= 0xFF && table; ++b) {
      const char byte = static_cast<char>(b);
      KILN_WCHAR units[2];
      Output<KILN_WCHAR> output(units, 2);
      if (!convert_run_to_wide(converter, &byte, 1, output) || output.size() != 1) {
        table.reset();  // a byte that is not one unit: convert the slow way
      } else {
        (*table)[b - 0x80] = units[0];
      }
    }
  }
  return tables.emplace(code_page, std::move(table)).first->second.get();
}

// Records that a substitution (the default character) was made.
struct SubstitutionContext {
  const char* default_char;
  bool used = false;
};

void substitute_and_record(const void* context, UConverterFromUnicodeArgs* args, const UChar*, int32_t, UChar32,
                           UConverterCallbackReason reason, UErrorCode* status) {
  auto* substitution = static_cast<SubstitutionContext*>(const_cast<void*>(context));
  if (reason > UCNV_IRREGULAR) return;  // reset, close, clone: nothing to substitute
  substitution->used = true;
  *status = U_ZERO_ERROR;
  if (substitution->default_char != nullptr) {
    const char* bytes = substitution->default_char;
    ucnv_cbFromUWriteBytes(args, bytes, std::strlen(bytes) > 1 ? 2 : 1, 0, status);
  } else {
    ucnv_cbFromUWriteSub(args, 0, status);
  }
}

bool convert_run_to_multibyte(UConverter* converter, const KILN_WCHAR* run, int run_length,
                              SubstitutionContext& substitution, Output<char>& output) {
  ucnv_resetFromUnicode(converter);
  UConverterFromUCallback previous_callback;
  const void* previous_context;
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setFromUCallBack(converter, substitute_and_record, &substitution, &previous_callback, &previous_context,
                        &status);
  const UChar* source = as_uchars(run);
  const UChar* source_end = source + run_length;
  char buffer[512];
  bool ok = true;
  do {
    status = U_ZERO_ERROR;
    char* target = buffer;
    ucnv_fromUnicode(converter, &target, buffer + sizeof buffer, &source, source_end, nullptr, true, &status);
    for (const char* b = buffer; b < target && ok; ++b) ok = output.put(*b);
  } while (ok && status == U_BUFFER_OVERFLOW_ERROR);
  UErrorCode restore_status = U_ZERO_ERROR;
  ucnv_setFromUCallBack(converter, previous_callback, previous_context, nullptr, nullptr, &restore_status);
  return ok && U_SUCCESS(status);
}

unsigned code_page_of_codeset(std::string_view codeset) {
  auto is = [&](std::string_view name) {
    return codeset.size() == name.size() && std::equal(codeset.begin(), codeset.end(), name.begin(),
                                                       [](char a, char b) { return (a | 0x20) == (b | 0x20); });
  };
  if (is("UTF-8") || is("UTF8")) return 65001;
  if (is("SHIFT_JIS") || is("SJIS") || is("EUC-JP") || is("EUCJP")) return 932;
  if (is("GBK") || is("GB2312") || is("GB18030")) return 936;
  if (is("EUC-KR") || is("EUCKR")) return 949;
  if (is("BIG5") || is("BIG5-HKSCS")) return 950;
  return 1252;
}

// The Windows aliases: CP_ACP (0) and CP_THREAD_ACP (3) name the ANSI code
// page, CP_OEMCP (1) and CP_MACCP (2) the OEM and Macintosh pages that go
// with it (for the Western page 437 and 10000; the East Asian pages serve as
// their own).
unsigned resolve_alias(unsigned code_page) {
  if (code_page > 3) return code_page;
  const unsigned ansi = ansi_code_page();
  if (code_page == 0 || code_page == 3 || ansi != 1252) return ansi;
  return code_page == 1 ? 437 : 10000;
}

}  // namespace

unsigned ansi_code_page() {
  const char* codeset = nl_langinfo(CODESET);
  return code_page_of_codeset(codeset != nullptr ? codeset : "");
}

bool ansi_code_page_follows_process_locale() { return true; }

bool is_code_page_supported(unsigned code_page) { return converter_for(resolve_alias(code_page)) != nullptr; }

bool is_lead_byte(unsigned code_page, unsigned char byte) {
  code_page = resolve_alias(code_page);
  // Lead-byte ranges of the double-byte Windows code pages (the same sets the
  // converters use); single-byte pages and UTF-8 have no lead bytes.
  switch (code_page) {
    case 932: return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
    case 936:
    case 949:
    case 950: return byte >= 0x81 && byte <= 0xFE;
    default: return false;
  }
}

int multibyte_to_wide(unsigned code_page, const char* text, int length, KILN_WCHAR* out, int capacity) {
  if (text == nullptr || capacity < 0 || (capacity > 0 && out == nullptr) || length == 0) return 0;
  code_page = resolve_alias(code_page);
  UConverter* converter = converter_for(code_page);
  if (converter == nullptr) return 0;
  const int n = text_length(text, length);
  const auto* bytes = reinterpret_cast<const unsigned char*>(text);
  Output<KILN_WCHAR> output(out, capacity);
  if (code_page == kCodePageUtf8) {  // ICU's UTF-8 maps ASCII as it is: one pass
    return convert_run_to_wide(converter, text, n, output) ? output.size() : 0;
  }
  if (const SingleByteTable* table = single_byte_table(code_page, converter)) {
    for (int i = 0; i < n; ++i) {
      if (!output.put(bytes[i] < 0x80 ? bytes[i] : (*table)[bytes[i] - 0x80])) return 0;
    }
    return output.size();
  }
  for (int i = 0; i < n;) {
    if (bytes[i] < 0x80) {
      if (!output.put(bytes[i++])) return 0;
      continue;
    }
    const int run = non_ascii_run(code_page, bytes + i, bytes + n);
    if (!convert_run_to_wide(converter, text + i, run, output)) return 0;
    i += run;
  }
  return output.size();
}

int wide_to_multibyte(unsigned code_page, const KILN_WCHAR* text, int length, char* out, int capacity,
                      const char* default_char, bool* used_default) {
  if (text == nullptr || capacity < 0 || (capacity > 0 && out == nullptr) || length == 0) return 0;
  code_page = resolve_alias(code_page);
  if (code_page == kCodePageUtf8 && (default_char != nullptr || used_default != nullptr)) return 0;
  UConverter* converter = converter_for(code_page);
  if (converter == nullptr) return 0;
  const int n = text_length(text, length);
  SubstitutionContext substitution{default_char};
  Output<char> output(out, capacity);
  for (int i = 0; i < n;) {
    if (text[i] < 0x80) {
      if (!output.put(static_cast<char>(text[i++]))) return 0;
      continue;
    }
    int end = i;
    while (end < n && text[end] >= 0x80) ++end;
    if (!convert_run_to_multibyte(converter, text + i, end - i, substitution, output)) return 0;
    i = end;
  }
  if (used_default != nullptr) *used_default = substitution.used;
  return output.size();
}

}  // namespace kiln::platform
