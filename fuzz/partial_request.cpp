// Any bytes as a partial-import request: parsing never fails or reads past the
// text, the queries agree with each other over a window of indices, and
// unterminated option buffers are read no further than their size.
#include "fuzz_support.h"

#include <kilnutil/import.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

using fuzz_support::check;

constexpr int kWindow = 64;

void check_queries(const ImportFilesPartialParts& parts) {
  int wanted = 0;
  for (int i = 0; i < kWindow; ++i) wanted += parts.Check(i);
  check(parts.GetNumData(0, kWindow - 1) == wanted);
  check(parts.GetNumData(kWindow, 0) == 0);
  int begin = 0, end = 0;
  if (parts.GetNextBeginEnd(0, kWindow, begin, end)) check(0 <= begin && begin <= end && end < kWindow);
  for (int k = 0; k < parts.GetPartialParts(); ++k) {
    const ImportFilesPartialPart* part = parts.GetPart(k);
    check(part != nullptr && strnlen(part->name, sizeof part->name) < sizeof part->name);
    check(strnlen(part->flip_shift, sizeof part->flip_shift) <= 6);
  }
  check(parts.GetPart(parts.GetPartialParts()) == nullptr);
  int last, blocks, skip, first;
  parts.IsSingleRange(&last, &blocks, &skip, &first);
  char name[13];
  int a, b, c, d, e, f;
  char unit;
  parts.IsSpecialSkip(&a, &b, &c, &d, 100, &e, name, &f, &unit);
  parts.GetAveAcrossYears();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::unique_ptr<char[]> text(new char[size + 1]);
  std::memcpy(text.get(), data, size);
  text[size] = '\0';

  ImportFilesPartialParts parts;
  if (parts.Parse(text.get())) check(parts.GetPartialParts() >= 1);
  check_queries(parts);
  parts.Shift(static_cast<int>(size % 7) - 3, true);
  check_queries(parts);

  ImportFilesPartialPart one{};
  parse_one_partial(text.get(), &one, true);
  skip_str_to_partial(text.get(), &one, text.get() + size / 2);

  // The options as the host holds them: fixed buffers, filled to the brim.
  auto options = std::make_unique<tagImpFilePartialOpt>();
  options->enabled = 1;
  std::memset(options->rows, '1', sizeof options->rows);
  std::memcpy(options->rows, data, std::min(size, sizeof options->rows));
  std::memcpy(options->cols, data + size / 2, std::min(size - size / 2, sizeof options->cols));
  options->row_shift = size > 0 ? data[0] % 5 : 0;
  ImportFilesPartials partials;
  check(parse_partial_range(&partials, options.get()));
  partials.Check(3, 4);
  return 0;
}
