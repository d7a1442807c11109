// The queries of the partial-import containers and the option parsing.
#include <kilnutil/import.h>

#include "import/partial_test_support.h"

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

using namespace partial_test;

namespace {

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
  EXPECT_EQ(std::vector<int>({first, last, blocks, skip}), std::vector<int>({2, 11, 4, 1}));  // 10 indices in periods of 3
  EXPECT_TRUE(parts.IsSingleRange(nullptr, nullptr, nullptr, nullptr));

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
  EXPECT_TRUE(partials.CheckCol(40));
  EXPECT_TRUE(partials.Check(4, 40));
  EXPECT_FALSE(partials.Check(6, 0));

  opt = tagImpFilePartialOpt{1, 0, "", "~2", 0, 0};
  ASSERT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(wanted(partials), "rrrrrrrr/........");  // only "~" items: nothing wanted

  opt = tagImpFilePartialOpt{0, 0, "1", "1", 0, 0};
  EXPECT_FALSE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(partials.rows.GetPartialParts() + partials.cols.GetPartialParts(), 0);
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
