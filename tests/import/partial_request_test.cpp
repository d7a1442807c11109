// Partial-import requests: random requests expanded by a model over the
// indices 0..500 and compared with every query; then the stated cases.
#include <kilnutil/import.h>

#include "import/partial_test_support.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using namespace partial_test;

namespace {

constexpr int kLimit = 500;

// One item as written: 1-based numbers, last 0 for "to the end", and an
// optional "|count-skip" clause.
struct Item {
  bool exclude;
  int first;
  bool has_last;
  int last;
  int count;  // 0: no clause
  int skip;
};

std::string text_of(const Item& item) {
  std::string s = item.exclude ? "~" : "";
  s += std::to_string(item.first);
  if (item.has_last) {
    s += ":" + std::to_string(item.last);
    if (item.count > 0) s += "|" + std::to_string(item.count) + "-" + std::to_string(item.skip);
  }
  return s;
}

// Whether the item's selection holds the 0-based index i.
bool item_holds(const Item& item, int i) {
  const int begin = item.first - 1;
  if (i < begin) return false;
  if (item.has_last && item.last != 0 && i > item.last - 1 && item.last - 1 >= begin) return false;
  if (!item.has_last && i != begin) return false;
  if (item.count == 0 || item.skip < 1) return true;
  return (i - begin) % (item.count + item.skip) < item.count;
}

// The last item holding index i (it decides whether i is wanted), or -1.
int last_holder(const std::vector<Item>& items, int i) {
  for (int k = static_cast<int>(items.size()) - 1; k >= 0; --k) {
    if (item_holds(items[k], i)) return k;
  }
  return -1;
}

Item random_item(std::mt19937& rng) {
  auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
  Item item{pick(0, 3) == 0, pick(1, 400), pick(0, 4) != 0, 0, 0, 0};
  if (item.has_last) {
    item.last = pick(0, 3) == 0 ? 0 : pick(item.first, 480);
    if (pick(0, 1) == 0) {
      item.count = pick(1, 5);
      item.skip = pick(0, 7);
    }
  }
  return item;
}

TEST(PartialRequest, RandomRequestsMatchTheirExpansion) {
  std::mt19937 rng(20261122);
  const char* separators[] = {" ", ",", "  ", ";"};
  const char* suffixes[] = {"", "", "#", "/3", "*12"};
  for (int round = 0; round < 400; ++round) {
    std::vector<Item> items(std::uniform_int_distribution<int>(1, 5)(rng));
    std::string request;
    for (std::size_t k = 0; k < items.size(); ++k) {
      items[k] = random_item(rng);
      if (k) request += separators[rng() % 4];
      request += text_of(items[k]);
    }
    const std::string suffix = suffixes[rng() % 5];
    request += suffix;

    ImportFilesPartialParts parts;
    ASSERT_TRUE(parts.Parse(request.c_str())) << request;
    ASSERT_EQ(parts.GetPartialParts(), static_cast<int>(items.size())) << request;
    for (int k = 0; k < parts.GetPartialParts(); ++k) ASSERT_STREQ(parts.GetFlipShift(k), suffix.c_str());

    // Every index against the model; a run is held by any part, whatever its include flag.
    std::vector<bool> held(kLimit + 1);
    int wanted_count = 0;
    for (int i = 0; i <= kLimit; ++i) {
      const int k = last_holder(items, i);
      held[i] = k >= 0;
      const bool wanted = held[i] && !items[k].exclude;
      ASSERT_EQ(parts.Check(i), wanted) << request << " at " << i;
      wanted_count += wanted;
    }
    ASSERT_EQ(parts.GetNumData(0, kLimit), wanted_count) << request;
    const int from = static_cast<int>(rng() % 300);
    int begin = 0, end = 0;
    const bool found = parts.GetNextBeginEnd(from, kLimit + 1, begin, end);
    int expected_begin = from;
    while (expected_begin <= kLimit && !held[expected_begin]) ++expected_begin;
    ASSERT_EQ(found, expected_begin <= kLimit) << request << " from " << from;
    int expected_end = expected_begin;
    while (found && expected_end + 1 <= kLimit && held[expected_end + 1]) ++expected_end;
    if (!found) expected_begin = expected_end = -1;  // no further run
    ASSERT_EQ(begin, expected_begin) << request;
    ASSERT_EQ(end, expected_end) << request;
  }
}

std::vector<int> wanted_of(const char* request, int limit = 20) {
  ImportFilesPartialParts parts;
  parts.Parse(request);
  std::vector<int> out;
  for (int i = 0; i < limit; ++i) {
    if (parts.Check(i)) out.push_back(i);
  }
  return out;
}

TEST(PartialRequest, StatedCases) {
  EXPECT_EQ(wanted_of("3"), std::vector<int>({2}));
  EXPECT_EQ(wanted_of("3:0", 6), std::vector<int>({2, 3, 4, 5}));
  EXPECT_EQ(wanted_of("1:100|2-3", 13), std::vector<int>({0, 1, 5, 6, 10, 11}));
  EXPECT_EQ(wanted_of("1:10 ~5", 12), std::vector<int>({0, 1, 2, 3, 5, 6, 7, 8, 9}));
  EXPECT_EQ(wanted_of("~5"), std::vector<int>());
  EXPECT_EQ(wanted_of("~5 ~7", 3), std::vector<int>());
}

TEST(PartialRequest, TextWithoutItemsKeepsParts) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("2:4"));
  for (const char* request : {"abc", "", static_cast<const char*>(nullptr)}) EXPECT_FALSE(parts.Parse(request));
  EXPECT_EQ(describe(parts), "1:3");
  ASSERT_TRUE(parts.Parse("7"));
  EXPECT_EQ(describe(parts), "6:6");
}

