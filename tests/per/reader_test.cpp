#include "per/reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "per/bit_writer.h"
#include "per/input.h"

#ifndef __OPTIMIZE__
#error "The library reads a count that the compiler knows by paths that only optimised code has."
#endif

namespace kelvra::test {
namespace {

// The limits that README.md and docs/security.md promise.
static_assert(kMaximumMessageMemory == 8U << 20 && kLeastMessageMemory == 1U << 20);
static_assert(kMessageMemoryForEachOctet == 2048 && kMaximumRereading == 131072);
static_assert(kMaximumDepth == 32 && kOpenTypeLevels == 10);

const uint8_t* AddressFromTop(uintptr_t distance) { return reinterpret_cast<const uint8_t*>(UINTPTR_MAX - distance); }

TEST(PerReaderInit, StandsAtTheFirstBitWithFreshState) {
  PerReader reader;
  CodecFill(&reader, 0xEE, sizeof reader);
  const uint8_t octets[3] = {};
  PerReaderInit(reader, octets, 3);
  EXPECT_EQ(reader.position, octets);
  EXPECT_EQ(reader.bitOffset, 0u);
  EXPECT_EQ(reader.end, octets + 3);
  EXPECT_EQ(reader.readable, octets + 3);
  EXPECT_EQ(reader.depth, 0u);
  EXPECT_EQ(reader.reread, 0u);
  EXPECT_EQ(reader.extensionPresentCount, 0);
  EXPECT_LT(reader.openTypes.index, kOpenTypeLevels);
}

TEST(PerReadBits, TakesTheMostSignificantBitsFirst) {
  Input input({0xA5});
  EXPECT_EQ(PerReadBits(input.reader, 3), 5u);
  EXPECT_EQ(input.Bit(), 3u);
  EXPECT_EQ(PerReadBits(input.reader, 5), 5u);
  EXPECT_TRUE(input.AtExactEnd());
  EXPECT_EQ(PerReadBits(input.reader, 1), 0u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadBits, ReadsEveryWidthFromEveryOffset) {
  constexpr uint64_t kPattern = 0x9C3A5F17E2B46D80;
  for (uint32_t offset = 0; offset < 8; ++offset) {
    for (uint32_t width = 0; width <= 32; ++width) {
      SCOPED_TRACE(testing::Message() << "offset " << offset << ", width " << width);
      // The message ends after the last octet of the value, so that reading one more is an over-read.
      std::vector<uint8_t> octets = BitWriter().Bits(kPattern, 64);
      octets.resize(std::max(1u, (offset + width + 7) / 8));
      Input input(octets);
      EXPECT_EQ(PerReadBits(input.reader, offset), offset == 0 ? 0 : kPattern >> (64 - offset));
      if (offset + width == 0) continue;
      const uint64_t expected = width == 0 ? 0 : (kPattern << offset) >> (64 - width);
      EXPECT_EQ(PerReadBits(input.reader, width), expected);
      EXPECT_EQ(input.Bit(), offset + width);
    }
  }
}

TEST(PerReadBits, ReadsEveryWidthFromALongBuffer) {
  constexpr uint64_t kPattern = 0x9C3A5F17E2B46D80;
  const std::vector<uint8_t> octets = BitWriter().Bits(kPattern, 64).Bits(~kPattern, 64);
  for (uint32_t offset = 0; offset < 8; ++offset) {
    for (uint32_t width = 1; width <= 32; ++width) {
      SCOPED_TRACE(testing::Message() << "offset " << offset << ", width " << width);
      Input input(octets);
      PerSkipBits(input.reader, offset);
      EXPECT_EQ(PerReadBits(input.reader, width), (kPattern << offset) >> (64 - width));
    }
  }
}

template <uint32_t kCount>
void ExpectBitsOfAKnownCount(const std::vector<uint8_t>& octets, uint32_t offset) {
  Input together(octets);
  Input alone(octets);
  PerSkipBits(together.reader, offset);
  PerSkipBits(alone.reader, offset);
  uint32_t bits = 0;
  for (uint32_t i = 0; i < kCount; ++i) bits = bits << 1 | PerReadBit(alone.reader);
  EXPECT_EQ(PerReadBits(together.reader, kCount), bits) << kCount << " bits from " << offset;
  EXPECT_EQ(together.Bit(), alone.Bit());
}

template <uint32_t... kCountsLessOne>
void ExpectBitsOfKnownCounts(std::integer_sequence<uint32_t, kCountsLessOne...>) {
  const std::vector<uint8_t> octets(8, 0xFF);
  for (uint32_t offset = 0; offset < 8; ++offset) {
    (ExpectBitsOfAKnownCount<kCountsLessOne + 1>(octets, offset), ...);
  }
}

// The fewer the bits known at compile time, the fewer octets are loaded.
TEST(PerReadBits, ReadsEveryKnownCountFromEveryOffset) {
  ExpectBitsOfKnownCounts(std::make_integer_sequence<uint32_t, 32>());
}

TEST(PerReadBits, RefusesWhatIsNotThereAsAWhole) {
  Input nine({0xFF});
  EXPECT_EQ(PerReadBits(nine.reader, 9), 0u);
  EXPECT_TRUE(nine.AtExactEnd());

  Input six({0xFF, 0xFF});
  PerReadBits(six.reader, 11);
  EXPECT_EQ(PerReadBits(six.reader, 6), 0u);
  EXPECT_TRUE(six.AtExactEnd());
}

TEST(PerReadBits, RefusesMoreThan32Bits) {
  Input input(std::vector<uint8_t>(10, 0xFF));
  EXPECT_EQ(PerReadBits(input.reader, 33), 0u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadBits, RefusesACountThatWouldWrap) {
  Input input({0xFF, 0xFF});
  PerReadBits(input.reader, 7);
  EXPECT_EQ(PerReadBits(input.reader, UINT32_MAX), 0u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadBits, OfNoBitsMovesNothing) {
  Input input({0xFF});
  PerReadBits(input.reader, 5);
  EXPECT_EQ(PerReadBits(input.reader, 0), 0u);
  EXPECT_EQ(input.Bit(), 5u);
}

TEST(PerReadBits, ChangesNothingAtTheEndOrBeyondIt) {
  Input input({0xFF});
  input.reader.position = PerAdvance(input.reader.end, 5);
  input.reader.bitOffset = 3;
  EXPECT_EQ(PerReadBits(input.reader, 1), 0u);
  EXPECT_EQ(PerReadBits(input.reader, 33), 0u);
  EXPECT_EQ(PerReadBit(input.reader), 0u);
  EXPECT_EQ(input.Bit(), (1 + 5) * 8 + 3u);
  EXPECT_EQ(PerOctetsLeft(input.reader), 0u);
}

TEST(PerReadBit, ReadsBitByBit) {
  Input input({0xB2});
  uint32_t bits = 0;
  for (int i = 0; i < 8; ++i) bits = bits << 1 | PerReadBit(input.reader);
  EXPECT_EQ(bits, 0xB2u);
  EXPECT_TRUE(input.AtExactEnd());
  EXPECT_EQ(PerReadBit(input.reader), 0u);
}

// Every count from every offset, in messages with all, some or none of the flags.
TEST(PerReadFlags, MatchSingleReads) {
  const std::vector<uint8_t> octets = {0x9C, 0x3A, 0x5F, 0x17, 0xE2, 0xB4};
  for (size_t size = 1; size <= octets.size(); ++size) {
    for (uint32_t offset = 0; offset < 8; ++offset) {
      for (uint32_t count = 1; count <= 32; ++count) {
        SCOPED_TRACE(testing::Message() << count << " flags from " << offset << " in " << size << " octets");
        Input together({octets.begin(), octets.begin() + static_cast<ptrdiff_t>(size)});
        Input alone({octets.begin(), octets.begin() + static_cast<ptrdiff_t>(size)});
        PerSkipBits(together.reader, offset);
        PerSkipBits(alone.reader, offset);
        PerFlags flags = PerReadFlags(together.reader, count);
        for (uint32_t i = 0; i < count; ++i) ASSERT_EQ(flags.Next(), PerReadBit(alone.reader)) << i;
        ASSERT_EQ(flags.Next(), 0u);
        ASSERT_EQ(together.Bit(), alone.Bit());
      }
    }
  }
}

TEST(PerReader, OverNothingIsExhausted) {
  Input input({});
  EXPECT_TRUE(PerAtEnd(input.reader));
  EXPECT_EQ(PerReadBits(input.reader, 1), 0u);
  EXPECT_EQ(PerPeekOctet(input.reader, 0), 0u);
  PerSkipBits(input.reader, 8);
  PerAlign(input.reader);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerSkipBits, LandsOnTheEndExactly) {
  Input whole({0, 0});
  PerSkipBits(whole.reader, 16);
  EXPECT_TRUE(whole.AtExactEnd());

  Input rest({0, 0});
  PerSkipBits(rest.reader, 6);
  PerSkipBits(rest.reader, 10);
  EXPECT_TRUE(rest.AtExactEnd());
}

TEST(PerSkipBits, PastTheEndExhaustsTheReader) {
  Input one({0xFF, 0xFF});
  PerSkipBits(one.reader, 17);
  EXPECT_TRUE(PerAtEnd(one.reader));
  EXPECT_EQ(PerReadBit(one.reader), 0u);

  Input octet({0xFF, 0xFF});
  PerSkipBits(octet.reader, 24);
  EXPECT_TRUE(octet.AtExactEnd());
}

TEST(PerSkipBits, KeepsAPendingOffsetOnTheEndWhichCountsAsExhausted) {
  Input input({0xFF, 0xFF});
  PerSkipBits(input.reader, 19);
  EXPECT_EQ(input.reader.position, input.reader.end);
  EXPECT_EQ(input.reader.bitOffset, 3u);
  EXPECT_EQ(PerReadBits(input.reader, 1), 0u);
  PerAlign(input.reader);
  EXPECT_EQ(input.reader.position, input.reader.end);
}

TEST(PerSkipBits, OfACountThatWouldWrapStopsAtTheEnd) {
  Input input({0xFF, 0xFF});
  PerSkipBits(input.reader, 7);
  PerSkipBits(input.reader, UINT32_MAX);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerSkipBits, StaysBeyondTheEnd) {
  Input input({0xFF});
  input.reader.position = PerAdvance(input.reader.end, 4);
  PerSkipBits(input.reader, 8);
  EXPECT_EQ(input.Bit(), 40u);
}

TEST(PerAlign, MovesOnlyFromInsideAnOctet) {
  Input input({0xFF, 0x5A, 0xFF});
  PerReadBits(input.reader, 3);
  PerAlign(input.reader);
  EXPECT_EQ(input.Bit(), 8u);
  PerAlign(input.reader);
  EXPECT_EQ(input.Bit(), 8u);
  EXPECT_EQ(PerReadBits(input.reader, 8), 0x5Au);
}

TEST(PerAlign, InTheLastOctetReachesTheEnd) {
  Input input({0xFF});
  PerReadBits(input.reader, 1);
  PerAlign(input.reader);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerOctetsLeft, CountsTheOctetThatIsPartlyConsumed) {
  Input input({0, 0, 0});
  EXPECT_EQ(PerOctetsLeft(input.reader), 3u);
  PerReadBits(input.reader, 9);
  EXPECT_EQ(PerOctetsLeft(input.reader), 2u);
  PerMoveToEnd(input.reader, PerCause::kEndOfMessage);
  EXPECT_EQ(PerOctetsLeft(input.reader), 0u);
}

TEST(PerPeekOctet, LooksAheadWithoutMoving) {
  Input input({0x11, 0x22, 0x33});
  PerReadBits(input.reader, 8);
  EXPECT_EQ(PerPeekOctet(input.reader, 0), 0x22u);
  EXPECT_EQ(PerPeekOctet(input.reader, 1), 0x33u);
  EXPECT_EQ(PerPeekOctet(input.reader, 2), 0u);
  EXPECT_EQ(PerPeekOctet(input.reader, UINT32_MAX), 0u);
  EXPECT_EQ(input.Bit(), 8u);
}

// An element of a frame may claim more octets than the caller's buffer holds.
TEST(PerReader, ReadsZerosPastTheCallersOctets) {
  Input input({0xAB, 0xCD});
  input.reader.end = PerAdvance(input.reader.position, 8);
  EXPECT_EQ(PerReadBits(input.reader, 4), 0xAu);
  EXPECT_EQ(PerReadBits(input.reader, 32), 0xBCD00000u);
  EXPECT_EQ(PerPeekOctet(input.reader, 0), 0u);
  EXPECT_EQ(PerReadBits(input.reader, 28), 0u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerAdvance, HoldsAtTheTopOfTheAddressRange) {
  EXPECT_EQ(PerAdvance(AddressFromTop(10), 4), AddressFromTop(6));
  EXPECT_EQ(PerAdvance(AddressFromTop(10), 10), AddressFromTop(0));
  EXPECT_EQ(PerAdvance(AddressFromTop(10), 11), AddressFromTop(0));
  EXPECT_EQ(PerAdvance(AddressFromTop(10), UINT32_MAX), AddressFromTop(0));
}

TEST(PerReaderInit, OfABufferThatWouldRunPastTheAddressRangeEndsThere) {
  PerReader reader;
  PerReaderInit(reader, AddressFromTop(3), 65535);
  EXPECT_FALSE(PerAtEnd(reader));
  EXPECT_EQ(PerOctetsLeft(reader), 3u);
  PerSkipBits(reader, 32);
  EXPECT_EQ(reader.position, AddressFromTop(0));
}

}  // namespace
}  // namespace kelvra::test
