#include "support/utf16_bytes.h"
#include "unicode/test_files.h"

#include <kilnutil/files.h>
#include <kilnutil/frame.h>
#include <kilnutil/platform.h>

#include <gtest/gtest.h>

#include <cstring>
#include <optional>
#include <string>

namespace {

using kiln_test::TempFolder;
using kiln_test::write_file;

struct HeaderCase {
  const char* line;
  const char* name;  // null: no header
};

TEST(SectionHeader, RecognitionTable) {
  const HeaderCase cases[] = {
      {"[One]", "One"},           {"  [ One ]  // note", "One"},
      {"[One] x", "One"},         {"\t[\tTwo words \t]\r\n", "Two words"},
      {"[One]=", nullptr},        {"[One] (x)", nullptr},
      {"[One]!", nullptr},        {"[One] // (=) after a comment", "One"},
      {"[a(b]c)]", "a(b]c)"},  // the closer is searched outside brackets
      {"[f(x)}", "f(x)"},      // no "]", but ")" and "}": the "}" closes the name
      {"[f(x)", nullptr},         {"[open", nullptr},
      {"x [One]", nullptr},       {"", nullptr},
      {"\xC2\xA0[Nbsp]", "Nbsp"},
  };
  for (const HeaderCase& c : cases) {
    SCOPED_TRACE(c.line);
    char* end = nullptr;
    const char* open = KILNUTIL_find_section_name(c.line, &end);
    std::string line = c.line;
    const char* name = KILNUTIL_get_file_section_name(line.data());
    if (c.name == nullptr) {
      EXPECT_EQ(open, nullptr);
      EXPECT_EQ(name, nullptr);
      continue;
    }
    ASSERT_NE(open, nullptr);
    EXPECT_EQ(*open, '[');
    ASSERT_NE(name, nullptr);
    EXPECT_STREQ(name, c.name);
  }
}

// The text of a returned block (freed here), or nullopt for null.
std::optional<std::string> take_text(HGLOBAL block) {
  if (block == nullptr) return std::nullopt;
  const char* data = static_cast<const char*>(GlobalLock(block));
  std::string text(data);
  GlobalUnlock(block);
  GlobalFree(block);
  return text;
}

class SectionFile : public ::testing::Test {
protected:
  std::string write(const std::string& bytes) {
    const std::string path = folder_.file("f" + std::to_string(++count_) + ".txt");
    write_file(path, bytes);
    return path;
  }
  TempFolder folder_;
  int count_ = 0;
};

struct PreambleCase {
  const char* text;
  const char* preamble;  // null: no block
};

TEST_F(SectionFile, PreambleTable) {
  const PreambleCase cases[] = {
      {"a\r\n[One]\r\nx=1\r\n", "a\r\n"},
      {"a\n  [ One ]  // note\nx\n", "a\n  [ One ]  // note\nx\n"},  // a comment keeps it from ending the preamble
      {"a\n[One] x\nb\n", "a\n[One] x\nb\n"},
      {"a\n[One]", "a\n[One]"},      // last line without a line end
      {"a\n[One]\n", "a\n[One]\n"},  // the line end is the file's last byte
      {"a\n[One]\nb", "a\n"},
      {"a\n  [One]  \t\nb", "a\n"},
      {"[One]\nx", nullptr},
      {"x [y]\n[One]\nb", "x [y]\n"},
      {"a\n[multi\nline]\nb", "a\n"},
      {"", nullptr},
  };
  for (const PreambleCase& c : cases) {
    SCOPED_TRACE(c.text);
    unsigned status = 77;
    const auto text = take_text(KILNUTIL_GetFileSection(write(c.text).c_str(), "", &status));
    EXPECT_EQ(status, 77u);  // untouched outside named reading
    if (c.preamble == nullptr) {
      EXPECT_FALSE(text.has_value());
    } else {
      EXPECT_EQ(text, c.preamble);
    }
  }
}

// The same sections in every encoding the detector knows.
struct EncodedCase {
  const char* label;
  std::string bytes;
  std::string value;  // the text of "x=1 <value>" as read; empty: not converted
};

std::string utf16(const std::string& utf8, bool big_endian) {
  const std::string mark = big_endian ? "\xFE\xFF" : "\xFF\xFE";
  return mark + (big_endian ? kiln_test::utf16be(utf8) : kiln_test::utf16le(utf8));
}

TEST_F(SectionFile, NamedSectionsInEveryEncoding) {
  const unsigned saved_code_page = set_code_page_for_string_process(1252);
  for (const char* eol : {"\r\n", "\n"}) {
    const std::string e = eol;
    const std::string text = "a" + e + "[One]" + e + "x=1 \xC3\xA9" + e + "[Two]" + e + "y" + e;
    const std::string cp1252 = "a" + e + "[One]" + e + "x=1 \xE9" + e + "[Two]" + e + "y" + e;
    const EncodedCase cases[] = {
        {"utf-8 mark", "\xEF\xBB\xBF" + text, "\xC3\xA9"},
        // Only a mark tells UTF-8: without one the text is taken as code-page text.
        {"utf-8", text, "\xC3\x83\xC2\xA9"},
        {"utf-16le", utf16(text, false), "\xC3\xA9"},
        {"utf-16be", utf16(text, true), ""},  // handed back unconverted
        {"code page", cp1252, "\xC3\xA9"},
    };
    for (const EncodedCase& c : cases) {
      SCOPED_TRACE(std::string(c.label) + (e == "\n" ? " LF" : " CRLF"));
      const std::string path = write(c.bytes);
      unsigned status = 9, line = 9;
      const auto one = take_text(KILNUTIL_GetFileSectionEx(path.c_str(), "one", &status, &line, 0));
      if (c.value.empty()) {
        EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_NOT_FOUND));
        continue;
      }
      EXPECT_EQ(one, "x=1 " + c.value + e);
      EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_OK));
      EXPECT_EQ(line, 1u);
      EXPECT_EQ(take_text(KILNUTIL_GetFileSectionEx(path.c_str(), "TWO", &status, &line, 0)), "y" + e);
      EXPECT_EQ(line, 3u);
      EXPECT_FALSE(take_text(KILNUTIL_GetFileSectionEx(path.c_str(), "Three", &status, &line, 0)).has_value());
      EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_NOT_FOUND));
      EXPECT_EQ(line, KILNUTIL_SECTION_NO_LINE);
      EXPECT_EQ(take_text(KILNUTIL_GetFileSection(path.c_str(), "", &status)), "a" + e);
      const std::string whole = "a" + e + "[One]" + e + "x=1 " + c.value + e + "[Two]" + e + "y" + e;
      EXPECT_EQ(take_text(KILNUTIL_GetFileSection(path.c_str(), nullptr, &status)), whole);
    }
  }
  set_code_page_for_string_process(saved_code_page);
}

