/* A C host: includes the umbrella header and calls a few exports. */
#include <kilnutil/kilnutil.h>

#include <stdio.h>
#include <string.h>

int main(void) {
  int failures = 0;
  if (!is_missing_value(get_missing_value())) {
    puts("missing value not recognised");
    ++failures;
  }
  const char* text = "a\xC3\xA9 b"; /* a, e-acute, space, b */
  if (KILNUTIL_UNICODE_UTF8_StrLength(text) != 4 || KILNUTIL_UNICODE_UTF8_StrCharToIndex(2, text) != 3) {
    puts("UTF-8 walk wrong");
    ++failures;
  }
  HGLOBAL block = GlobalAlloc(GHND, 16);
  char* data = (char*)GlobalLock(block);
  if (data == NULL || data[15] != 0) {
    puts("global memory wrong");
    ++failures;
  }
  GlobalUnlock(block);
  if (GlobalFree(block) != NULL) {
    puts("GlobalFree failed");
    ++failures;
  }
  printf("consumer: %s\n", failures ? "FAILED" : "ok");
  return failures ? 1 : 0;
}
