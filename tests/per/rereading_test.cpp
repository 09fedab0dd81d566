// How much a message reads again, and what happens past the limit.
#include <gtest/gtest.h>

#include "per/bit_writer.h"
#include "per/input.h"
#include "per/open_type.h"
#include "per/primitives.h"

namespace kelvra::test {
namespace {

// Reads `count` octets in an open type and leaves it.
void ReadInOpenType(PerReader& reader, uint32_t count) {
  OpenTypeBegin(reader);
  for (uint32_t i = 0; i < count; ++i) PerReadBits(reader, 8);
  OpenTypeEnd(reader);
}

TEST(Rereading, IsNoneWhereEachValueEndsWithItsOpenType) {
  Input input(BitWriter().OpenType({1, 2, 3}).OpenType(std::vector<uint8_t>{}).OpenType({4, 5}));
  for (const uint32_t count : {3u, 0u, 1u}) ReadInOpenType(input.reader, count);
  EXPECT_TRUE(input.AtExactEnd());
  EXPECT_EQ(input.reader.reread, 0U);
}

TEST(Rereading, CountsOctetsReadPastAnOpenType) {
  Input input(BitWriter().OpenType({1}).Octets(std::vector<uint8_t>(20, 7)));
  ReadInOpenType(input.reader, 6);
  EXPECT_EQ(input.reader.reread, 5U);
  EXPECT_EQ(input.Bit(), 16U);
}

TEST(Rereading, CountsAnOctetThatWasReadInPart) {
  Input input(BitWriter().OpenType(std::vector<uint8_t>{}).Octets({0xFF, 0xFF}));
  OpenTypeBegin(input.reader);
  PerReadBit(input.reader);
  OpenTypeEnd(input.reader);
  EXPECT_EQ(input.reader.reread, 1U);
  EXPECT_EQ(input.Bit(), 8U);
}

// Moving to the end reads nothing, however far it is.
TEST(Rereading, OfARefusedValueReachesNoFurtherThanItRead) {
  BitWriter writer;
  for (int i = 0; i < 100; ++i) writer.OpenType({0x01, 0xC1});  // a number, then a fragmented length
  Input input(writer.Octets(std::vector<uint8_t>(1000, 0)));
  for (int i = 0; i < 100; ++i) {
    OpenTypeBegin(input.reader);
    PerReadBits(input.reader, 8);
    PerReadLength(input.reader);
    EXPECT_TRUE(PerAtEnd(input.reader));
    OpenTypeEnd(input.reader);
  }
  EXPECT_EQ(input.reader.reread, 0U);
  EXPECT_EQ(input.Bit(), 2400U);
  // Read to the last octet rather than moved there, everything counts.
  OpenTypeBegin(input.reader);
  while (!PerAtEnd(input.reader)) PerReadBits(input.reader, 8);
  OpenTypeEnd(input.reader);
  EXPECT_EQ(input.reader.reread, 999U);
}

TEST(Rereading, OfARefusedValueCountsTheOctetThatItReadInPart) {
  Input input(BitWriter().OpenType(std::vector<uint8_t>{}).Octets({0xFF, 0xFF}));
  OpenTypeBegin(input.reader);
  PerReadBit(input.reader);
  PerReadBits(input.reader, 16);  // one bit more than there is
  EXPECT_TRUE(PerAtEnd(input.reader));
  OpenTypeEnd(input.reader);
  EXPECT_EQ(input.reader.reread, 1U);
  EXPECT_EQ(input.Bit(), 8U);
}

TEST(Rereading, CountsABitmapThatIsReadToTheEnd) {
  Input input(BitWriter().OpenType(BitWriter().NormallySmall(0x7FFFFFFE)).Octets(std::vector<uint8_t>(500, 0xFF)));
  OpenTypeBegin(input.reader);
  PerCountUnknownAdditions(input.reader, PerReadBitmapLength(input.reader));
  OpenTypeEnd(input.reader);
  EXPECT_EQ(input.reader.reread, 500U);
}

TEST(Rereading, CountsTheOctetsOfAnObjectIdentifierThatAreOnlyLookedAt) {
  const struct {
    BitWriter octets;
    bool granted;
    uint32_t lookedAt;
  } cases[] = {
      {BitWriter().OpenType({0x2B, 0x06, 0x81, 0x01}), true, 0},
      {BitWriter().OpenType({0x2B, 0x86, 0x81, 0x81}), true, 3},                  // the last three end nothing
      {BitWriter().Length(50).Octets(std::vector<uint8_t>(20, 0x2B)), true, 20},  // cut short
      {BitWriter().OpenType(std::vector<uint8_t>(30, 0x2B)), false, 30},          // refused
  };
  for (const auto& c : cases) {
    Input input(c.octets);
    if (!c.granted) input.reader.allowance = 0;
    ObjectIdentifierValue value{};
    PerReadObjectIdentifier(value, input.reader);
    EXPECT_EQ(input.reader.reread, c.lookedAt);
    CodecFree(&value.arcs, "test", 0);
  }
}

class TooMuchRereading : public testing::Test {
 protected:
  // Empty open types, with as many octets read after each.
  static constexpr uint32_t kOctets = 4096;
  static constexpr uint32_t kTimes = kMaximumRereading / kOctets;

