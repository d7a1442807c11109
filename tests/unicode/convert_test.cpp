#include <kilnutil/frame.h>
#include <kilnutil/platform.h>
#include <kilnutil/unicode.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

// The result is the UTF-8 byte count minus one: the text's length for a
// NUL-terminated source, one less than the bytes written (no NUL) for an
// explicit length. Every failure empties the destination.
TEST(MbcsToUtf8, ResultsAndDestinations) {
  using namespace std::string_literals;
  const struct {
    const char* text;
    int length, size, code_page;
    unsigned string_page;
    int result;
    std::string out;
  } cases[] = {
      {"caf\xE9", -1, 16, 1252, 0, 5, "caf\xC3\xA9\0"s},
      {"abcdef", 3, 16, 1252, 0, 2, "abc#"},
      {"\x80", -1, 0, 1252, 0, 3, "\xE2\x82\xAC\0"s},  // 0 or less is unbounded
      {"", -1, 16, 1252, 0, 0, "\0"s},
      {nullptr, -1, 16, 1252, 0, 0, "\0"s},
      {"caf\xE9", -1, 4, 1252, 0, 0, "\0"s},                                    // needs 6 bytes with its NUL
      {"abc", -1, 16, 12345, 0, 0, "\0"s},                                      // no such code page
      {"\x93\xFA\x96\x7B", -1, 16, -1, 932, 6, "\xE6\x97\xA5\xE6\x9C\xAC\0"s},  // below 0: the string-process page
      {"\x93\xFA", -1, 16, -1, 1252, 5, "\xE2\x80\x9C\xC3\xBA\0"s},
  };
  for (const auto& c : cases) {
    char out[16];
    std::memset(out, '#', sizeof out);
    const unsigned previous = set_code_page_for_string_process(c.string_page != 0 ? c.string_page : 1252);
    EXPECT_EQ(KILNUTIL_UNICODE_MBCS_to_UTF8(c.text, c.length, out, c.size, c.code_page), c.result) << c.out;
    set_code_page_for_string_process(previous);
    EXPECT_EQ(std::string(out, c.out.size()), c.out);
  }
}

TEST(Utf8ToMbcs, EmptyGivesOneAndTheConverterResultOtherwise) {
  char out[8] = "xyz";
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_MBCS("", -1, out, sizeof out, 1252), 1);
  EXPECT_STREQ(out, "");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_MBCS(nullptr, -1, nullptr, 0, 1252), 1);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_MBCS("caf\xC3\xA9", -1, out, sizeof out, 1252), 5);  // NUL included
  EXPECT_STREQ(out, "caf\xE9");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_MBCS("caf\xC3\xA9", -1, nullptr, 0, 1252), 5);  // the needed size
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_MBCS("caf\xC3\xA9", 5, out, sizeof out, 1252), 4);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_MBCS("caf\xC3\xA9", -1, out, 3, 1252), 0);  // does not fit
}

TEST(Utf16ToUtf8Buffers, NeedsRoomForTheNul) {
  const KILN_WCHAR text[] = {'a', 0xE9, 0x65E5, 0};  // 1 + 2 + 3 bytes
  char out[8];
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(out, 6, text), -1);
  EXPECT_STREQ(out, "");
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(out, 7, text), 6);
  EXPECT_STREQ(out, "a\xC3\xA9\xE6\x97\xA5");
  const KILN_WCHAR empty[] = {0};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(out, 7, empty), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(out, 7, nullptr), 0);
  // An unpaired surrogate is replaced, not refused.
  const KILN_WCHAR lone[] = {0xD800, 'x', 0};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16_to_UTF8_buffers(out, 8, lone), 4);
  EXPECT_STREQ(out, "\xEF\xBF\xBDx");
}

TEST(Utf8ToUtf16Buffers, CountsAndTheSpareUnit) {
  KILN_WCHAR out[8];
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(out, 8, "a\xC3\xA9", -7), 2);
  EXPECT_EQ(out[0], KILN_TEXT('a'));
  EXPECT_EQ(out[1], 0xE9);
  EXPECT_EQ(out[2], 0);
  // An explicit length converts no zero; one is stored behind the text.
  for (auto& unit : out) unit = 0x7777;
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(out, 3, "abc", 3), 2);
  EXPECT_EQ(out[2], KILN_TEXT('c'));
  EXPECT_EQ(out[3], 0);                                                         // one past the size given
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(out, 3, "abc", -1), -1);  // 4 units needed
  EXPECT_EQ(out[0], 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(out, 3, "", -1), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_UTF16_buffers_ex(out, 3, nullptr, -1), 0);
}

