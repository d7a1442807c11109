// Backslash escapes of C character and string constants.
#pragma once

namespace kiln::numeric {

// The escape at p (a backslash) within [p, end): its byte value and length,
// or -1 when it is left as it stands (unknown, or naming the NUL character,
// which a NUL-terminated text cannot hold).
int decode_escape(const char* p, const char* end, int* length);

// Calls emit(char) for each byte of [begin, end) with the escapes expanded;
// returns the number of escapes expanded. Writing never runs ahead of
// reading, so the output may overwrite the input.
template <class Emit>
int expand_escapes(const char* begin, const char* end, Emit emit) {
  int expanded = 0;
  for (const char* p = begin; p < end;) {
    int length = 1;
    const int byte = *p == '\\' ? decode_escape(p, end, &length) : -1;
    if (byte < 0) {
      emit(*p++);
      continue;
    }
    emit(static_cast<char>(byte));
    p += length;
    ++expanded;
  }
  return expanded;
}

}  // namespace kiln::numeric
