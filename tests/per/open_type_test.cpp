#include "per/open_type.h"

#include <gtest/gtest.h>

#include <ctime>

#include "per/bit_writer.h"
#include "per/input.h"
#include "per/primitives.h"

namespace kelvra::test {
namespace {

using Octets = std::vector<uint8_t>;

// Level `level` of `levels` nested open types: after the next level come an octet with the number of this level and an
// octet that no decoder knows.
Octets Nested(uint32_t level, uint32_t levels) {
  BitWriter value;
  if (level < levels) value.OpenType(Nested(level + 1, levels));
  return value.Octets({static_cast<uint8_t>(0xA0 + level), 0xFF});
}

uint32_t ReadOctet(PerReader& reader) { return PerReadBits(reader, 8); }

TEST(OpenType, ResumesAfterAValueLongerThanItsDecoderReads) {
  Input input(BitWriter().Bits(1, 1).OpenType({1, 2, 3, 4}).Bits(0x5A, 8));
  PerReadBit(input.reader);
  OpenTypeBegin(input.reader);
  EXPECT_EQ(PerReadBits(input.reader, 3), 0u);
  OpenTypeEnd(input.reader);
  EXPECT_EQ(ReadOctet(input.reader), 0x5Au);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(OpenType, ResumesAfterAValueShorterThanItsDecoderReads) {
  Input input(BitWriter().OpenType({1}).Octets({0x5A, 2, 3}));
  OpenTypeBegin(input.reader);
  EXPECT_EQ(PerReadBits(input.reader, 21), 0x01u << 13 | 0x5Au << 5);
  OpenTypeEnd(input.reader);
  EXPECT_EQ(ReadOctet(input.reader), 0x5Au);
}

TEST(OpenType, BringsBackAReaderThatItsDecoderExhausted) {
  Input input(BitWriter().OpenType({1, 2}).Bits(0x5A, 8));
  OpenTypeBegin(input.reader);
  PerReadBits(input.reader, 32);
  ASSERT_TRUE(input.AtExactEnd());
  OpenTypeEnd(input.reader);
  EXPECT_EQ(ReadOctet(input.reader), 0x5Au);
}

TEST(OpenType, ResumesAtAnOctetBoundaryFromAPendingOffsetOnTheEnd) {
  Input input(BitWriter().OpenType({1}).Bits(0x5A, 8));
  OpenTypeBegin(input.reader);
  PerSkipBits(input.reader, 19);
  ASSERT_EQ(input.reader.bitOffset, 3u);
  OpenTypeEnd(input.reader);
  EXPECT_EQ(ReadOctet(input.reader), 0x5Au);
}

TEST(OpenType, OfALengthPastTheEndLeavesTheReaderBeyondIt) {
  Input input({0x09, 1, 2});
  OpenTypeBegin(input.reader);
  OpenTypeEnd(input.reader);
  EXPECT_EQ(input.Bit(), 80u);
  EXPECT_TRUE(PerAtEnd(input.reader));
  EXPECT_EQ(PerReadBit(input.reader), 0u);
}

TEST(OpenType, OfAFragmentedLengthStaysAtTheEnd) {
  Input input({0xC1, 1, 2});
  OpenTypeBegin(input.reader);
  OpenTypeEnd(input.reader);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(OpenType, AtTheTopOfTheAddressRangeDoesNotWrap) {
  Input input({0x02, 1, 2, 3});
  OpenTypeBegin(input.reader);
  OpenTypeRing& ring = input.reader.openTypes;
  ring.starts[ring.index] = reinterpret_cast<const uint8_t*>(UINTPTR_MAX - 5);
  ring.lengths[ring.index] = 16383;
  OpenTypeEnd(input.reader);
  EXPECT_EQ(reinterpret_cast<uintptr_t>(input.reader.position), UINTPTR_MAX);
  EXPECT_TRUE(PerAtEnd(input.reader));
}

TEST(OpenType, NestsTenLevelsDeep) {
  Input input(BitWriter().OpenType(Nested(1, 10)).Octets({0xA0}));
  for (int level = 1; level <= 10; ++level) OpenTypeBegin(input.reader);
  for (uint32_t level = 10; level >= 1; --level) {
    EXPECT_EQ(ReadOctet(input.reader), 0xA0 + level);
    OpenTypeEnd(input.reader);
  }
  EXPECT_EQ(ReadOctet(input.reader), 0xA0u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(OpenType, AnEleventhLevelTakesTheSlotOfTheFirst) {
  Input input(BitWriter().OpenType(Nested(1, 11)).Octets({0xA0}));
  for (int level = 1; level <= 11; ++level) OpenTypeBegin(input.reader);
  for (uint32_t level = 11; level >= 2; --level) {
    EXPECT_EQ(ReadOctet(input.reader), 0xA0 + level);
    OpenTypeEnd(input.reader);
  }
  EXPECT_EQ(ReadOctet(input.reader), 0xA1u);
  // The first resumes after the value of the eleventh, at the octet of the tenth.
  OpenTypeEnd(input.reader);
  EXPECT_EQ(ReadOctet(input.reader), 0xAAu);
}

TEST(OpenType, ContinuesFromASlotLeftTakenByAFailure) {
  Input input(BitWriter().OpenType({1}).OpenType({2, 3}).OpenType({4, 5}).Octets({0x5A}));
  OpenTypeBegin(input.reader);
  ReadOctet(input.reader);
  for (int i = 0; i < 2; ++i) {
    OpenTypeBegin(input.reader);
    ReadOctet(input.reader);
    OpenTypeEnd(input.reader);
  }
  EXPECT_EQ(ReadOctet(input.reader), 0x5Au);
}

TEST(PerSkipOpenTypes, PassesOverAsManyAsAreAskedFor) {
  const Octets octets = BitWriter().Bit(true).OpenType({1, 2}).OpenType(Octets{}).OpenType(Octets(200, 7)).Octets({9});
  const struct {
    int32_t count;
    uint64_t bit;
  } cases[] = {{INT32_MIN, 1}, {-1, 1}, {0, 1}, {1, 32}, {2, 40}, {3, (8 - 1 + 200) * 8}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.count);
    Input input(octets);
    PerReadBit(input.reader);
    PerSkipOpenTypes(input.reader, test.count);
    EXPECT_EQ(input.Bit(), test.bit);
  }
}

TEST(PerSkipOpenTypes, LeavesTheReaderBeyondTheEndByALengthPastIt) {
  Input input({0x01, 0xAA, 0x05, 0xBB});
  PerSkipOpenTypes(input.reader, 2);
  EXPECT_EQ(input.Bit(), 64u);
  PerSkipOpenTypes(input.reader, 1);
  EXPECT_EQ(input.Bit(), 64u);
  EXPECT_EQ(PerReadLength(input.reader), 0u);
}

TEST(PerSkipOpenTypes, EndsWithTheInputWhateverTheCount) {
  Input input({0x00, 0x00, 0x01, 0xAA});
  const std::clock_t start = std::clock();
  PerSkipOpenTypes(input.reader, INT32_MAX);
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC) << "it takes no step after the end";
  EXPECT_TRUE(input.AtExactEnd());
  Input fragmented({0xC4, 0x00, 0x00});
  PerSkipOpenTypes(fragmented.reader, 2);
  EXPECT_TRUE(fragmented.AtExactEnd());
}

// The presence bit of the next addition; absent if the bitmap has no more bits.
uint32_t ReadAdditionBit(PerReader& reader, int32_t& additions) {
  if (additions <= 0) return 0;
  --additions;
  return PerReadBit(reader);
}

TEST(ExtensionAdditions, KnownOnesMatchThoseReadOneByOne) {
  const Octets octets = {0x9C, 0x3A, 0x5F, 0x17, 0xE2};
  for (size_t size = 1; size <= octets.size(); ++size) {
    for (const int32_t length : {INT32_MIN, -1, 0, 1, 2, 8, 9, 25, 32, 40}) {
      for (int32_t known = 1; known <= 32; ++known) {
        SCOPED_TRACE(testing::Message() << known << " known of " << length << " in " << size << " octets");
        Input together({octets.begin(), octets.begin() + static_cast<ptrdiff_t>(size)});
        Input alone({octets.begin(), octets.begin() + static_cast<ptrdiff_t>(size)});
        int32_t left = length;
        int32_t leftAlone = length;
        PerFlags flags = PerReadKnownAdditions(together.reader, left, known);
        for (int32_t i = 0; i < known; ++i) ASSERT_EQ(flags.Next(), ReadAdditionBit(alone.reader, leftAlone)) << i;
        ASSERT_EQ(left, leftAlone);
        ASSERT_EQ(together.Bit(), alone.Bit());
      }
    }
  }
}

// Bitmaps of many words, from every bit offset, compared with a bit-by-bit count.
TEST(ExtensionAdditions, AreCountedAcrossWordsFromAnyOffset) {
  Octets octets(24);
  uint32_t state = 12345;
  for (uint8_t& octet : octets) {
    state = state * 1103515245 + 12345;
    octet = static_cast<uint8_t>(state >> 16);
  }
  for (uint32_t offset = 0; offset < 8; ++offset) {
    int32_t expected = 0;
    for (int32_t length = 0; length <= 100; ++length) {
      Input input(octets);
      PerSkipBits(input.reader, offset);
      EXPECT_EQ(PerCountUnknownAdditions(input.reader, length), expected) << offset << ' ' << length;
      EXPECT_EQ(input.Bit(), offset + static_cast<uint32_t>(length));
      expected += static_cast<int32_t>(PerReadBit(input.reader));
    }
  }
}

TEST(ExtensionAdditions, OfABitmapPastTheEndAreCountedToTheEnd) {
  Input input(BitWriter().Bits(0, 3).Bits(0x1FFFFFFFFF, 37));
  PerReadBits(input.reader, 3);
  EXPECT_EQ(PerCountUnknownAdditions(input.reader, INT32_MAX), 37);
  EXPECT_TRUE(input.AtExactEnd());
}

// The bitmap's length comes from the input, up to 2^32 - 1 and one more.
TEST(ExtensionAdditions, OfAnyBitmapLengthEndWhenTheInputDoes) {
  const struct {
    uint32_t encoded;
    int32_t length;
    bool reachesEnd;
  } cases[] = {{0x7FFFFFFE, INT32_MAX, true},
               {0x7FFFFFFF, INT32_MIN, false},
               {0xFFFFFFFF, 0, false},
               {0xFFFFFFFE, -1, false},
               {1000, 1001, true}};
  for (const auto& test : cases) {
    SCOPED_TRACE(test.encoded);
    const Octets octets = BitWriter().NormallySmall(test.encoded).Octets({0xFF, 0xFF, 0xFF});
    Input length(octets);
    EXPECT_EQ(PerReadBitmapLength(length.reader), test.length);
    Input skip(octets);
    PerSkipExtensionAdditions(skip.reader);
    EXPECT_EQ(skip.Bit(), (octets.size() - (test.reachesEnd ? 0 : 3)) * 8);
    EXPECT_EQ(skip.reader.extensionPresentCount, test.reachesEnd ? 24 : 0);
  }
}

TEST(ExtensionAdditions, AllUnknownAreSkippedAndTheirCountIsKept) {
  Input input(BitWriter().NormallySmall(4).Bits(0x15, 5).OpenType({1}).OpenType({2, 3}).OpenType({4}).Octets({0x5A}));
  PerSkipExtensionAdditions(input.reader);
  EXPECT_EQ(input.reader.extensionPresentCount, 3);
  EXPECT_EQ(ReadOctet(input.reader), 0x5Au);
}

TEST(RecursionLevel, CountsLevelsWhileTheyLive) {
  Input input({0});
  input.reader.depth = kMaximumDepth - 1;
  {
    const RecursionLevel last(input.reader);
    EXPECT_FALSE(last.TooDeep());
    {
      const RecursionLevel beyond(input.reader);
      EXPECT_TRUE(beyond.TooDeep());
    }
    EXPECT_FALSE(last.TooDeep());
  }
  EXPECT_EQ(input.reader.depth, kMaximumDepth - 1);
}

}  // namespace
}  // namespace kelvra::test
