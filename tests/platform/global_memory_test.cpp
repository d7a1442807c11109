#include "platform/global_memory.h"

#include <kilnutil/platform.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

TEST(GlobalMemory, FixedBlockHandleIsItsAddress) {
  HGLOBAL block = GlobalAlloc(GPTR, 100);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(GlobalLock(block), block);
  EXPECT_EQ(GlobalSize(block), 100u);
  const char* bytes = static_cast<const char*>(block);
  for (int i = 0; i < 100; ++i) ASSERT_EQ(bytes[i], 0);
  // Fixed blocks have no lock count: the library's functions say "not
  // locked" (0); Windows' own GlobalUnlock answers TRUE for a fixed block.
  EXPECT_EQ(GlobalUnlock(block) != 0, kiln::platform::global_memory_is_the_systems());
  EXPECT_EQ(GlobalFree(block), nullptr);
}

TEST(GlobalMemory, MovableBlockCountsLocks) {
  HGLOBAL block = GlobalAlloc(GHND, 8);
  ASSERT_NE(block, nullptr);
  void* first = GlobalLock(block);
  ASSERT_NE(first, nullptr);
  EXPECT_NE(first, block);
  EXPECT_EQ(GlobalLock(block), first);
  EXPECT_NE(GlobalUnlock(block), 0);  // still locked once
  EXPECT_EQ(GlobalUnlock(block), 0);  // now unlocked
  EXPECT_EQ(GlobalUnlock(block), 0);  // was not locked
  EXPECT_EQ(GlobalFree(block), nullptr);
}

TEST(GlobalMemory, ReallocationZeroFillsGrowthAndKeepsContent) {
  HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, 4);
  std::memcpy(GlobalLock(block), "abcd", 4);
  GlobalUnlock(block);
  ASSERT_EQ(GlobalReAlloc(block, 4096, GMEM_MOVEABLE | GMEM_ZEROINIT), block);  // same handle
  EXPECT_EQ(GlobalSize(block), 4096u);
  const char* bytes = static_cast<const char*>(GlobalLock(block));
  EXPECT_EQ(std::memcmp(bytes, "abcd", 4), 0);
  for (int i = 4; i < 4096; ++i) ASSERT_EQ(bytes[i], 0) << i;
  // Locked, and no permission to move: growth fails and the block stays.
  EXPECT_EQ(GlobalReAlloc(block, 1 << 20, GMEM_ZEROINIT), nullptr);
  EXPECT_EQ(GlobalSize(block), 4096u);
  GlobalUnlock(block);
  EXPECT_EQ(GlobalFree(block), nullptr);
}

TEST(GlobalMemory, FixedBlockMovesOnlyWhenAllowed) {
  HGLOBAL block = GlobalAlloc(GMEM_FIXED, 16);
  std::memcpy(block, "0123456789abcdef", 16);
  EXPECT_EQ(GlobalReAlloc(block, 8, 0), block);  // shrinking stays in place
  EXPECT_EQ(GlobalSize(block), 8u);
  // Growth without GMEM_MOVEABLE: the library's functions refuse it; the
  // system's grow the block where it is when the heap has room there.
  if (!kiln::platform::global_memory_is_the_systems()) {
    EXPECT_EQ(GlobalReAlloc(block, 64, 0), nullptr);
  }
  HGLOBAL moved = GlobalReAlloc(block, 64, GMEM_MOVEABLE | GMEM_ZEROINIT);
  ASSERT_NE(moved, nullptr);
  EXPECT_EQ(std::memcmp(moved, "01234567", 8), 0);
  EXPECT_EQ(static_cast<char*>(moved)[63], 0);
  EXPECT_EQ(GlobalFree(moved), nullptr);
}

TEST(GlobalMemory, ZeroSizeAndInvalidHandles) {
  HGLOBAL empty = GlobalAlloc(GMEM_MOVEABLE, 0);
  ASSERT_NE(empty, nullptr);
  EXPECT_EQ(GlobalLock(empty), nullptr);  // nothing to lock
  EXPECT_EQ(GlobalSize(empty), 0u);
  EXPECT_EQ(GlobalFree(empty), nullptr);
  EXPECT_EQ(GlobalFree(nullptr), nullptr);
  alignas(16) char not_a_block[64] = {};
  EXPECT_EQ(GlobalFree(not_a_block + 16), not_a_block + 16);  // not ours: handed back
  EXPECT_EQ(GlobalSize(not_a_block + 16), 0u);
  EXPECT_EQ(GlobalLock(not_a_block + 24), nullptr);
}

}  // namespace
