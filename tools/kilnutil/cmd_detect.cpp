// kilnutil detect FILE...: the encoding of each file as the import code sees
// it (the leading bytes its extension calls for), with the mark size.
#include "commands.h"

#include <kilnutil/unicode.h>

#include <cstdio>
#include <string>

namespace kilnutil_cli {

namespace {

const char* encoding_name(unsigned code) {
  switch (code) {
    case 0: return "code page";
    case 1: return "UTF-8";
    case 2: return "UTF-16LE";
    case 3: return "UTF-16BE";
    case 0x101: return "UTF-8 with mark";
    case 0x102: return "UTF-16LE with mark";
    case 0x103: return "UTF-16BE with mark";
    case 0x104: return "UTF-32LE with mark";
    case 0x105: return "UTF-32BE with mark";
    case 0x200: return "ASCII";
    case 255: return "empty";
    default: return "unknown";
  }
}

}  // namespace

int run_detect(Args args) {
  if (args.empty()) return usage_error("detect takes one or more files");
  int status = kOk;
  for (const char* path : args) {
    FILE* stream = std::fopen(path, "rb");
    if (stream == nullptr) {
      status = input_error(std::string("cannot open '") + path + "'");
      continue;
    }
    const unsigned code = KILNUTIL_DetectEncoding(stream, KILNUTIL_DetectEncoding_GetBufSizeFromFilePath(path), 0);
    std::fclose(stream);
    std::printf("%s: %u %s, mark %d bytes\n", path, code, encoding_name(code), KILNUTIL_GetBOMSize(code));
  }
  return status;
}

}  // namespace kilnutil_cli
