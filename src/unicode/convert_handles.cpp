// Conversions of text held in global memory handles.
#include "unicode/code_page_direct.h"
#include "unicode/global_text.h"

#include "frame/settings.h"

#include <kilnutil/unicode.h>

#include <cstring>
#include <limits>

namespace kiln::unicode {

using platform::kCodePageUtf8;

namespace {

int clamp_to_int(size_t value) {
  return value > static_cast<size_t>(std::numeric_limits<int>::max() - 1) ? std::numeric_limits<int>::max() - 1
                                                                          : static_cast<int>(value);
}

}  // namespace

int block_text_to_wide(unsigned code_page, const LockedBlock& block, WideScratch& units) {
  const auto* text = static_cast<const char*>(block.data());
  const int length = clamp_to_int(strnlen(text, block.size()));
  if (length == 0) {
    if (!units.reserve(1)) return 0;
    units.data()[0] = 0;
    return 1;
  }
  const int count = platform::multibyte_to_wide(code_page, text, length, nullptr, 0);
  if (count <= 0 || !units.reserve(static_cast<size_t>(count) + 1)) return 0;
  if (platform::multibyte_to_wide(code_page, text, length, units.data(), count) != count) return 0;
  units.data()[count] = 0;
  return count + 1;
}

int replace_block_text(HGLOBAL* handle, unsigned code_page, WideScratch& units, int unit_count, int* default_used) {
  const char* default_char = default_used != nullptr ? "?" : nullptr;
  bool used = false;
  bool* used_report = default_used != nullptr ? &used : nullptr;
  if (default_used != nullptr) *default_used = 0;
  const int bytes =
      platform::wide_to_multibyte(code_page, units.data(), unit_count, nullptr, 0, default_char, used_report);
  if (bytes <= 0) return -1;
  HGLOBAL resized = kiln::platform::global_realloc(*handle, static_cast<size_t>(bytes), GMEM_MOVEABLE | GMEM_ZEROINIT);
  if (resized == nullptr) return -1;
  *handle = resized;
  LockedBlock block(resized);
  if (block.data() == nullptr) return -1;
  const int written = platform::wide_to_multibyte(code_page, units.data(), unit_count, static_cast<char*>(block.data()),
                                                  bytes, default_char, used_report);
  if (default_used != nullptr) *default_used = used ? 1 : 0;
  return written == bytes ? bytes : -1;
}

// The direct path of long code-page text: the conversion's result, or
// kNoDirectPath (the block still locked) when there is none.
constexpr int kNoDirectPath = -2;

static int replace_with_direct_utf8(HGLOBAL* handle, unsigned code_page, LockedBlock& block) {
  const auto* text = static_cast<const char*>(block.data());
  const size_t length = strnlen(text, block.size());
  if (length == block.size()) return kNoDirectPath;  // no NUL in the block: the general path adds one
  Scratch<char> utf8;
  const int count = code_page_to_utf8_direct(code_page, text, -1, utf8);
  if (count < 0) return kNoDirectPath;
  block.unlock();
  if (count == 0) return -1;
  HGLOBAL resized = kiln::platform::global_realloc(*handle, static_cast<size_t>(count), GMEM_MOVEABLE | GMEM_ZEROINIT);
  if (resized == nullptr) return -1;
  *handle = resized;
  LockedBlock target(resized);
  if (target.data() == nullptr) return -1;
  std::memcpy(target.data(), utf8.data(), static_cast<size_t>(count));
  return count;
}

int convert_handle_text(HGLOBAL* handle, int direction, int code_page) {
  if (handle == nullptr || *handle == nullptr) return 0;
  LockedBlock block(*handle);
  if (block.data() == nullptr) return 0;
  if (block.size() == 0 || *static_cast<const char*>(block.data()) == '\0') return 1;
  const unsigned page = resolve_code_page(code_page);
  const unsigned from = direction == 0 ? page : platform::kCodePageUtf8;
  const unsigned to = direction == 0 ? platform::kCodePageUtf8 : page;
  if (direction == 0) {
    if (const int direct = replace_with_direct_utf8(handle, page, block); direct != kNoDirectPath) return direct;
  }
  WideScratch units;
  const int unit_count = block_text_to_wide(from, block, units);
  block.unlock();
  if (unit_count == 0) return -1;
  int* default_used = direction != 0 ? frame::default_char_used_flag() : nullptr;
  return replace_block_text(handle, to, units, unit_count, default_used);
}

HGLOBAL utf8_block_to_utf16(HGLOBAL utf8, bool movable, bool free_source) {
  HGLOBAL result = nullptr;
  {
    LockedBlock source(utf8);
    WideScratch units;
    const int count = source.data() != nullptr ? block_text_to_wide(platform::kCodePageUtf8, source, units) : 0;
    if (count > 0)
      result = platform::global_alloc(movable ? GHND : GPTR, static_cast<size_t>(count) * sizeof(KILN_WCHAR));
    if (result != nullptr) {
      LockedBlock target(result);
      if (target.data() != nullptr) {
        std::memcpy(target.data(), units.data(), static_cast<size_t>(count) * sizeof(KILN_WCHAR));
      }
    }
  }
  if (free_source && utf8 != nullptr) platform::global_free(utf8);
  return result;
}

}  // namespace kiln::unicode
