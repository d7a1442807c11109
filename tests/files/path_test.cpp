#include <kilnutil/files.h>

#include <gtest/gtest.h>

#include <string>

namespace {

struct SyntaxCase {
  const char* path;
  int code;
};

TEST(PathSyntax, EveryResultCode) {
  const SyntaxCase cases[] = {
      {"C:\\data\\a.txt", KILNUTIL_PATH_DRIVE},
      {"C:a.txt", KILNUTIL_PATH_DRIVE},
      {"z:\\", KILNUTIL_PATH_DRIVE},
      {"C:/data/a.txt", KILNUTIL_PATH_DRIVE},        // "/" allowed after "X:/"
      {"C:\\a(b?c)", KILNUTIL_PATH_DRIVE},           // bracketed parts are not searched
      {"C:\\\"a*b\"", KILNUTIL_PATH_BAD_CHARACTER},  // the double quote is itself forbidden
      {"C:\\a[<>]{|}", KILNUTIL_PATH_DRIVE},
      {"\\\\server\\share\\f.txt", KILNUTIL_PATH_UNC},
      {"\\\\server", KILNUTIL_PATH_UNC},
      {"\\\\srv1\\share", KILNUTIL_PATH_UNC},
      {"data\\a.txt", KILNUTIL_PATH_NOT_ABSOLUTE},
      {"/tmp/a", KILNUTIL_PATH_NOT_ABSOLUTE},
      {"", KILNUTIL_PATH_NOT_ABSOLUTE},
      {"C", KILNUTIL_PATH_NOT_ABSOLUTE},
      {"1:\\a", KILNUTIL_PATH_NOT_ABSOLUTE},
      {"\xC3\xA9:\\a", KILNUTIL_PATH_NOT_ABSOLUTE},  // a letter, but not a single-byte one
      {"\\a", KILNUTIL_PATH_NOT_ABSOLUTE},
      {"\\\\123\\share", KILNUTIL_PATH_BAD_SERVER},
      {"\\\\\\share", KILNUTIL_PATH_BAD_SERVER},
      {"\\\\", KILNUTIL_PATH_BAD_SERVER},
      {"\\\\my server\\share", KILNUTIL_PATH_BAD_SERVER},
      {"\\\\a,b\\share", KILNUTIL_PATH_BAD_SERVER},
      {"C:\\a?b", KILNUTIL_PATH_BAD_CHARACTER},
      {"C:\\a:b", KILNUTIL_PATH_BAD_CHARACTER},
      {"C:\\a/b", KILNUTIL_PATH_BAD_CHARACTER},  // "/" is forbidden unless the rest starts with it
      {"C:/a:b", KILNUTIL_PATH_BAD_CHARACTER},
      {"\\\\srv\\a|b", KILNUTIL_PATH_BAD_CHARACTER},
      {"C:\\data\\\\a.txt", KILNUTIL_PATH_DOUBLE_BACKSLASH},
      {"\\\\srv\\\\share", KILNUTIL_PATH_DOUBLE_BACKSLASH},
      {"C:data\\a.txt", KILNUTIL_PATH_DRIVE_RELATIVE},
      {"C:/data\\a.txt", KILNUTIL_PATH_DRIVE_RELATIVE},
  };
  for (const SyntaxCase& c : cases) {
    SCOPED_TRACE(c.path);
    int code = 99;
    EXPECT_EQ(KILNUTIL_IsPathValidSyntax(c.path, &code), c.code > 0 ? 1 : 0);
    EXPECT_EQ(code, c.code);
  }
  EXPECT_EQ(KILNUTIL_IsPathValidSyntax("C:\\a", nullptr), 1);
  // A server name with no backslash after it is looked at up to 519 bytes.
  EXPECT_EQ(KILNUTIL_IsPathValidSyntax(("\\\\" + std::string(519, '1') + "x").c_str(), nullptr), 0);
}

struct SplitCase {
  const char* path;
  const char* folder;
  const char* name;
  const char* extension;  // "-": left untouched
  bool returns_folder;
};

TEST(PathSplit, FolderNameAndExtension) {
  const SplitCase cases[] = {
      {"C:\\data\\a.b.txt", "C:\\data\\", "a.b.txt", ".txt", true},
      {"a.txt", "", "a.txt", ".txt", false},
      {"C:a.txt", "C:", "a.txt", ".txt", true},
      {"C:\\data.d\\readme", "C:\\data.d\\", "readme", "-", true},  // a dot in the folder is no extension
      {"/tmp/x.y/z", "", "/tmp/x.y/z", ".y/z", false},              // forward slashes do not separate
      {"\\\\srv\\share\\", "\\\\srv\\share\\", "", "-", true},
      {"\\f", "\\", "f", "-", true},
      {"", "", "", "-", false},
      {"\xC3\xA9t\xC3\xA9\\\xE2\x82\xAC.\xC3\xA9", "\xC3\xA9t\xC3\xA9\\", "\xE2\x82\xAC.\xC3\xA9", ".\xC3\xA9", true},
  };
  for (const SplitCase& c : cases) {
    SCOPED_TRACE(c.path);
    char folder[64] = "?", name[64] = "?", extension[64] = "-";
    const char* result = KILNUTIL_SeparatePath(c.path, folder, name, extension);
    EXPECT_STREQ(folder, c.folder);
    EXPECT_STREQ(name, c.name);
    EXPECT_STREQ(extension, c.extension);
    EXPECT_EQ(result, c.returns_folder ? folder : name);
  }
}

}  // namespace