TEST(Utf16LeToBe, SwapsUpToTheZeroUnit) {
  KILN_WCHAR text[] = {0x1234, 0x00FF, 0, 0xABCD};
  EXPECT_EQ(KILNUTIL_UNICODE_UTF16LE_to_UTF16BE(text), 1);
  EXPECT_EQ(text[0], 0x3412);
  EXPECT_EQ(text[1], 0xFF00);
  EXPECT_EQ(text[3], 0xABCD);
}

// A growable buffer record over a std::vector, counting the grow calls.
struct GrowableBuffer {
  MbcsToUTF8CallbackBuffer record{};
  std::vector<char> storage;
  std::vector<unsigned> requests;
  bool refuse = false;

  GrowableBuffer(const std::string& text, unsigned capacity, unsigned limit) {
    storage.assign(std::max<size_t>(capacity, text.size() + 1), '\0');
    std::memcpy(storage.data(), text.c_str(), text.size() + 1);
    record.reserved = this;
    record.grow = &GrowableBuffer::grow;
    record.byte_limit = limit;
    record.buffer = storage.data();
    record.capacity = static_cast<unsigned>(storage.size());
  }
  static int grow(MbcsToUTF8CallbackBuffer* record, unsigned needed) {
    auto* self = static_cast<GrowableBuffer*>(record->reserved);
    self->requests.push_back(needed);
    if (self->refuse) return 0;
    self->storage.resize(needed);
    record->buffer = self->storage.data();
    record->capacity = needed;
    return 1;
  }
};

// Within the byte limit no character is split; the buffer grows only when
// the text needs more room, by exactly what it needs.
TEST(MbcsToUtf8Callback, ByteLimitAndGrowth) {
  const struct {
    std::string text;
    unsigned capacity, limit;
    bool refuse;
    int result;
    const char* buffer;
    std::vector<unsigned> grows;
  } cases[] = {
      {"abcdefghijkl", 0, 10, false, 9, "abcdefghi", {}},
      {"\xE9\xE9\xE9\xE9\xE9", 0, 6, false, 4, "\xC3\xA9\xC3\xA9", {}},  // two 2-byte characters and the NUL
      {"\xE9\xE9", 0, 5, false, 4, "\xC3\xA9\xC3\xA9", {5}},             // exactly at the limit
      {"caf\xE9", 64, 0, false, 5, "caf\xC3\xA9", {}},
      {"\xE9\xE9\xE9", 0, 0, false, 6, "\xC3\xA9\xC3\xA9\xC3\xA9", {7}},
      {"\xE9\xE9\xE9", 0, 0, true, -1, nullptr, {7}},
      {"", 4, 0, false, 0, "", {}},
  };
  for (const auto& c : cases) {
    GrowableBuffer buffer(c.text, c.capacity, c.limit);
    buffer.refuse = c.refuse;
    EXPECT_EQ(KILNUTIL_UNICODE_mbcs_to_UTF8_callback(&buffer.record, 1252), c.result) << c.text;
    if (c.buffer != nullptr) {
      EXPECT_STREQ(buffer.record.buffer, c.buffer);
    }
    EXPECT_EQ(buffer.requests, c.grows) << c.text;
  }
}

TEST(ConvertibleToCodePage, DefaultCharacterDecides) {
  EXPECT_EQ(IsUTF8StringConvertibleToCodePage("caf\xC3\xA9", 1252), 1);
  EXPECT_EQ(IsUTF8StringConvertibleToCodePage("\xE6\x97\xA5", 1252), 0);
  EXPECT_EQ(IsUTF8StringConvertibleToCodePage("\xE6\x97\xA5", 932), 1);
  EXPECT_EQ(IsUTF8StringConvertibleToCodePage("", 1252), 1);
  EXPECT_EQ(IsUTF8StringConvertibleToCodePage("abc", 12345), -1);
  EXPECT_EQ(IsUTF8StringConvertibleToCodePage(nullptr, 1252), -1);
}

