// Opening a file to import as UTF-8 through the library's text-file protocol.
#include "preview_file.h"

#include <kilnutil/numeric.h>
#include <kilnutil/text.h>

#include <cstring>

namespace kilnutil_cli {

namespace {

constexpr std::size_t kHeadBytes = 64 * 1024;
constexpr int kHeadLines = 10;

unsigned int family(unsigned int code) { return code & 0xFFu; }

long long line_feeds_in(const std::string& text) {
  long long feeds = 0;
  for (const char c : text) feeds += c == '\n';
  return feeds;
}

}  // namespace

Utf8TextFile::Utf8TextFile(const std::string& path) {
  if (path.size() >= sizeof context_.path) {
    error_ = "path too long: " + path;
    return;
  }
  std::FILE* raw = KILNUTIL_UTF8_fopen(path.c_str(), "rb");
  if (raw == nullptr) {
    error_ = "cannot open '" + path + "'";
    return;
  }
  encoding_ = KILNUTIL_DetectEncodingFile(path.c_str(), KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(path.c_str()), 0);
  if (family(encoding_) == KILNUTIL_ENCODING_UTF16BE) {
    std::fclose(raw);
    error_ = "'" + path + "' is UTF-16 big-endian text, which is imported unconverted; not previewed";
    return;
  }

  KILNUTIL_UNICODE_open_text_file_to_UTF8_INIT(&context_);
  std::memcpy(context_.path, path.c_str(), path.size() + 1);
  context_.fallback_mode = "rb";
  context_.binary_reopen = 1;
  context_.guess = 1;
  std::FILE* text = KILNUTIL_UNICODE_open_text_file_to_UTF8_BEGIN(raw, &context_);
  // Text that needed conversion comes back as the converted copy; anything
  // else on that path is the stream the protocol gave up on (already closed).
  const bool converted = family(encoding_) != KILNUTIL_ENCODING_UTF8;
  if (converted && (context_.converted_stream == nullptr || text != context_.converted_stream)) {
    error_ = "cannot convert '" + path + "' to UTF-8";
    return;
  }
  stream_ = text;
}

Utf8TextFile::~Utf8TextFile() {
  if (stream_ != nullptr) KILNUTIL_UNICODE_open_text_file_to_UTF8_END(stream_, &context_);
}

std::size_t Utf8TextFile::read(char* buffer, std::size_t size) {
  return stream_ != nullptr ? std::fread(buffer, 1, size, stream_) : 0;
}

std::string encoding_name(unsigned int code) {
  if (code == KILNUTIL_ENCODING_NONE) return "empty";
  static const char* const kFamilies[] = {"code page", "UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE", "UTF-32BE"};
  std::string name = family(code) < 6 ? kFamilies[family(code)] : "unknown";
  if (code & KILNUTIL_ENCODING_MARK) name += " with mark";
  if (code & KILNUTIL_ENCODING_ASCII) name += " (ASCII)";
  return name;
}

std::string read_head(Utf8TextFile& file) {
  std::string head;
  std::vector<char> block(kHeadBytes);
  while (head.size() < kHeadBytes) {
    const std::size_t got = file.read(block.data(), kHeadBytes);
    if (got == 0) break;
    head.append(block.data(), got);
    if (line_feeds_in(head) > kHeadLines) break;
  }
  return head;
}

void use_decimal_comma() {
  char comma[] = ",";
  KILNUTIL_cvtstr2real_ex(comma, nullptr, 0, nullptr);  // the decimal separator becomes ","
}

// Commas are excluded as separators first; a ";" found then means decimal commas.
TableLayout find_table_layout(std::string head) {
  TableLayout layout;
  const long long feeds = line_feeds_in(head);
  const int lines = static_cast<int>(feeds < kHeadLines ? feeds : kHeadLines);
  const int previous = KILNUTIL_SetSeparatorExclusionChar(',');
  layout.separator = KILNUTILT_FindSeparator(head.data(), 0, lines);
  if (layout.separator == ';') {
    layout.decimal_separator = ',';
    use_decimal_comma();
  } else {
    KILNUTIL_SetSeparatorExclusionChar(previous);
    layout.separator = KILNUTILT_FindSeparator(head.data(), 0, lines);
  }
  layout.fields = layout.separator > 0 ? KILNUTIL_FirstLineTokensA(head.data(), layout.separator) : 1;
  return layout;
}

std::vector<char*> split_fields(std::string& line, int separator) {
  if (!line.empty() && line.back() == '\r') line.pop_back();
  std::vector<char*> fields;
  if (separator > 0) {
    const int count = KILNUTIL_SeparateStrToTokensA(line.data(), nullptr, separator, -1);
    fields.resize(static_cast<std::size_t>(count > 0 ? count : 0) + 1);
    fields.resize(static_cast<std::size_t>(KILNUTIL_SeparateStrToTokensA(line.data(), fields.data(), separator, -1)));
  } else {
    fields.push_back(line.data());
  }
  return fields;
}

}  // namespace kilnutil_cli
