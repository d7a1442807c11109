// Bit fields in both orders, and the block transpose.
#include <kilnutil/import.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

TEST(BitField, SizesAndOffsets) {
  EXPECT_EQ(KILNUTIL_GetBitFieldSize(3, 3), 2);
  EXPECT_EQ(KILNUTIL_GetBitFieldSize(8, 1), 1);
  EXPECT_EQ(KILNUTIL_GetBitFieldSize(0, 5), 0);
  EXPECT_EQ(KILNUTIL_GetBitFieldHeight(2, 3), 5);  // 16 bits hold 5 rows of 3
}

// Every cell set alone lands on exactly one bit, where the layout (the index
// function) says, and the other cells stay clear.
TEST(BitField, EachCellOwnsOneBitInBothOrders) {
  constexpr int kWidth = 11, kHeight = 5, kStride = 2;
  for (const bool bitmap : {false, true}) {
    const KILNUTIL_BitFieldIndexFunc index =
        bitmap ? KILNUTIL_GetBitFieldIndexOffset_BITMAP : KILNUTIL_GetBitFieldIndexOffset;
    const int third = bitmap ? kStride : kWidth;
    const int size = bitmap ? kStride * kHeight : KILNUTIL_GetBitFieldSize(kWidth, kHeight);
    std::vector<unsigned char> field(static_cast<std::size_t>(size), 0xAB);
    KILNUTIL_InitBitField(field.data(), size);
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        ASSERT_EQ(KILNUTIL_SetBitField(index, field.data(), y, x, third, 1), 1);
        const int expected_byte = bitmap ? y * kStride + x / 8 : (y * kWidth + x) / 8;
        const int expected_bit = bitmap ? 7 - x % 8 : (y * kWidth + x) % 8;
        for (int b = 0; b < size; ++b) {
          ASSERT_EQ(field[b], b == expected_byte ? 1 << expected_bit : 0) << bitmap << " " << y << " " << x;
        }
        ASSERT_EQ(KILNUTIL_TestBitField(index, field.data(), y, x, third), 1);
        KILNUTIL_SetBitField(index, field.data(), y, x, third, 0);
        ASSERT_EQ(KILNUTIL_TestBitField(index, field.data(), y, x, third), 0);
      }
    }
  }
}

TEST(BitField, OnlyLowThirtyTwoBitsOfValueCount) {
  unsigned char field[2] = {0, 0};
  KILNUTIL_SetBitField(KILNUTIL_GetBitFieldIndexOffset, field, 0, 3, 8, 0x100000000LL);
  EXPECT_EQ(field[0], 0);
  KILNUTIL_SetBitField(KILNUTIL_GetBitFieldIndexOffset, field, 0, 3, 8, 0x100000001LL);
  EXPECT_EQ(field[0], 8);
}

TEST(BlockTranspose, MovesEveryElement) {
  constexpr unsigned short kRows = 3, kCols = 5;
  std::vector<std::uint16_t> block(kRows * kCols);
  for (int i = 0; i < kRows * kCols; ++i) block[i] = static_cast<std::uint16_t>(i);
  ASSERT_EQ(KILNUTIL_RowColChange(block.data(), kRows, kCols, sizeof(std::uint16_t)), 0);
  for (int j = 0; j < kCols; ++j) {
    for (int i = 0; i < kRows; ++i) EXPECT_EQ(block[j * kRows + i], i * kCols + j);
  }
  // Twice gives the original back.
  ASSERT_EQ(KILNUTIL_RowColChange(block.data(), kCols, kRows, sizeof(std::uint16_t)), 0);
  for (int i = 0; i < kRows * kCols; ++i) EXPECT_EQ(block[i], i);
}

TEST(BlockTranspose, EmptyShapes) {
  int one = 7;
  EXPECT_EQ(KILNUTIL_RowColChange(&one, 0, 4, sizeof one), 0);
  EXPECT_EQ(one, 7);
  // No bytes at all cannot be had as a locked block.
  EXPECT_EQ(KILNUTIL_RowColChange(&one, 2, 0, sizeof one), 1);
  EXPECT_EQ(one, 7);
}

}  // namespace
