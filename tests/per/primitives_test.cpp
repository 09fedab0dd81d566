#include "per/primitives.h"

#include <gtest/gtest.h>

#include "per/bit_writer.h"
#include "per/input.h"

namespace kelvra::test {
namespace {

using Numbers = std::vector<int64_t>;
using Octets = std::vector<uint8_t>;

const Numbers kNull = {-1};

struct RangeCase {
  uint32_t range;
  uint32_t octetCount;  // the 2-bit count of the octets that follow; 9 if there is none
  bool aligned;
  uint32_t bits;
  uint32_t value;
};

constexpr uint32_t kNoCount = 9;

// Each number follows one bit, so that alignment is visible, and precedes an octet that must come next.
TEST(PerReadConstrainedWholeNumber, TakesTheFormOfItsRange) {
  const RangeCase cases[] = {
      {0, kNoCount, false, 0, 0},
      {1, kNoCount, false, 0, 0},
      {2, kNoCount, false, 1, 1},
      {3, kNoCount, false, 2, 2},
      {4, kNoCount, false, 2, 3},
      {5, kNoCount, false, 3, 4},
      {8, kNoCount, false, 3, 7},
      {9, kNoCount, false, 4, 8},
      {16, kNoCount, false, 4, 15},
      {17, kNoCount, false, 5, 16},
      {32, kNoCount, false, 5, 31},
      {33, kNoCount, false, 6, 32},
      {64, kNoCount, false, 6, 63},
      {65, kNoCount, false, 7, 64},
      {128, kNoCount, false, 7, 127},
      {129, kNoCount, false, 8, 128},
      {255, kNoCount, false, 8, 254},
      {256, kNoCount, true, 8, 0xA7},
      {257, kNoCount, true, 16, 256},
      {65535, kNoCount, true, 16, 0xFFFE},
      {65536, kNoCount, true, 16, 0xA55A},
      {65537, 0, true, 8, 0xC3},
      {65537, 1, true, 16, 0x8001},
      {65537, 2, true, 24, 65536},
      {1U << 24, 2, true, 24, 0xFFFFFF},
      {(1U << 24) + 1, 0, true, 8, 0xC3},
      {(1U << 24) + 1, 2, true, 24, 0xABCDEF},
      {(1U << 24) + 1, 3, true, 32, 1U << 24},
      {kFullRange - 1, 3, true, 32, 0xFFFFFFFD},
      {kFullRange, 0, true, 8, 1},
      {kFullRange, 1, true, 16, 0x0102},
      {kFullRange, 3, true, 32, 0xFEDCBA98},
      // Unless the range is a power of two, the bit field holds more than the range; the value is kept.
      {5, kNoCount, false, 3, 7},
  };
  for (const RangeCase& test : cases) {
    SCOPED_TRACE(testing::Message() << "range " << test.range << ", value " << test.value);
    BitWriter writer;
    writer.Bit(true);
    if (test.octetCount != kNoCount) writer.Bits(test.octetCount, 2);
    if (test.aligned) writer.Align();
    writer.Bits(test.value, test.bits).Bits(0x5A, 8);
    Input input(writer);
    PerReadBit(input.reader);
    EXPECT_EQ(PerReadConstrainedWholeNumber(input.reader, test.range), test.value);
    EXPECT_EQ(PerReadBits(input.reader, 8), 0x5Au);
  }
}

TEST(PerReadConstrainedWholeNumber, ReadsAFourthOctetOfAThreeOctetRangeAsZeroAndStays) {
  for (const uint32_t range : {65537U, 1U << 24}) {
    Input input({0xDF, 0xFF});
    EXPECT_EQ(PerReadConstrainedWholeNumber(input.reader, range), 0u);
    EXPECT_EQ(input.Bit(), 8u);  // aligns, and consumes no octet
    EXPECT_EQ(PerReadBits(input.reader, 8), 0xFFu);
  }
}

TEST(PerReadConstrainedWholeNumber, CutShortIsZeroAtTheEnd) {
  const struct {
    uint32_t range;
    Octets octets;
    uint32_t skipped;
  } cases[] = {{255, {0xFF}, 1},
               {256, {0xFF}, 1},
               {65536, {0xFF}, 0},
               {65537, {0xBF, 1, 2}, 0},
               {kFullRange, {0xC0, 1, 2, 3}, 0},
               {kFullRange, {0xFF}, 7},
               {kFullRange, {0xFF}, 8}};
  for (const auto& test : cases) {
    SCOPED_TRACE(testing::Message() << "range " << test.range << " after " << test.skipped << " bits");
    Input input(test.octets);
    PerSkipBits(input.reader, test.skipped);
    EXPECT_EQ(PerReadConstrainedWholeNumber(input.reader, test.range), 0u);
    EXPECT_TRUE(input.AtExactEnd());
  }
}

struct NumberCase {
  Octets octets;
  int64_t value;
  uint64_t bit;  // the position of the reader afterwards
};

template <class Read>
void ExpectNumbers(const std::vector<NumberCase>& cases, Read read) {
  for (const NumberCase& test : cases) {
    SCOPED_TRACE(testing::PrintToString(test.octets));
    Input input(test.octets);
    EXPECT_EQ(int64_t{read(input.reader)}, test.value);
    EXPECT_EQ(input.Bit(), test.bit);
  }
}

TEST(PerReadLength, ReadsOneOrTwoOctets) {
  ExpectNumbers({{{0x00, 0xFF}, 0, 8},
                 {{0x7F, 0xFF}, 127, 8},
                 {{0x80, 0x00, 0xFF}, 0, 16},
                 {{0x80, 0x80, 0xFF}, 128, 16},
                 {{0x8A, 0x00}, 2560, 16},
                 {{0xBF, 0xFF, 0xFF}, 16383, 16}},
                PerReadLength);
}

TEST(PerReadLength, RefusesWhatIsCutShort) { ExpectNumbers({{{0x8A}, 0, 8}, {{}, 0, 0}}, PerReadLength); }

TEST(PerReadLength, RefusesFragmentsOfEverySize) {
  for (uint32_t first = 0xC0; first <= 0xFF; ++first) {
    for (size_t octets = 1; octets <= 4; ++octets) {
      Octets message = {static_cast<uint8_t>(first), 1, 2, 3};
      message.resize(octets);
      Input input(message);
      EXPECT_EQ(PerReadLength(input.reader), 0u) << first;
      EXPECT_TRUE(input.AtExactEnd()) << first << " with " << octets << " octets";
    }
  }
}

TEST(PerReadLength, AlignsFirst) {
  Input input({0xFF, 0x05, 0x00});
  PerReadBits(input.reader, 3);
  EXPECT_EQ(PerReadLength(input.reader), 5u);
  EXPECT_EQ(input.Bit(), 16u);
}

TEST(PerReadNormallySmall, ReadsSixBitsOrALengthAndItsOctets) {
  ExpectNumbers({{{0x54, 0xFF}, 42, 7},
                 {{0x00}, 0, 7},
                 {{0x7E}, 63, 7},
                 {{0x80, 0x01, 0x40}, 64, 24},
                 {{0x80, 0x02, 0x01, 0x02, 0xFF}, 0x0102, 32},
                 {{0x80, 0x04, 0xFF, 0xFF, 0xFF, 0xFE}, 0xFFFFFFFE, 48},
                 {{0xFF, 0x00, 0x77}, 0, 16}},
                PerReadNormallySmall);
}

TEST(PerReadNormallySmall, RefusesWhatIsTooLongOrCutShort) {
  ExpectNumbers({{{0x80, 0x05, 1, 2, 3, 4, 5, 6}, 0, 64},
                 {{0x80, 0x02, 0x01}, 0, 24},
                 {{0x80}, 0, 8},
                 {{0x80, 0xC0, 0x00}, 0, 24}},
                PerReadNormallySmall);
  Input input({0x15});
  PerReadBits(input.reader, 3);
  EXPECT_EQ(PerReadNormallySmall(input.reader), 0u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadUnsignedWithLength, ReadsUpToFourOctetsWithoutASign) {
  ExpectNumbers({{{0x01, 0xFF, 0x00}, 255, 16},
                 {{0x02, 0x80, 0x00}, 0x8000, 24},
                 {{0x04, 0xFF, 0xFF, 0xFF, 0xFF}, 0xFFFFFFFF, 40},
                 {{0x00, 0x77}, 0, 8},
                 {{0x05, 1, 2, 3, 4, 5, 6}, 0, 56},
                 {{0x03, 1, 2}, 0, 24},
                 {{0x01}, 0, 8}},
                PerReadUnsignedWithLength);
}

TEST(PerReadInteger, ExtendsTheSignOfItsFirstOctet) {
  ExpectNumbers({{{0x01, 0x7F, 0x00}, 127, 16},
                 {{0x01, 0xFF, 0x00}, -1, 16},
                 {{0x02, 0x80, 0x00}, -32768, 24},
                 {{0x02, 0x7F, 0xFF}, 32767, 24},
                 {{0x03, 0x80, 0x00, 0x00}, -8388608, 32},
                 {{0x03, 0x00, 0x80, 0x00}, 32768, 32},
                 {{0x04, 0x80, 0x00, 0x00, 0x00}, INT32_MIN, 40},
                 {{0x04, 0x7F, 0xFF, 0xFF, 0xFF}, INT32_MAX, 40},
                 {{0x00, 0x77}, 0, 8}},
                PerReadInteger);
}

TEST(PerReadInteger, RefusesWhatIsTooLongOrCutShort) {
  ExpectNumbers({{{0x05, 1, 2, 3, 4, 5, 6}, 0, 56}, {{0x02, 0xFF}, 0, 16}, {{0x01}, 0, 8}, {{0xC0, 0xFF}, 0, 16}},
                PerReadInteger);
}

TEST(PerReadOctets, AlignsAndReadsToTheVeryEnd) {
  Input input({0xFF, 1, 2, 3});
  PerReadBit(input.reader);
  EXPECT_EQ(Taken(PerReadOctets(input.reader, 3), 3), (Numbers{1, 2, 3}));
  EXPECT_TRUE(input.AtExactEnd());
}

// The copy of short strings depends on their size.
TEST(PerReadOctets, CopiesEveryOctetOfAnyCount) {
  for (uint32_t count = 1; count <= 64; ++count) {
    Octets octets;
    for (uint32_t i = 1; i <= count; ++i) octets.push_back(static_cast<uint8_t>(i));
    Input input(octets);
    EXPECT_EQ(Taken(PerReadOctets(input.reader, count), count), Numbers(octets.begin(), octets.end())) << count;
  }
}

TEST(PerReadOctets, RefusesMoreThanAreLeft) {
  Input input({1, 2});
  EXPECT_EQ(PerReadOctets(input.reader, 3), nullptr);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadOctets, LeavesZerosWhereTheAlignmentTakesAnOctetAway) {
  Input input({0xFF, 1, 2});
  PerReadBit(input.reader);
  EXPECT_EQ(Taken(PerReadOctets(input.reader, 3), 3), (Numbers{1, 2, 0}));
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadOctets, OfNoneIsNullAndMovesNothing) {
  Input input({0xFF, 1});
  PerReadBit(input.reader);
  EXPECT_EQ(PerReadOctets(input.reader, 0), nullptr);
  EXPECT_EQ(input.Bit(), 1u);
}

TEST(PerReadOctets, ReadsZerosPastTheCallersOctets) {
  Input input({1, 2});
  input.reader.end = PerAdvance(input.reader.position, 5);
  EXPECT_EQ(Taken(PerReadOctets(input.reader, 4), 4), (Numbers{1, 2, 0, 0}));
  EXPECT_EQ(Taken(PerReadOctets(input.reader, 1), 1), (Numbers{0}));
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadOctetString, ReadsItsLengthFirst) {
  Input input({0x02, 0xAA, 0xBB, 0x00, 0x01, 0xCC});
  uint32_t length = 99;
  EXPECT_EQ(Taken(PerReadOctetString(input.reader, &length), 2), (Numbers{0xAA, 0xBB}));
  EXPECT_EQ(length, 2u);
  EXPECT_EQ(PerReadOctetString(input.reader, &length), nullptr);
  EXPECT_EQ(length, 0u);
  EXPECT_EQ(Taken(PerReadOctetString(input.reader, nullptr), 1), (Numbers{0xCC}));
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadOctetString, ReadsALengthOfTwoOctets) {
  const Octets contents(300, 0x6B);
  Input input(BitWriter().OpenType(contents));
  uint32_t length = 0;
  EXPECT_EQ(Taken(PerReadOctetString(input.reader, &length), 300), Numbers(300, 0x6B));
  EXPECT_EQ(length, 300u);
}

TEST(PerReadOctetString, KeepsTheLengthOfMissingOctets) {
  Input input({0x05, 0xAA});
  uint32_t length = 99;
  EXPECT_EQ(PerReadOctetString(input.reader, &length), nullptr);
  EXPECT_EQ(length, 5u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadOctetString, LeavesTheLengthAloneAtTheEnd) {
  Input input({});
  uint32_t length = 99;
  EXPECT_EQ(PerReadOctetString(input.reader, &length), nullptr);
  EXPECT_EQ(PerReadSizedOctets(input.reader, &length, 20, 1), nullptr);
  EXPECT_EQ(length, 99u);
}

TEST(PerReadSizedOctets, AddsTheLowerBoundToItsLength) {
  Input input(BitWriter().Bits(2, 5).Octets({1, 2, 3}).Bits(1, 8).Octets({4, 5, 6}));
  uint32_t length = 0;
  EXPECT_EQ(Taken(PerReadSizedOctets(input.reader, &length, 20, 1), 3), (Numbers{1, 2, 3}));
  EXPECT_EQ(length, 3u);
  EXPECT_EQ(Taken(PerReadSizedOctets(input.reader, nullptr, 256, 2), 3), (Numbers{4, 5, 6}));
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadSizedOctets, KeepsTheLengthOfMissingOctets) {
  Input input(BitWriter().Bits(19, 5).Octets({1}));
  uint32_t length = 0;
  EXPECT_EQ(PerReadSizedOctets(input.reader, &length, 20, 1), nullptr);
  EXPECT_EQ(length, 20u);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadClearedOctetString, FillsTheRecord) {
  Input input({0x02, 0xAA, 0xBB});
  OctetStringValue value{};
  PerReadClearedOctetString(value, input.reader);
  EXPECT_EQ(uint32_t{value.length}, 2u);
  EXPECT_EQ(Taken(static_cast<uint8_t*>(value.data), 2), (Numbers{0xAA, 0xBB}));
}

TEST(PerReadClearedOctetString, IsEmptyWhereTheOctetsAreMissing) {
  for (const Octets& octets : {Octets{0x03, 0xAA, 0xBB}, Octets{}, Octets{0xC1, 0x00}}) {
    SCOPED_TRACE(testing::PrintToString(octets));
    Input input(octets);
    OctetStringValue value{77, nullptr};
    PerReadClearedOctetString(value, input.reader);
    EXPECT_EQ(uint32_t{value.length}, 0u);
    EXPECT_EQ(static_cast<uint8_t*>(value.data), nullptr);
    EXPECT_TRUE(input.AtExactEnd());
  }
}

TEST(PerReadBitString, AlignsOnlyBeyondSixteenBits) {
  Input sixteen(BitWriter().Bits(1, 3).Bits(0xBEEF, 16).Bits(1, 1));
  PerReadBits(sixteen.reader, 3);
  EXPECT_EQ(Taken(PerReadBitString(sixteen.reader, 16), 2), (Numbers{0xBE, 0xEF}));
  EXPECT_EQ(PerReadBit(sixteen.reader), 1u);

  Input seventeen(BitWriter().Bits(1, 3).Align().Bits(0xBEEF, 16).Bits(3, 2));
  PerReadBits(seventeen.reader, 3);
  EXPECT_EQ(Taken(PerReadBitString(seventeen.reader, 17), 3), (Numbers{0xBE, 0xEF, 0x80}));
  EXPECT_EQ(PerReadBit(seventeen.reader), 1u);
}

TEST(PerReadBitString, KeepsTheLastBitsUppermost) {
  for (uint32_t offset = 0; offset < 8; ++offset) {
    Input input(BitWriter().Bits(0, offset).Bits(0xA5, 8).Bits(0x16, 5).Bits(7, 3));
    PerReadBits(input.reader, offset);
    EXPECT_EQ(Taken(PerReadBitString(input.reader, 13), 2), (Numbers{0xA5, 0xB0}));
    EXPECT_EQ(PerReadBits(input.reader, 3), 7u);
  }
}

TEST(PerReadBitString, LeavesZerosWhereTheInputEndsAndRefusesWhatIsFarBeyondIt) {
  Input near({0xFF});
  EXPECT_EQ(Taken(PerReadBitString(near.reader, 23), 3), (Numbers{0xFF, 0, 0}));
  EXPECT_TRUE(near.AtExactEnd());

  Input far({0xFF});
  EXPECT_EQ(PerReadBitString(far.reader, 24), nullptr);
  EXPECT_TRUE(far.AtExactEnd());

  Input huge({0xFF});
  EXPECT_EQ(PerReadBitString(huge.reader, UINT32_MAX), nullptr);
  EXPECT_TRUE(huge.AtExactEnd());

  Input pending({0xFF});
  PerReadBits(pending.reader, 4);
  EXPECT_EQ(Taken(PerReadBitString(pending.reader, 8), 1), (Numbers{0}));
  EXPECT_TRUE(pending.AtExactEnd());
}

// All sixteen codes, in order.
TEST(NibbleStrings, MapEveryCode) {
  const Octets octets = {0xFF, 0x01, 0x23, 0x45, 0x67, 0x89, 0xAB, 0xCD, 0xEF};
  const auto read = [&](uint8_t* (*primitive)(PerReader&, uint32_t)) {
    Input input(octets);
    PerReadBit(input.reader);
    std::string text = TakenText(primitive(input.reader, 16), 16);
    EXPECT_TRUE(input.AtExactEnd());
    return text;
  };
  EXPECT_EQ(read(PerReadNibbles), std::string("\0\1\2\3\4\5\6\7\10\11\12\13\14\15\16\17", 16));
  EXPECT_EQ(read(PerReadNumericString), " 0123456789:;<=>");
  EXPECT_EQ(read(PerReadTBCDString), "#*0123456789abc=");
}

TEST(NibbleStrings, ReadAnOddCountToTheMiddleOfAnOctet) {
  Input input({0x12, 0x3F});
  EXPECT_EQ(TakenText(PerReadNumericString(input.reader, 3), 3), "012");
  EXPECT_EQ(PerReadBits(input.reader, 4), 15u);
}

TEST(NibbleStrings, LeaveZerosWhereTheInputEndsAndRefuseWhatIsFarBeyondIt) {
  for (const auto primitive : {PerReadNibbles, PerReadNumericString, PerReadTBCDString}) {
    Input near({0xFF});
    const Numbers codes = Taken(primitive(near.reader, 5), 5);
    ASSERT_EQ(codes.size(), 5u);
    EXPECT_NE(codes[1], 0);
    EXPECT_EQ(codes[2], 0);
    EXPECT_EQ(codes[4], 0);
    EXPECT_TRUE(near.AtExactEnd());

    Input far({0xFF});
    EXPECT_EQ(primitive(far.reader, 6), nullptr);
    EXPECT_TRUE(far.AtExactEnd());

    Input none({0xFF});
    EXPECT_EQ(primitive(none.reader, 0), nullptr);
    EXPECT_EQ(none.Bit(), 0u);
  }
}

TEST(PerReadPrintableString, MapsEveryIndex) {
  Octets octets(256);
  for (uint32_t i = 0; i < 256; ++i) octets[i] = static_cast<uint8_t>(i);
  Input input(octets);
  // A to S, at 22 to 40, are spaces, and so is everything after z.
  const std::string expected = " '()+,-./0123456789:=?" + std::string(19, ' ') + "TUVWXYZabcdefghijklmnopqrstuvwxyz" +
                               std::string(256 - 74, ' ');
  EXPECT_EQ(TakenText(PerReadPrintableString(input.reader, 256), 256), expected);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadPrintableString, AlignsAndRefusesMoreThanAreLeft) {
  Input pending({0xFF, 48, 49});
  PerReadBit(pending.reader);
  EXPECT_EQ(TakenText(PerReadPrintableString(pending.reader, 3), 3), std::string("ab\0", 3));

  Input whole({48, 49, 50});
  EXPECT_EQ(TakenText(PerReadPrintableString(whole.reader, 3), 3), "abc");
  Input two({48, 49});
  EXPECT_EQ(PerReadPrintableString(two.reader, 3), nullptr);
  EXPECT_TRUE(two.AtExactEnd());
}

TEST(PerReadBMPString, ReadsSixteenBitsACharacterToTheVeryEnd) {
  Input input({0xFF, 0x00, 0x41, 0xFF, 0xFD, 0x4E, 0x2D});
  PerReadBit(input.reader);
  EXPECT_EQ(Taken(PerReadBMPString(input.reader, 3), 3), (Numbers{0x41, 0xFFFD, 0x4E2D}));
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerReadBMPString, RefusesMoreThanAreLeft) {
  for (const uint32_t count : {2U, 0x80000001U, UINT32_MAX}) {
    Input input({0x00, 0x41, 0x00});
    EXPECT_EQ(PerReadBMPString(input.reader, count), nullptr);
    EXPECT_TRUE(input.AtExactEnd());
  }
  Input pending({0xFF, 0x41});
  PerReadBit(pending.reader);
  EXPECT_EQ(Taken(PerReadBMPString(pending.reader, 1), 1), (Numbers{0}));
  EXPECT_TRUE(pending.AtExactEnd());
}

TEST(PerReadSubidentifier, ReadsSevenBitsAnOctetAndKeepsTheLow32) {
  ExpectNumbers({{{0x7F, 0xFF}, 127, 8},
                 {{0x81, 0x00}, 128, 16},
                 {{0x80, 0x80, 0x05}, 5, 24},
                 {{0x8F, 0xFF, 0xFF, 0xFF, 0x7F}, 0xFFFFFFFF, 40},
                 {{0x90, 0x80, 0x80, 0x80, 0x05}, 5, 40},
                 {{0x81, 0x81, 0x81, 0x81, 0x81, 0x81, 0x01, 0xFF}, 0x10204081, 56},
                 // The last octet is missing: the end reads as a zero octet.
                 {{0x81}, 128, 8},
                 {{0x81, 0x82}, (128 + 2) << 7, 16},
                 {{}, 0, 0}},
                PerReadSubidentifier);
}

struct ObjectIdentifierCase {
  Octets octets;
  uint32_t count;
  Numbers arcs;  // kNull if there is no block
  uint64_t bit;
};

TEST(PerReadObjectIdentifier, ReadsItsArcs) {
  const ObjectIdentifierCase cases[] = {
      {{0x03, 0x2B, 0x06, 0x01, 0xFF}, 4, {1, 3, 6, 1}, 32},
      {{0x03, 0x2B, 0x06, 0x01}, 4, {1, 3, 6, 1}, 32},
      {{0x02, 0x81, 0x00, 0xFF}, 2, {3, 8}, 24},
      {{0x01, 0x27, 0xFF}, 2, {0, 39}, 16},
      {{0x01, 0x78, 0xFF}, 2, {3, 0}, 16},
      {{0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04}, 6, {0, 0, 8, 2250, 0, 4}, 56},
      {{0x00, 0xFF}, 0, kNull, 8},
      // Missing contents: the octets that exist have been counted.
      {{0x05, 0x2B, 0x06}, 3, kNull, 24},
      {{0x05}, 1, kNull, 8},
      // No final octet in the contents: one arc, read on to the octet that ends it.
      {{0x02, 0x81, 0x82, 0x03, 0xFF}, 1, {16643 / 40}, 32},
      {{0x02, 0x81, 0x82}, 1, {(130 << 7) / 40}, 24},
      {{0x01, 0x81}, 1, {3}, 16},
      // The last subidentifier has no final octet and is not counted.
      {{0x02, 0x2B, 0x86}, 2, {1, 3}, 16},
  };
  for (const ObjectIdentifierCase& test : cases) {
    SCOPED_TRACE(testing::PrintToString(test.octets));
    Input input(test.octets);
    ObjectIdentifierValue value{};
    PerReadObjectIdentifier(value, input.reader);
    EXPECT_EQ(uint32_t{value.count}, test.count);
    EXPECT_EQ(Taken(static_cast<uint32_t*>(value.arcs), test.count), test.arcs);
    EXPECT_EQ(input.Bit(), test.bit);
  }
}

TEST(PerReadObjectIdentifier, LeavesTheValueAloneAtTheEnd) {
  Input input({});
  ObjectIdentifierValue value{77, nullptr};
  PerReadObjectIdentifier(value, input.reader);
  EXPECT_EQ(uint32_t{value.count}, 77u);
}

TEST(PerReadObjectIdentifier, AlignsFirst) {
  Input input({0xFF, 0x01, 0x2B});
  PerReadBits(input.reader, 2);
  ObjectIdentifierValue value{};
  PerReadObjectIdentifier(value, input.reader);
  EXPECT_EQ(Taken(static_cast<uint32_t*>(value.arcs), 2), (Numbers{1, 3}));
}

TEST(PerReadObjectIdentifier, ReadsZerosPastTheCallersOctets) {
  Input input({0x04, 0x2B, 0x06}, 5);
  ObjectIdentifierValue value{};
  PerReadObjectIdentifier(value, input.reader);
  EXPECT_EQ(uint32_t{value.count}, 5u);
  EXPECT_EQ(Taken(static_cast<uint32_t*>(value.arcs), 5), (Numbers{1, 3, 6, 0, 0}));
  EXPECT_EQ(input.reader.position, input.reader.end);
}

TEST(PerReadObjectIdentifier, CountsTheCallersOctetsPastTheEndOfTheMessage) {
  const struct {
    uint32_t length;
    uint32_t available;
    uint32_t count;
    uint32_t lookedAt;
  } cases[] = {
      {4, 7, 6, 5},  // 2B 06 01 02 03
      {4, 5, 5, 4},  // 2B 06 01 02
      {4, 4, 4, 3},  // 2B 06 01
      {4, 3, 4, 3},  // 2B 06 and a zero before the end
  };
  const uint8_t octets[] = {0x05, 0x2B, 0x06, 0x01, 0x02, 0x03, 0x04};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.available);
    Input input({octets, octets + c.available}, c.length);
    ObjectIdentifierValue value{};
    PerReadObjectIdentifier(value, input.reader);
    EXPECT_EQ(uint32_t{value.count}, c.count);
    EXPECT_EQ(static_cast<uint32_t*>(value.arcs), nullptr);
    EXPECT_EQ(input.reader.position, input.reader.end);
    EXPECT_EQ(input.reader.reread, c.lookedAt);
  }
}

TEST(Primitives, ReadNothingBeyondTheEnd) {
  Input input({0xFF});
  PerReader& reader = input.reader;
  reader.position = PerAdvance(reader.end, 3);
  EXPECT_EQ(PerReadConstrainedWholeNumber(reader, 256), 0u);
  EXPECT_EQ(PerReadConstrainedWholeNumber(reader, kFullRange), 0u);
  EXPECT_EQ(PerReadLength(reader), 0u);
  EXPECT_EQ(PerReadNormallySmall(reader), 0u);
  EXPECT_EQ(PerReadUnsignedWithLength(reader), 0u);
  EXPECT_EQ(PerReadInteger(reader), 0);
  EXPECT_EQ(PerReadSubidentifier(reader), 0u);
  EXPECT_EQ(PerReadOctets(reader, 1), nullptr);
  EXPECT_EQ(PerReadOctetString(reader, nullptr), nullptr);
  EXPECT_EQ(PerReadSizedOctets(reader, nullptr, 1, 1), nullptr);
  EXPECT_EQ(PerReadBitString(reader, 1), nullptr);
  EXPECT_EQ(PerReadNibbles(reader, 1), nullptr);
  EXPECT_EQ(PerReadNumericString(reader, 1), nullptr);
  EXPECT_EQ(PerReadTBCDString(reader, 1), nullptr);
  EXPECT_EQ(PerReadPrintableString(reader, 1), nullptr);
  EXPECT_EQ(PerReadBMPString(reader, 1), nullptr);
  EXPECT_EQ(input.Bit(), 32u);
}

TEST(PerAllocate, GrantsTheAllowanceOfAMessageAndNoMore) {
  Input input({1, 2, 3, 4, 5, 6, 7, 8});
  input.reader.allowance = 4;
  EXPECT_EQ(Taken(PerReadOctets(input.reader, 4), 4), (Numbers{1, 2, 3, 4}));
  EXPECT_EQ(PerReadOctets(input.reader, 1), nullptr);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerAllocate, AllowanceGrowsWithTheMessage) {
  const Octets octets(0xFFFF, 0);
  PerReader reader;
  PerReaderInit(reader, octets.data(), 0);
  EXPECT_EQ(reader.allowance, kLeastMessageMemory);
  PerReaderInit(reader, octets.data(), 100);
  EXPECT_EQ(reader.allowance, kLeastMessageMemory + 100 * kMessageMemoryForEachOctet);
  PerReaderInit(reader, octets.data(), 0xFFFF);
  EXPECT_EQ(reader.allowance, kMaximumMessageMemory);
  // Octets that are claimed but missing allow no blocks.
  PerReaderInit(reader, octets.data(), 0xFFFF, 100);
  EXPECT_EQ(reader.allowance, kLeastMessageMemory + 100 * kMessageMemoryForEachOctet);
}

TEST(PerAllocate, RefusesASizeThatWouldWrap) {
  for (const uint64_t size : {uint64_t{kMaximumMessageMemory} + 1, (uint64_t{1} << 32) + 1, UINT64_MAX}) {
    Input input({1});
    const uint32_t allowance = input.reader.allowance;
    EXPECT_EQ(PerAllocate(input.reader, size), nullptr);
    EXPECT_TRUE(input.AtExactEnd());
    EXPECT_EQ(input.reader.allowance, allowance);
  }
}

TEST(PerAllocate, CountsTheOctetsOfWideElements) {
  const Octets octets(64, 0);
  Input characters(octets);
  characters.reader.allowance = 31;
  EXPECT_EQ(PerReadBMPString(characters.reader, 16), nullptr);
  EXPECT_TRUE(characters.AtExactEnd());

  Input arcs({0x02, 0x2B, 0x06});
  arcs.reader.allowance = 11;
  ObjectIdentifierValue value{};
  PerReadObjectIdentifier(value, arcs.reader);
  EXPECT_EQ(uint32_t{value.count}, 3u);
  EXPECT_EQ(static_cast<uint32_t*>(value.arcs), nullptr);
  EXPECT_TRUE(arcs.AtExactEnd());

  Input bits(octets);
  bits.reader.allowance = 2;
  EXPECT_EQ(PerReadBitString(bits.reader, 17), nullptr);
  EXPECT_TRUE(bits.AtExactEnd());
}

}  // namespace
}  // namespace kelvra::test
