// Base64 with the RFC 4648 alphabet and "=" padding. The exported encoder and
// decoder (kilnutil/unicode.h) wrap these.
#pragma once

#include <cstddef>

namespace kiln::unicode {

// Inputs above this many bytes have their full groups encoded on several threads.
inline constexpr int kBase64ParallelThreshold = 0x80000;

// Encodes `groups` full groups of 3 bytes into 4 characters each.
void encode_base64_groups(const unsigned char* src, size_t groups, char* dst);

// Encodes as many leading full groups as the processor's vector unit takes
// (none without one) and returns how many.
size_t encode_base64_groups_fast(const unsigned char* src, size_t groups, char* dst);

// The full encoder: 4 characters per started group of 3 bytes (the result);
// writes them when dst is given (see the header for the empty input).
int encode_base64(const unsigned char* src, int length, char* dst);

// The full decoder: skips characters outside the alphabet; bytes decoded
// (written when dst is given); with a null source, length + 3.
int decode_base64(const char* src, int length, unsigned char* dst);

// Threads for the full groups of a large input: the parallel runtime's
// maximum thread count (so OMP_NUM_THREADS is honoured).
unsigned base64_worker_count();

// Encodes the full groups split into `workers` contiguous chunks, one thread
// each (the calling thread takes the first).
void encode_base64_groups_parallel(const unsigned char* src, size_t groups, char* dst, unsigned workers);

}  // namespace kiln::unicode
