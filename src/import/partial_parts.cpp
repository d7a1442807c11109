// The queries the import code asks of the parts of one dimension while it
// reads: is an index wanted, how many are, where the next run lies.
#include "import/partial_part.h"

#include <cstdint>
#include <cstring>
#include <string_view>

using kiln::import::new_part;
using kiln::import::part_contains;
using kiln::import::SpecialSkipOut;

namespace {

int wrapping_add(int a, int b) {
  return static_cast<int>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

// Ceiling of n / d for d >= 1, also for a negative n.
std::int64_t ceil_div(std::int64_t n, std::int64_t d) { return n >= 0 ? (n + d - 1) / d : n / d; }

}  // namespace

ImportFilesPartialParts::ImportFilesPartialParts() = default;
ImportFilesPartialParts::ImportFilesPartialParts(const ImportFilesPartialParts& other) = default;
ImportFilesPartialParts& ImportFilesPartialParts::operator=(const ImportFilesPartialParts& other) = default;
ImportFilesPartialParts::~ImportFilesPartialParts() = default;

bool ImportFilesPartialParts::Set(int begin, int end, int count, int skip) {
  ImportFilesPartialPart part = new_part();
  part.include = 1;
  part.begin = wrapping_add(begin, -1);
  part.end = wrapping_add(end, -1);
  part.count = count;
  part.skip = skip;
  parts_.RemoveAll();
  parts_.Add(part);
  return true;
}

bool ImportFilesPartialParts::Shift(int amount, bool add_leading) {
  if (amount == 0) return false;
  const int size = parts_.GetSize();
  for (int i = 0; i < size; ++i) {
    parts_[i].begin = wrapping_add(parts_[i].begin, amount);
    parts_[i].end = wrapping_add(parts_[i].end, amount);
  }
  if (add_leading && amount >= 1 && size > 0) {
    ImportFilesPartialPart leading = new_part();
    leading.include = 1;
    leading.end = amount - 1;
    parts_.Add(leading);
  }
  return size > 0;
}

void ImportFilesPartialParts::RemoveAll() { parts_.RemoveAll(); }

bool ImportFilesPartialParts::Check(int index) const {
  const int size = parts_.GetSize();
  for (int i = size - 1; i >= 0; --i) {
    if (part_contains(parts_[i], index)) return parts_[i].include != 0;
  }
  return size == 0;
}

int ImportFilesPartialParts::GetNumData(int from, int to) const {
  if (from > to) return 0;
  std::uint32_t wanted = 0;
  for (std::int64_t i = from; i <= to; ++i) {
    if (Check(static_cast<int>(i))) ++wanted;
  }
  return static_cast<int>(wanted);
}

bool ImportFilesPartialParts::GetNextBeginEnd(int from, int to, int& begin, int& end) const {
  if (from >= to) return false;
  const int size = parts_.GetSize();
  if (size == 0) {
    begin = 0;
    end = to - 1;
    return true;
  }
  begin = -1;
  end = -1;
  for (int i = from; i < to; ++i) {
    for (int k = 0; k < size; ++k) {
      if (part_contains(parts_[k], i)) {
        if (begin == -1) begin = i;
        end = i;
        break;
      }
    }
    if (begin != -1 && end != i) return true;
  }
  return begin != -1;
}

bool ImportFilesPartialParts::GetNextBeginEnd(int from, int to, int* begin, int* end) const {
  int first = begin != nullptr ? *begin : 0;
  int last = end != nullptr ? *end : 0;
  const bool found = GetNextBeginEnd(from, to, first, last);
  if (begin != nullptr) *begin = first;
  if (end != nullptr) *end = last;
  return found;
}

int ImportFilesPartialParts::GetPartialParts() const { return parts_.GetSize(); }

ImportFilesPartialPart* ImportFilesPartialParts::GetPart(int index) {
  return index >= 0 && index < parts_.GetSize() ? &parts_[index] : nullptr;
}

const ImportFilesPartialPart* ImportFilesPartialParts::GetPart(int index) const {
  return index >= 0 && index < parts_.GetSize() ? &parts_[index] : nullptr;
}

const char* ImportFilesPartialParts::GetFlipShift(int index) const {
  const ImportFilesPartialPart* part = GetPart(index);
  return part != nullptr ? part->flip_shift : nullptr;
}

bool ImportFilesPartialParts::IsSingleRange(int* last, int* blocks, int* skip, int* first) const {
  if (parts_.GetSize() != 1) return false;
  const ImportFilesPartialPart& part = parts_[0];
  if (part.count < 1 || part.end < 1) return false;
  const std::int64_t span = std::int64_t{part.end} - part.begin + 1;
  const std::int64_t period = std::int64_t{part.skip} + part.count;
  // A negative skip can make the period 0 or less: one block per index then.
  const std::int64_t periods = period >= 1 ? ceil_div(span, period) : span;
  if (blocks != nullptr) *blocks = static_cast<int>(periods);
  if (skip != nullptr) *skip = part.skip;
  if (first != nullptr) *first = part.begin;
  if (last != nullptr) *last = part.end;
  return true;
}

bool ImportFilesPartialParts::GetSingleRange(ImportFilesPartialPart& part, bool one_based) const {
  if (parts_.GetSize() != 1) return false;
  part = parts_[0];
  if (one_based) {
    part.begin = wrapping_add(part.begin, 1);
    part.end = wrapping_add(part.end, 1);
  }
  return true;
}

bool ImportFilesPartialParts::GetSingleRange(ImportFilesPartialPart* part, bool one_based) const {
  return part != nullptr && GetSingleRange(*part, one_based);
}

char ImportFilesPartialParts::IsSpecialSkip(int* skip_at_least_one, int* begin, int* end, int* count, int total,
                                            int* skip, char* name, int* special_count, char* special_unit) const {
  const SpecialSkipOut out{skip_at_least_one, begin, end, count, skip, name, special_count, special_unit};
  if (parts_.GetSize() != 1) {
    kiln::import::clear_special_skip_name(out);
    return 0;
  }
  return kiln::import::special_skip_of(parts_[0], total, out);
}

char ImportFilesPartialParts::IsSpecialSkip(int& skip_at_least_one, int& begin, int& end, int& count, int total,
                                            int& skip, char* name, int& special_count, char& special_unit) const {
  return IsSpecialSkip(&skip_at_least_one, &begin, &end, &count, total, &skip, name, &special_count, &special_unit);
}

char ImportFilesPartialParts::GetAveAcrossYears() const {
  if (parts_.GetSize() < 1) return 0;
  const ImportFilesPartialPart& first = parts_[0];
  if (std::string_view(first.name, strnlen(first.name, sizeof first.name)) != "yave") return 0;
  return parts_[0].special_unit;
}

bool ImportFilesPartialParts::IsAveAcrossYears(const char* name) {
  return name != nullptr && std::strcmp(name, "yave") == 0;
}
