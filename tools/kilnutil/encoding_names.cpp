// Encoding names and numbers, checked against the library's converters.
#include "encoding_names.h"

#include <kilnutil/unicode.h>

#include <cctype>
#include <charconv>
#include <clocale>

namespace kilnutil_cli {

namespace {

struct NamedEncoding {
  const char* name;  // lower case, without "-" and "_"
  TextEncoding encoding;
};

constexpr NamedEncoding kNames[] = {
    {"utf8", {TextForm::kUtf8, 65001}},          {"utf16le", {TextForm::kUtf16Le, 1200}},
    {"utf16be", {TextForm::kUtf16Be, 1201}},     {"utf32le", {TextForm::kUtf32Le, 12000}},
    {"utf32be", {TextForm::kUtf32Be, 12001}},    {"shiftjis", {TextForm::kCodePage, 932}},
    {"sjis", {TextForm::kCodePage, 932}},        {"ms932", {TextForm::kCodePage, 932}},
    {"windows31j", {TextForm::kCodePage, 932}},  {"gbk", {TextForm::kCodePage, 936}},
    {"gb2312", {TextForm::kCodePage, 936}},      {"big5", {TextForm::kCodePage, 950}},
    {"euckr", {TextForm::kCodePage, 949}},       {"uhc", {TextForm::kCodePage, 949}},
    {"ksc56011987", {TextForm::kCodePage, 949}}, {"latin1", {TextForm::kCodePage, 28591}},
    {"koi8r", {TextForm::kCodePage, 20866}},     {"eucjp", {TextForm::kCodePage, 51932}},
};

struct CodePageName {
  unsigned code_page;
  const char* name;
};

constexpr CodePageName kCodePageNames[] = {
    {932, "Shift_JIS"}, {936, "GBK"}, {949, "EUC-KR"}, {950, "Big5"}, {20866, "KOI8-R"}, {51932, "EUC-JP"},
};

std::string folded(std::string_view name) {
  std::string out;
  for (const char c : name) {
    if (c != '-' && c != '_' && c != ' ') out += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return out;
}

std::optional<unsigned> number_after(std::string_view text, std::string_view prefix) {
  if (!text.starts_with(prefix) || text.size() == prefix.size()) return std::nullopt;
  unsigned value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data() + prefix.size(), end, value);
  if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
  return value;
}

bool library_converts(unsigned code_page) {
  char out[8];
  return KILNUTIL_UNICODE_MBCS_to_UTF8("A", -1, out, sizeof out, static_cast<int>(code_page)) == 1;
}

TextEncoding encoding_of_number(unsigned number) {
  switch (number) {
    case 65001: return {TextForm::kUtf8, number};
    case 1200: return {TextForm::kUtf16Le, number};
    case 1201: return {TextForm::kUtf16Be, number};
    case 12000: return {TextForm::kUtf32Le, number};
    case 12001: return {TextForm::kUtf32Be, number};
    default: return {TextForm::kCodePage, number};
  }
}

}  // namespace

std::optional<TextEncoding> encoding_from_name(std::string_view name) {
  const std::string key = folded(name);
  std::optional<TextEncoding> found;
  for (const NamedEncoding& named : kNames) {
    if (key == named.name) found = named.encoding;
  }
  for (const std::string_view prefix : {"", "cp", "windows", "ibm"}) {
    if (found) break;
    if (const std::optional<unsigned> number = number_after(key, prefix)) found = encoding_of_number(*number);
  }
  if (const std::optional<unsigned> part = number_after(key, "iso8859"); !found && part && *part < 100) {
    found = TextEncoding{TextForm::kCodePage, 28590 + *part};
  }
  // Code pages 0 to 3 are the library's aliases of the system pages, not names a user means.
  if (!found || (found->form == TextForm::kCodePage && (found->code_page < 4 || !library_converts(found->code_page)))) {
    return std::nullopt;
  }
  return found;
}

std::string encoding_label(const TextEncoding& encoding) {
  switch (encoding.form) {
    case TextForm::kUtf8: return "UTF-8";
    case TextForm::kUtf16Le: return "UTF-16LE";
    case TextForm::kUtf16Be: return "UTF-16BE";
    case TextForm::kUtf32Le: return "UTF-32LE";
    case TextForm::kUtf32Be: return "UTF-32BE";
    case TextForm::kCodePage: break;
  }
  const std::string number = std::to_string(encoding.code_page);
  for (const CodePageName& named : kCodePageNames) {
    if (named.code_page == encoding.code_page) return std::string(named.name) + " (code page " + number + ")";
  }
  if (encoding.code_page > 28590 && encoding.code_page < 28690) {
    return "ISO-8859-" + std::to_string(encoding.code_page - 28590) + " (code page " + number + ")";
  }
  return "Windows-" + number + " (code page " + number + ")";
}

unsigned locale_code_page() {
  const char* locale = std::setlocale(LC_CTYPE, nullptr);
  std::string_view name = locale != nullptr ? locale : "C";
  const std::size_t dot = name.find('.');
  std::string codeset =
      dot == std::string_view::npos ? "" : folded(name.substr(dot + 1, name.find('@', dot) - dot - 1));
  if (codeset == "utf8") return 65001;
  if (codeset == "sjis" || codeset == "shiftjis" || codeset == "eucjp") return 932;
  if (codeset == "gbk" || codeset == "gb2312" || codeset == "gb18030" || codeset == "euccn") return 936;
  if (codeset == "euckr") return 949;
  if (codeset == "big5" || codeset == "big5hkscs") return 950;
  return 1252;
}

bool is_double_byte_code_page(unsigned code_page) {
  return code_page == 932 || code_page == 936 || code_page == 949 || code_page == 950;
}

}  // namespace kilnutil_cli
