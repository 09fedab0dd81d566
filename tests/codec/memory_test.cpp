#include "codec/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace kelvra {
namespace {

TEST(CodecAlloc, GivesZeroedBlocks) {
  // Small sizes have their own ways of clearing.
  for (size_t size = 1; size <= 1100; ++size) {
    // Twice, because a heap tends to reuse the block that was just freed.
    for (int round = 0; round < 2; ++round) {
      auto* block = static_cast<uint8_t*>(CodecAlloc(size));
      ASSERT_NE(block, nullptr);
      EXPECT_TRUE(std::all_of(block, block + size, [](uint8_t octet) { return octet == 0; })) << size;
      CodecFill(block, 0xEE, size);
      CodecFree(&block, "test", __LINE__);
    }
  }
}

TEST(CodecFree, LeavesNullAndReleasesOnce) {
  void* block = CodecAlloc(16);
  ASSERT_NE(block, nullptr);
  CodecFree(&block, "test", __LINE__);
  EXPECT_EQ(block, nullptr);
  CodecFree(nullptr, "test", __LINE__);
  CodecFree(&block, "test", __LINE__);
  EXPECT_EQ(block, nullptr);
}

TEST(CodecFree, TakesASlotAtAnyAddressAndTouchesNothingBesideIt) {
  for (size_t offset = 0; offset < sizeof(void*); ++offset) {
    std::array<uint8_t, 3 * sizeof(void*)> memory;
    memory.fill(0xEE);
    void* block = CodecAlloc(8);
    std::memcpy(memory.data() + offset, &block, sizeof block);
    CodecFree(memory.data() + offset, "test", __LINE__);
    std::array<uint8_t, 3 * sizeof(void*)> expected;
    expected.fill(0xEE);
    std::fill_n(expected.begin() + static_cast<std::ptrdiff_t>(offset), sizeof block, uint8_t{0});
    EXPECT_EQ(memory, expected) << offset;
  }
}

TEST(CodecFill, StoresExactlyItsCount) {
  for (size_t count = 0; count <= 9; ++count) {
    std::array<uint8_t, 12> memory{};
    EXPECT_EQ(CodecFill(memory.data() + 1, 0xAB, count), memory.data() + 1);
    std::array<uint8_t, 12> expected{};
    std::fill_n(expected.begin() + 1, count, uint8_t{0xAB});
    EXPECT_EQ(memory, expected) << count;
  }
}

TEST(CodecCopy, CopiesExactlyItsCount) {
  const std::array<uint8_t, 12> source = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
  for (size_t count = 0; count <= 9; ++count) {
    std::array<uint8_t, 12> memory{};
    CodecCopy(memory.data() + 1, source.data() + 2, count);
    std::array<uint8_t, 12> expected{};
    std::copy_n(source.begin() + 2, count, expected.begin() + 1);
    EXPECT_EQ(memory, expected) << count;
  }
}

TEST(CodecCopy, OfNothingTakesNullAddresses) {
  uint8_t octet = 7;
  CodecCopy(&octet, nullptr, 0);
  EXPECT_EQ(octet, 7u);
  EXPECT_EQ(CodecFill(nullptr, 1, 0), nullptr);
}

}  // namespace
}  // namespace kelvra