  Input input{std::vector<uint8_t>(2 * kOctets, 0)};
};

TEST_F(TooMuchRereading, BeginsPastTheBound) {
  for (uint32_t i = 0; i < kTimes; ++i) ReadInOpenType(input.reader, kOctets);
  EXPECT_EQ(input.reader.reread, kMaximumRereading);
  EXPECT_EQ(input.Bit(), kTimes * 8);
  ReadInOpenType(input.reader, 0);
  EXPECT_EQ(input.Bit(), kTimes * 8 + 8);
  ReadInOpenType(input.reader, 1);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST_F(TooMuchRereading, LeavesTheReaderAtItsEndForGood) {
  for (int level = 0; level < 3; ++level) OpenTypeBegin(input.reader);
  for (uint32_t i = 0; i <= kTimes; ++i) ReadInOpenType(input.reader, kOctets);
  ASSERT_TRUE(input.AtExactEnd());
  for (int level = 0; level < 3; ++level) {
    PerMoveToEnd(input.reader, PerCause::kEndOfMessage);
    OpenTypeEnd(input.reader);
    EXPECT_TRUE(input.AtExactEnd());
  }
  EXPECT_GT(input.reader.reread, kMaximumRereading);
}

TEST(Rereading, OfAnObjectIdentifierEndsTheMessageToo) {
  Input input(BitWriter().OpenType({0x2B, 0x06, 0x81}).Octets({1, 2, 3}));
  input.reader.reread = kMaximumRereading;
  ObjectIdentifierValue value{};
  PerReadObjectIdentifier(value, input.reader);
  EXPECT_TRUE(input.AtExactEnd());
  EXPECT_EQ(+value.count, 3U);
  CodecFree(&value.arcs, "test", 0);
}

TEST(PerBounds, EndsTheReaderThereAndResumesAfter) {
  Input input(BitWriter().Octets({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
  input.Next();
  {
    const PerBounds bounds(input.reader, 3);
    EXPECT_EQ(PerReadBits(input.reader, 16), 0x0203U);
    EXPECT_EQ(PerReadBits(input.reader, 16), 0U);  // there is one octet more
    EXPECT_TRUE(PerAtEnd(input.reader));
  }
  EXPECT_EQ(input.Next(), 5U);
  {
    const PerBounds bounds(input.reader, 7);
    EXPECT_EQ(input.Next(), 6U);
  }
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerBounds, DoNotBringBackAReaderThatHasReadTooMuchAgain) {
  Input input(BitWriter().Octets({1, 2, 3, 4, 5, 6, 7, 8}));
  {
    const PerBounds bounds(input.reader, 4);
    EXPECT_FALSE(PerCountRereading(input.reader, kMaximumRereading + 1));
  }
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(PerBounds, ForgetHowFarAReaderGotThatStoppedWithinThem) {
  Input input(BitWriter().Octets(std::vector<uint8_t>(40, 0)));
  OpenTypeBegin(input.reader);
  {
    const PerBounds bounds(input.reader, 10);
    PerMoveToEnd(input.reader, PerCause::kEndOfMessage);
  }
  while (!PerAtEnd(input.reader)) input.Next();
  OpenTypeEnd(input.reader);
  EXPECT_EQ(input.reader.reread, 39U);
}

}  // namespace
}  // namespace kelvra::test
