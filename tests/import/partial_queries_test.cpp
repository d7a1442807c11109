// The queries of the partial-import containers and the option parsing.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>

namespace {

TEST(PartialQueries, ShiftKeepsLeadingIndices) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("1:5"));
  ASSERT_TRUE(parts.Shift(2, true));
  ASSERT_EQ(parts.GetPartialParts(), 2);
  EXPECT_EQ(parts.GetPart(0)->begin, 2);
  EXPECT_EQ(parts.GetPart(0)->end, 6);
  EXPECT_EQ(parts.GetPart(1)->begin, 0);
  EXPECT_EQ(parts.GetPart(1)->end, 1);
  EXPECT_EQ(parts.GetNumData(0, 20), 7);
  EXPECT_FALSE(parts.Shift(0, true));

  ImportFilesPartialParts open;
  ASSERT_TRUE(open.Parse("3:0"));
  ASSERT_TRUE(open.Shift(4, false));
  EXPECT_EQ(open.GetPart(0)->end, 3);  // -1 + 4 still lies below the begin
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
  ASSERT_TRUE(parts.GetNextBeginEnd(3, 10, begin, end));
  EXPECT_EQ(begin, 0);
  EXPECT_EQ(end, 9);
  EXPECT_FALSE(parts.GetNextBeginEnd(10, 10, begin, end));
  EXPECT_EQ(parts.GetPart(0), nullptr);
  EXPECT_EQ(parts.GetFlipShift(-1), nullptr);
}

TEST(PartialQueries, NextRunIgnoresIncludeFlag) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("~3:4 8"));
  int begin = 0, end = 0;
  ASSERT_TRUE(parts.GetNextBeginEnd(0, 20, &begin, &end));
  EXPECT_EQ(begin, 2);
  EXPECT_EQ(end, 3);
  ASSERT_TRUE(parts.GetNextBeginEnd(4, 20, begin, end));
  EXPECT_EQ(begin, 7);
  EXPECT_EQ(end, 7);
  EXPECT_FALSE(parts.GetNextBeginEnd(8, 20, begin, end));
  EXPECT_EQ(begin, -1);
}

TEST(PartialQueries, SetAndSingleRange) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("1 2 3"));
  ASSERT_TRUE(parts.Set(3, 12, 2, 1));
  ASSERT_EQ(parts.GetPartialParts(), 1);
  int last = 0, blocks = 0, skip = 0, first = 0;
  ASSERT_TRUE(parts.IsSingleRange(&last, &blocks, &skip, &first));
  EXPECT_EQ(first, 2);
  EXPECT_EQ(last, 11);
  EXPECT_EQ(blocks, 4);  // 10 indices in periods of 3
  EXPECT_EQ(skip, 1);
  EXPECT_TRUE(parts.IsSingleRange(nullptr, nullptr, nullptr, nullptr));

  ImportFilesPartialPart part{};
  ASSERT_TRUE(parts.GetSingleRange(part, true));
  EXPECT_EQ(part.begin, 3);
  EXPECT_EQ(part.end, 12);
  ASSERT_TRUE(parts.GetSingleRange(&part, false));
  EXPECT_EQ(part.begin, 2);

  ASSERT_TRUE(parts.Parse("1"));  // end 0: not a range
  EXPECT_FALSE(parts.IsSingleRange(&last, &blocks, &skip, &first));
  ASSERT_TRUE(parts.Parse("1:3 5"));
  EXPECT_FALSE(parts.GetSingleRange(part, false));

  EXPECT_TRUE(parse_one_partial("2:9|3-1", &part, true));
  EXPECT_EQ(part.begin, 2);
  EXPECT_EQ(part.end, 9);
  EXPECT_EQ(part.count, 3);
  EXPECT_FALSE(parse_one_partial("2 4", &part, true));
  EXPECT_FALSE(parse_one_partial(nullptr, &part, true));
  EXPECT_FALSE(parse_one_partial("2", nullptr, true));
}