// Suffixes apply to every part; selection clauses need ":" before them.
TEST(PartialRequest, SuffixesAndClauses) {
  const struct {
    const char* request;
    const char* parts;
  } cases[] = {
      {"1:5 8#", "0:4 #; 7:7 #"},
      {"1:5/2", "0:4 /2"},                 // the suffix is not read as an item
      {"4*3", "3:3 *3"},
      {"2*3/x", "1:1; 2:2"},               // "/" wins over "*"; no integer after it: no suffix
      {"/7", "6:6 /7"},                    // with nothing before it, it is an item as well
      {"1/12345678", "0:0 /12345"},        // six characters at most
      {"1:0|yave-1y", "0:-1 yave1y"},
      {"2:30|3-7d|max-q", "1:29 3-7d max1q"},
      {"4|2-3", "3:3; 1:1; 2:2"},          // without ":" its numbers are plain items
  };
  for (const auto& c : cases) EXPECT_EQ(parsed(c.request), c.parts) << c.request;
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("1:5 8#"));
  EXPECT_EQ(parts.GetFlipShift(2), nullptr);
  ASSERT_TRUE(parts.Parse("1:0|yave-1y"));
  EXPECT_EQ(parts.GetAveAcrossYears(), 'y');
  ASSERT_TRUE(parts.Parse("2:30|3-7d|max-q"));
  EXPECT_EQ(parts.GetAveAcrossYears(), 0);
  EXPECT_TRUE(ImportFilesPartialParts::IsAveAcrossYears("yave"));
  EXPECT_FALSE(ImportFilesPartialParts::IsAveAcrossYears("ave"));
  EXPECT_FALSE(ImportFilesPartialParts::IsAveAcrossYears(nullptr));
}

TEST(PartialRequest, SkipTextReading) {
  ImportFilesPartialPart part{};
  part.include = 1;
  EXPECT_FALSE(skip_str_to_partial("", &part, ""));
  EXPECT_FALSE(skip_str_to_partial(nullptr, &part, nullptr));
  EXPECT_EQ(describe(part), "0:0 0-0");
  EXPECT_TRUE(skip_str_to_partial("m", &part, ""));
  EXPECT_EQ(describe(part), "0:0 1-1m");
  EXPECT_TRUE(skip_str_to_partial("12", &part, "4"));
  EXPECT_EQ(describe(part), "0:0 4-12");
  part.count = 0;
  EXPECT_TRUE(skip_str_to_partial("", &part, "averages_across_all"));
  EXPECT_EQ(describe(part), "0:0 1-12 averages_acr0");  // twelve characters of the name at most
  EXPECT_FALSE(skip_str_to_partial("1", nullptr, "2"));
}

}  // namespace
