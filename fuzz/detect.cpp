// Any bytes through the buffer and stream detectors: the code is one of the
// defined ones, the UTF-8 verdict agrees with a plain byte-by-byte check, and
// the stream detector agrees with the buffer detector.
#include "fuzz_support.h"

#include "unicode/encoding_detect.h"

#include <kilnutil/unicode.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using fuzz_support::check;

bool is_defined_code(unsigned code) { return code <= 3 || (code >= 0x101 && code <= 0x105) || code == 0x200; }

// The UTF-8 test written out one byte at a time.
kiln::unicode::Utf8Verdict plain_utf8_verdict(const unsigned char* p, size_t n) {
  bool continued = false;
  for (size_t i = 0; i < n;) {
    const unsigned char lead = p[i++];
    if (lead == 0) return kiln::unicode::Utf8Verdict::kInvalid;
    if (lead < 0x80) continue;
    const int expected = lead >= 0xC2 && lead <= 0xDF   ? 1
                         : lead >= 0xE0 && lead <= 0xEF ? 2
                         : lead >= 0xF0 && lead <= 0xF4 ? 3
                                                        : -1;
    if (expected < 0) return kiln::unicode::Utf8Verdict::kInvalid;
    for (int k = 0; k < expected && i < n; ++k, ++i) {
      if ((p[i] & 0xC0) != 0x80) return kiln::unicode::Utf8Verdict::kInvalid;
      continued = true;
    }
  }
  return continued ? kiln::unicode::Utf8Verdict::kUtf8 : kiln::unicode::Utf8Verdict::kAscii;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::unique_ptr<unsigned char[]> bytes(new unsigned char[size + 1]);
  std::memcpy(bytes.get(), data, size);
  bytes[size] = 0;
  const auto count = static_cast<unsigned>(size);

  const unsigned code = KILNUTIL_DetectEncodingBuffer(bytes.get(), count, 0);
  check(is_defined_code(code));
  const unsigned marks_only = KILNUTIL_DetectEncodingBuffer(bytes.get(), count, KILNUTIL_DETECT_MARK_ONLY);
  check(marks_only == 0 || (marks_only & 0x100) != 0);
  if (marks_only != 0) check(marks_only == code);
  check(kiln::unicode::utf8_verdict(bytes.get(), size) == plain_utf8_verdict(bytes.get(), size));
  const int mark = KILNUTIL_GetBOMSize(code);
  check(mark == 0 || mark == 2 || mark == 3 || mark == 4);

  if (size > 0) {
    FILE* stream = fuzz_support::stream_over(bytes.get(), size);
    if (stream != nullptr) {
      check(KILNUTIL_DetectEncoding(stream, 0, 0) == code);
      std::fclose(stream);
    }
  }
  return 0;
}
