// UTF-16 little-endian text of a stream written out as UTF-8 a bounded chunk
// at a time, so converting a file costs the same small amount of memory
// whatever the file's size.
#pragma once

#include <cstddef>
#include <cstdio>

namespace kiln::unicode {

enum class StreamConversion { kOk, kConversionFailed, kWriteFailed };

// UTF-16 units converted at a time.
inline constexpr size_t kUtf16ChunkUnits = 32768;

// Reads at most `byte_count` bytes of UTF-16LE text from `in` (from its
// position, up to a short read) and writes them to `out` as UTF-8, stopping
// at the first zero unit; a last odd byte is a unit of its own. The output is
// the same as converting the whole text at once: a surrogate pair is never
// split between chunks, and lone surrogates become U+FFFD. `chunk_units`
// (at least 2) bounds the units held at once.
StreamConversion utf16le_stream_to_utf8(FILE* in, unsigned long long byte_count, FILE* out,
                                        size_t chunk_units = kUtf16ChunkUnits);

}  // namespace kiln::unicode
