// Partial-import requests and their containers: random requests expanded by
// a model over the indices 0..500 and compared with every query, then the
// fixed small requests, the container queries and the option parsing.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// "[~]begin:end", then " count-skip[unit]" when not the plain 1-0, then
// " name special_count[unit]" when a special selection is set, then " flip".
std::string describe(const ImportFilesPartialPart& part) {
  std::string s = part.include ? "" : "~";
  s += std::to_string(part.begin) + ":" + std::to_string(part.end);
  if (part.count != 1 || part.skip != 0 || part.skip_unit != 0) {
    s += " " + std::to_string(part.count) + "-" + std::to_string(part.skip);
    if (part.skip_unit != 0) s += part.skip_unit;
  }
  if (part.name[0] != '\0' || part.special_count != 0 || part.special_unit != 0) {
    s += " " + std::string(part.name) + std::to_string(part.special_count);
    if (part.special_unit != 0) s += part.special_unit;
  }
  if (part.flip_shift[0] != '\0') s += " " + std::string(part.flip_shift);
  return s;
}

// Every part, separated by "; ".
std::string describe(const ImportFilesPartialParts& parts) {
  std::string s;
  for (int k = 0; k < parts.GetPartialParts(); ++k) s += (k ? "; " : "") + describe(*parts.GetPart(k));
  return s;
}

// The parts of a request, or "rejected" when it holds no item.
std::string parsed(const char* request) {
  ImportFilesPartialParts parts;
  return parts.Parse(request) ? describe(parts) : "rejected";
}

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

TEST(PartialRequest, SmallRequests) {
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
      {"1:5/2", "0:4 /2"},  // the suffix is not read as an item
      {"4*3", "3:3 *3"},
      {"2*3/x", "1:1; 2:2"},         // "/" wins over "*"; no integer after it: no suffix
      {"/7", "6:6 /7"},              // with nothing before it, it is an item as well
      {"1/12345678", "0:0 /12345"},  // six characters at most
      {"1:0|yave-1y", "0:-1 yave1y"},
      {"2:30|3-7d|max-q", "1:29 3-7d max1q"},
      {"4|2-3", "3:3; 1:1; 2:2"},  // without ":" its numbers are plain items
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

TEST(PartialQueries, ShiftKeepsLeadingIndices) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("1:5"));
  ASSERT_TRUE(parts.Shift(2, true));
  EXPECT_EQ(describe(parts), "2:6; 0:1");
  EXPECT_EQ(parts.GetNumData(0, 20), 7);
  EXPECT_FALSE(parts.Shift(0, true));

  ImportFilesPartialParts open;
  ASSERT_TRUE(open.Parse("3:0"));
  ASSERT_TRUE(open.Shift(4, false));
  EXPECT_EQ(describe(open), "6:3");  // -1 + 4 still lies below the begin
  EXPECT_TRUE(open.Check(1000));
  EXPECT_FALSE(open.Check(5));

  ImportFilesPartialParts none;
  EXPECT_FALSE(none.Shift(3, true));
  EXPECT_EQ(none.GetPartialParts(), 0);
}

TEST(PartialQueries, NoPartsWantsEverything) {
  ImportFilesPartialParts parts;
  EXPECT_TRUE(parts.Check(0));
  EXPECT_TRUE(parts.Check(123456));
  EXPECT_EQ(parts.GetNumData(5, 9), 5);
  EXPECT_EQ(parts.GetNumData(9, 5), 0);
  int begin = 7, end = 7;
  ASSERT_TRUE(parts.GetNextBeginEnd(3, 10, &begin, &end));
  EXPECT_EQ(begin, 0);
  EXPECT_EQ(end, 9);
  EXPECT_FALSE(parts.GetNextBeginEnd(10, 10, begin, end));
  EXPECT_EQ(parts.GetPart(0), nullptr);
  EXPECT_EQ(parts.GetFlipShift(-1), nullptr);
}

TEST(PartialQueries, SetAndSingleRange) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("1 2 3"));
  ASSERT_TRUE(parts.Set(3, 12, 2, 1));
  EXPECT_EQ(describe(parts), "2:11 2-1");
  int last = 0, blocks = 0, skip = 0, first = 0;
  ASSERT_TRUE(parts.IsSingleRange(&last, &blocks, &skip, &first));
  // 10 indices in periods of 3: 4 periods.
  EXPECT_EQ(std::vector<int>({first, last, blocks, skip}), std::vector<int>({2, 11, 4, 1}));
  EXPECT_TRUE(parts.IsSingleRange(nullptr, nullptr, nullptr, nullptr));
  // Whole periods count once; a period of 0 or less (negative skip) makes
  // one block per index.
  const struct {
    int begin, end, count, skip, blocks;
  } periods[] = {{3, 11, 2, 1, 3}, {3, 12, 2, 1, 4}, {2, 2, 1, 0, 1}, {3, 12, 2, -2, 10}, {3, 12, 2, -5, 10}};
  for (const auto& c : periods) {
    ImportFilesPartialParts one;
    ASSERT_TRUE(one.Set(c.begin, c.end, c.count, c.skip));
    int n = 0;
    EXPECT_TRUE(one.IsSingleRange(nullptr, &n, nullptr, nullptr)) << c.begin << ":" << c.end;
    EXPECT_EQ(n, c.blocks) << c.begin << ":" << c.end << " " << c.count << "-" << c.skip;
  }

  ImportFilesPartialPart part{};
  ASSERT_TRUE(parts.GetSingleRange(part, true));
  EXPECT_EQ(describe(part), "3:12 2-1");
  ASSERT_TRUE(parts.GetSingleRange(&part, false));
  EXPECT_EQ(part.begin, 2);

  ASSERT_TRUE(parts.Parse("1"));  // end 0: not a range
  EXPECT_FALSE(parts.IsSingleRange(&last, &blocks, &skip, &first));
  ASSERT_TRUE(parts.Parse("1:3 5"));
  EXPECT_FALSE(parts.GetSingleRange(part, false));

  EXPECT_TRUE(parse_one_partial("2:9|3-1", &part, true));
  EXPECT_EQ(describe(part), "2:9 3-1");
  EXPECT_FALSE(parse_one_partial("2 4", &part, true));
  EXPECT_FALSE(parse_one_partial(nullptr, &part, true));
  EXPECT_FALSE(parse_one_partial("2", nullptr, true));
}