TEST_F(SectionFile, StatusLineIndexAndEmptySections) {
  const std::string path = write("[A]\n[B]\nb\n[C]\n");
  unsigned status = 9, line = 9;
  EXPECT_FALSE(take_text(KILNUTIL_GetFileSectionEx(path.c_str(), "A", &status, &line, 0)).has_value());
  EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_OK));  // a header followed by a header
  EXPECT_EQ(line, 0u);
  EXPECT_FALSE(take_text(KILNUTIL_GetFileSectionEx(path.c_str(), "C", &status, &line, 0)).has_value());
  EXPECT_EQ(line, 3u);

  const std::string missing = folder_.file("missing.txt");
  EXPECT_EQ(KILNUTIL_GetFileSectionEx(missing.c_str(), "A", &status, &line, 0), nullptr);
  EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_CANT_OPEN));
  EXPECT_EQ(line, KILNUTIL_SECTION_NO_LINE);
  EXPECT_EQ(KILNUTIL_GetFileSectionEx(kiln_test::utf8_string(folder_.path()).c_str(), "A", &status, nullptr, 0),
            nullptr);
  EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_CANT_OPEN));

  // A NUL byte ends the copied text of its line.
  const std::string with_nul = write(std::string("[A]\nab\0cd\nef\n", 14));
  EXPECT_EQ(take_text(KILNUTIL_GetFileSectionEx(with_nul.c_str(), "a", &status, nullptr, 1)), "abef\n");
}

TEST_F(SectionFile, LongLinesAreReadInPiecesOf1199Bytes) {
  const std::string filler(1199, 'x');
  unsigned status = 9, line = 9;
  // The header starts the second piece of a long line: it counts, at line 1.
  const std::string split = write(filler + "[Late]\nbody\n");
  EXPECT_EQ(take_text(KILNUTIL_GetFileSectionEx(split.c_str(), "late", &status, &line, 0)), "body\n");
  EXPECT_EQ(line, 1u);
  // One byte earlier it lies inside the first piece, behind text: no header.
  const std::string inside = write(filler.substr(1) + "[Late]\nbody\n");
  EXPECT_EQ(KILNUTIL_GetFileSectionEx(inside.c_str(), "late", &status, &line, 0), nullptr);
  EXPECT_EQ(status, static_cast<unsigned>(KILNUTIL_SECTION_NOT_FOUND));

  // A section of many long lines comes back whole through every growth step.
  std::string body;
  for (int i = 0; i < 300; ++i)
    body += std::string(static_cast<size_t>(i % 1500), static_cast<char>('a' + i % 26)) + "\n";
  const std::string big = write("[S]\n" + body + "[T]\n");
  EXPECT_EQ(take_text(KILNUTIL_GetFileSection(big.c_str(), "s", &status)), body);
}

TEST_F(SectionFile, NoConversionFlagKeepsTheBytes) {
  const std::string utf16le = utf16("[A]\nx\n", false);
  const std::string path = write(utf16le);
  const HGLOBAL block =
      KILNUTIL_GetFileSectionEx(path.c_str(), nullptr, nullptr, nullptr, KILNUTIL_SECTION_NO_CONVERSION);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(std::memcmp(GlobalLock(block), utf16le.data(), utf16le.size()), 0);
  GlobalUnlock(block);
  GlobalFree(block);
  // Only a UTF-8 mark is skipped.
  const std::string marked = write("\xEF\xBB\xBF[A]\nx\n");
  EXPECT_EQ(take_text(KILNUTIL_GetFileSectionEx(marked.c_str(), nullptr, nullptr, nullptr, 1)), "[A]\nx\n");
  // The preamble scan stops at a byte 0xFF as at the end of the file.
  const std::string stop = write("a\xFF\n[One]\nb");
  EXPECT_EQ(take_text(KILNUTIL_GetFileSectionEx(stop.c_str(), "", nullptr, nullptr, 1)), "a");
}

}  // namespace