TEST(PartialQueries, SpecialSkip) {
  ImportFilesPartialParts parts;
  ASSERT_TRUE(parts.Parse("5:0|2-3d"));
  int at_least_one = 0, begin = 0, end = 0, count = 0, skip = 0, special_count = 0;
  char name[13] = "junk", unit = 'x';
  EXPECT_EQ(parts.IsSpecialSkip(at_least_one, begin, end, count, 100, skip, name, special_count, unit), 'd');
  EXPECT_EQ(begin, 4);
  EXPECT_EQ(end, 99);
  EXPECT_EQ(count, 2);
  EXPECT_EQ(skip, 3);
  EXPECT_EQ(at_least_one, 3);
  EXPECT_STREQ(name, "");
  EXPECT_EQ(unit, 0);

  ASSERT_TRUE(parts.Parse("1:10|ave-2m"));
  EXPECT_EQ(GetSpecialSkip(parts.GetPart(0), &at_least_one, &begin, &end, &count, 100, &skip, name, &special_count,
                           &unit),
            0);
  EXPECT_EQ(at_least_one, 1);
  EXPECT_EQ(end, 9);
  EXPECT_STREQ(name, "ave");
  EXPECT_EQ(special_count, 2);
  EXPECT_EQ(unit, 'm');

  ASSERT_TRUE(parts.Parse("1 2"));
  std::strcpy(name, "junk");
  EXPECT_EQ(parts.IsSpecialSkip(&at_least_one, &begin, &end, &count, 100, &skip, name, &special_count, &unit), 0);
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

tagImpFilePartialOpt options(int enabled, const char* rows, const char* cols, int row_shift, int col_shift) {
  tagImpFilePartialOpt opt{};
  opt.enabled = enabled;
  std::strcpy(opt.rows, rows);
  std::strcpy(opt.cols, cols);
  opt.row_shift = row_shift;
  opt.col_shift = col_shift;
  return opt;
}

TEST(PartialQueries, ParseOptions) {
  ImportFilesPartials partials;
  tagImpFilePartialOpt opt = options(1, "3:5", "", 1, 0);
  ASSERT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_TRUE(partials.CheckRow(0));  // the header row is kept
  EXPECT_FALSE(partials.CheckRow(1));
  EXPECT_FALSE(partials.CheckRow(2));
  EXPECT_TRUE(partials.CheckRow(3));
  EXPECT_TRUE(partials.CheckRow(5));
  EXPECT_FALSE(partials.CheckRow(6));
  EXPECT_TRUE(partials.CheckCol(40));
  EXPECT_TRUE(partials.Check(4, 40));
  EXPECT_FALSE(partials.Check(6, 0));

  opt = options(1, "", "~2", 0, 0);
  ASSERT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_TRUE(partials.CheckRow(6));
  EXPECT_FALSE(partials.CheckCol(1));
  EXPECT_FALSE(partials.CheckCol(0));  // only "~" items: nothing wanted

  opt = options(0, "1", "1", 0, 0);
  EXPECT_FALSE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(partials.rows.GetPartialParts(), 0);
  EXPECT_EQ(partials.cols.GetPartialParts(), 0);
  EXPECT_FALSE(parse_partial_range(nullptr, &opt));
}

TEST(PartialQueries, UnterminatedRequestBufferIsBounded) {
  ImportFilesPartials partials;
  tagImpFilePartialOpt opt = options(1, "", "", 0, 0);
  std::memset(opt.rows, '7', sizeof opt.rows);  // no terminator
  EXPECT_TRUE(parse_partial_range(&partials, &opt));
  EXPECT_EQ(partials.rows.GetPartialParts(), 1);
}

TEST(PartialQueries, LongRequestsStayShallow) {
  ImportFilesPartialParts parts;
  std::string digits(200000, '9');
  EXPECT_TRUE(parts.Parse(digits.c_str()));
  EXPECT_EQ(parts.GetPart(0)->begin, -1);  // too long to be a number: 0
  std::string spaced = "1" + std::string(200000, ' ') + "4";
  ASSERT_TRUE(parts.Parse(spaced.c_str()));
  EXPECT_EQ(parts.GetPartialParts(), 2);
}

}  // namespace