// The skip values of a single part as "at_least_one begin:end count-skip name special_count unit".
std::string special_skip(const char* request, int total) {
  ImportFilesPartialParts parts;
  parts.Parse(request);
  int at_least_one = 0, begin = 0, end = 0, count = 0, skip = 0, special_count = 0;
  char name[13] = "junk", unit = 'x';
  const char letter = parts.IsSpecialSkip(at_least_one, begin, end, count, total, skip, name, special_count, unit);
  EXPECT_EQ(letter, GetSpecialSkip(parts.GetPart(0), &at_least_one, &begin, &end, &count, total, &skip, name,
                                   &special_count, &unit));
  return std::string(letter ? 1 : 0, letter) + " " + std::to_string(at_least_one) + " " + std::to_string(begin) + ":" +
         std::to_string(end) + " " + std::to_string(count) + "-" + std::to_string(skip) + " " + name +
         std::to_string(special_count) + std::string(unit ? 1 : 0, unit);
}

TEST(PartialQueries, SpecialSkip) {
  EXPECT_EQ(special_skip("5:0|2-3d", 100), "d 3 4:99 2-3 0");  // an open end becomes total - 1
  EXPECT_EQ(special_skip("1:10|ave-2m", 100), " 1 0:9 1-0 ave2m");
  ImportFilesPartialParts two;
  ASSERT_TRUE(two.Parse("1 2"));
  char name[13] = "junk";
  int n = 0;
  char unit = 0;
  EXPECT_EQ(two.IsSpecialSkip(&n, &n, &n, &n, 100, &n, name, &n, &unit), 0);
  EXPECT_STREQ(name, "");
}

TEST(PartialQueries, PartsArrayThrowsOutOfRange) {
  ImportFilesPartialParts::PARTS array;
  EXPECT_THROW(array[0], std::out_of_range);
  ImportFilesPartialPart part{};
  part.begin = 4;
  array.Add(part);
  ImportFilesPartialParts::PARTS copy(array);
  copy[0].begin = 9;
  EXPECT_EQ(array[0].begin, 4);
  array = copy;
  EXPECT_EQ(array[0].begin, 9);
  EXPECT_EQ(array.GetSize(), 1);
  array.Reserve(16);  // capacity only
  EXPECT_EQ(array.GetSize(), 1);
  array.SetSize(3);  // new parts are value-initialised
  EXPECT_EQ(array.GetSize(), 3);
  EXPECT_EQ(array[2].begin, 0);
  EXPECT_THROW(array[3], std::out_of_range);
  array.RemoveAll();
  EXPECT_EQ(array.GetSize(), 0);
}

// The wanted rows and columns among the first eight, as "rows/cols".
std::string wanted(const ImportFilesPartials& partials) {
  std::string s;
  for (int i = 0; i < 8; ++i) s += partials.CheckRow(i) ? 'r' : '.';
  s += '/';
  for (int i = 0; i < 8; ++i) s += partials.CheckCol(i) ? 'c' : '.';
  return s;
}

TEST(PartialQueries, ParseOptions) {
  ImportFilesPartials partials;
  tagImpFilePartialOpt opt{1, 0, "3:5", "", 1, 0};
  ASSERT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(wanted(partials), "r..rrr../cccccccc");  // the header row is kept
  EXPECT_TRUE(partials.Check(4, 40));
  EXPECT_FALSE(partials.Check(6, 0));

  opt = tagImpFilePartialOpt{1, 0, "", "~2", 0, 0};
  ASSERT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(wanted(partials), "rrrrrrrr/........");  // only "~" items: nothing wanted

  opt = tagImpFilePartialOpt{0, 0, "1", "1", 0, 0};
  EXPECT_FALSE(parse_partial_range(&partials, &opt));  // disabled: both emptied
  EXPECT_EQ(wanted(partials), "rrrrrrrr/cccccccc");
  EXPECT_FALSE(parse_partial_range(nullptr, &opt));
}

TEST(PartialQueries, UnterminatedRequestBufferIsBounded) {
  ImportFilesPartials partials;
  tagImpFilePartialOpt opt{1, 0, "", "", 0, 0};
  std::memset(opt.rows, '7', sizeof opt.rows);  // no terminator
  EXPECT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(partials.rows.GetPartialParts(), 1);
}

TEST(PartialQueries, LongRequestsStayShallow) {
  std::string digits(200000, '9');
  EXPECT_EQ(parsed(digits.c_str()), "-1:-1");  // too long to be a number: 0
  std::string spaced = "1" + std::string(200000, ' ') + "4";
  EXPECT_EQ(parsed(spaced.c_str()), "0:0; 3:3");
}

}  // namespace
