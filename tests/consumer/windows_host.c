/* A Windows host's view of kilnutil.dll: loaded with LoadLibraryW and called
 * through GetProcAddress by plain name, as the application does. Checks a
 * runtime-named export (sqrt gives the library's missing value and error code,
 * while the host's own sqrt stays the C runtime's) and frees a global-memory
 * handle the library returns with the system's GlobalFree.
 * Usage: windows_host [path\to\kilnutil.dll] */
#include <windows.h>

#include <math.h>
#include <stdio.h>
#include <string.h>

typedef double (*UnaryFunction)(double);
typedef unsigned int (*ErrorCodeFunction)(void);
typedef double (*MissingValueFunction)(void);
typedef HGLOBAL (*Utf8ToUtf16Function)(HGLOBAL, int, int);

static int failures = 0;

static void check(int ok, const char* what) {
  if (!ok) {
    printf("windows_host: FAILED: %s\n", what);
    ++failures;
  }
}

static FARPROC find(HMODULE library, const char* name) {
  FARPROC address = GetProcAddress(library, name);
  check(address != NULL, name);
  return address;
}

/* The library converts a movable UTF-8 block into a new UTF-16 block; the
 * host locks, reads and frees it with the system's functions. */
static void check_global_memory(HMODULE library) {
  Utf8ToUtf16Function to_utf16 = (Utf8ToUtf16Function)(void*)find(library, "KILNUTIL_UNICODE_UTF8_to_UTF16_handle");
  if (to_utf16 == NULL) return;
  static const char text[] = "a\xC3\xA9";
  HGLOBAL utf8 = GlobalAlloc(GHND, sizeof text);
  char* bytes = (char*)GlobalLock(utf8);
  memcpy(bytes, text, sizeof text);
  GlobalUnlock(utf8);
  HGLOBAL utf16 = to_utf16(utf8, 1, 1);
  check(utf16 != NULL, "UTF-16 handle returned");
  if (utf16 == NULL) return;
  const wchar_t* units = (const wchar_t*)GlobalLock(utf16);
  check(units != NULL && units[0] == L'a' && units[1] == 0x00E9 && units[2] == 0, "UTF-16 handle contents");
  GlobalUnlock(utf16);
  check(GlobalFree(utf16) == NULL, "GlobalFree of the returned handle");
}

int main(int argc, char** argv) {
  wchar_t path[MAX_PATH] = L"kilnutil.dll";
  if (argc > 1 && MultiByteToWideChar(CP_UTF8, 0, argv[1], -1, path, MAX_PATH) == 0) return 2;
  HMODULE library = LoadLibraryW(path);
  if (library == NULL) {
    printf("windows_host: FAILED: LoadLibraryW (error %lu)\n", GetLastError());
    return 1;
  }
  MissingValueFunction missing = (MissingValueFunction)(void*)find(library, "get_missing_value");
  ErrorCodeFunction error_code = (ErrorCodeFunction)(void*)find(library, "get_error_code");
  UnaryFunction library_sqrt = (UnaryFunction)(void*)find(library, "sqrt");
  if (missing != NULL && error_code != NULL && library_sqrt != NULL) {
    check(library_sqrt(-1.0) == missing(), "sqrt(-1) is the missing value");
    check(error_code() == 1, "sqrt(-1) sets error code 1");
    check(library_sqrt(4.0) == 2.0, "sqrt(4)");
    volatile double minus_one = -1.0;
    check(isnan(sqrt(minus_one)), "the host's own sqrt is the C runtime's");
  }
  check_global_memory(library);
  check(FreeLibrary(library) != 0, "FreeLibrary");
  printf("windows_host: %s\n", failures ? "FAILED" : "ok");
  return failures ? 1 : 0;
}