// Makes a movable handle holding `text` with its NUL.
HGLOBAL text_handle(const std::string& text) {
  HGLOBAL handle = GlobalAlloc(GHND, text.size() + 1);
  std::memcpy(GlobalLock(handle), text.c_str(), text.size() + 1);
  GlobalUnlock(handle);
  return handle;
}

std::string handle_text(HGLOBAL handle) {
  std::string text(static_cast<const char*>(GlobalLock(handle)));
  GlobalUnlock(handle);
  return text;
}

// A conversion replaces the block's text and sizes the block to it (the
// result counts the NUL); empty text and failures keep the handle. UTF-8 to
// MBCS reports in the registered flag whether the default character was
// used; the other way never touches the flag.
TEST(HandleConversion, ResultsTextsAndTheDefaultCharacterFlag) {
  int used = 7;
  int* previous = KILNUTIL_UNICODE_UTF8_to_mbcs_handle_conversion_default_char_used_check(&used);
  using Convert = int (*)(HGLOBAL*, int);
  const Convert to_utf8 = KILNUTIL_UNICODE_mbcs_to_UTF8_handle, from_utf8 = KILNUTIL_UNICODE_UTF8_to_mbcs_handle;
  const Convert to_utf8_or_back = [](HGLOBAL* handle, int page) {
    return KILNUTIL_UNICODE_mbcs_to_UTF8_or_back_handle(handle, 0, page);
  };
  const struct {
    std::string text;
    Convert convert;
    int code_page, result;
    std::string after;
    int used;
  } cases[] = {
      {"na\xEFve caf\xE9", to_utf8, 1252, 13, "na\xC3\xAFve caf\xC3\xA9", 7},
      {"na\xC3\xAFve caf\xC3\xA9", from_utf8, 1252, 11, "na\xEFve caf\xE9", 0},
      {"x\xE6\x97\xA5y", from_utf8, 1252, 4, "x?y", 1},
      {"", to_utf8_or_back, 1252, 1, "", 7},
      {"abc", to_utf8_or_back, 12345, -1, "abc", 7},
  };
  for (const auto& c : cases) {
    used = 7;
    HGLOBAL handle = text_handle(c.text);
    const HGLOBAL before = handle;
    EXPECT_EQ(c.convert(&handle, c.code_page), c.result) << c.text;
    EXPECT_EQ(handle_text(handle), c.after);
    EXPECT_EQ(used, c.used) << c.text;
    if (c.result > 1) {
      EXPECT_EQ(GlobalSize(handle), static_cast<size_t>(c.result));
    } else {
      EXPECT_EQ(handle, before);
    }
    GlobalFree(handle);
  }
  HGLOBAL none = nullptr;
  EXPECT_EQ(KILNUTIL_UNICODE_mbcs_to_UTF8_or_back_handle(&none, 0, 1252), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_mbcs_to_UTF8_or_back_handle(nullptr, 0, 1252), 0);
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_mbcs_handle_conversion_default_char_used_check(previous), &used);
}

TEST(HandleConversion, Utf8ToUtf16Handle) {
  for (int movable : {0, 1}) {
    HGLOBAL source = text_handle("a\xC3\xA9\xF0\x9F\x98\x80");
    for (int free_source : {0, 1}) {  // the second call frees the source
      HGLOBAL wide = KILNUTIL_UNICODE_UTF8_to_UTF16_handle(source, movable, free_source);
      ASSERT_NE(wide, nullptr);
      EXPECT_EQ(GlobalSize(wide), 10u);  // a, é, a surrogate pair, zero
      EXPECT_EQ(std::basic_string<KILN_WCHAR>(static_cast<const KILN_WCHAR*>(GlobalLock(wide))),
                KILN_TEXT("a\u00E9\U0001F600"));
      GlobalUnlock(wide);
      GlobalFree(wide);
    }
  }
  EXPECT_EQ(KILNUTIL_UNICODE_UTF8_to_UTF16_handle(nullptr, 1, 1), nullptr);
}

}  // namespace
