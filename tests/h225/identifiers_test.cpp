#include "kelvra/h225/common/identifiers.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::Additions;
using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsOf;
using test::Owned;
using test::Rising;

struct DecodedNullChoice {
  Status status;
  uint32_t tag, isExtension, next;
};

template <class Choice>
DecodedNullChoice DecodeNullChoice(const BitWriter& value) {
  Input input(Marked(value));
  Owned<Choice> choice;
  const Status status = DecodeByHand(*choice, input.reader);
  return {status, choice->choiceTag, choice->isExtension, input.Next()};
}

TEST(CallIdentifierTest, AdditionsAreSkipped) {
  BitWriter w;
  w.Bit(true).Octets(Rising(0x10, 16));
  Additions(w, 0b10, 2).OpenType({1, 2});
  Input input(Marked(w));
  Owned<CallIdentifier> identifier;
  ASSERT_EQ(Decode(*identifier, input.reader), kDecoded);
  EXPECT_EQ(OctetsOf(identifier->guid), Rising(0x10, 16));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(CallIdentifierTest, TruncatedGuidSurfacesAtTheNextDecoder) {
  for (const uint32_t octets : {0U, 1U, 15U}) {
    Input input(BitWriter().Bit(false).Octets(Rising(1, octets)));
    Owned<CallIdentifier> identifier;
    EXPECT_EQ(Decode(*identifier, input.reader), kDecoded);
    EXPECT_EQ(+identifier->guid.length, 16U);
    if (octets < 15) {
      EXPECT_TRUE(+identifier->guid.data == nullptr);
    }
    Owned<CallIdentifier> next;
    EXPECT_EQ(Decode(*next, input.reader), kExhausted);
    EXPECT_TRUE(next.IsZero());
  }
}

TEST(CallTypeTest, RootAndDiscardedExtension) {
  for (uint32_t tag = 0; tag < 4; ++tag) {
    const auto m = DecodeNullChoice<CallType>(BitWriter().Bits(tag, 3));
    EXPECT_EQ(m.status, kDecoded);
    EXPECT_EQ(m.tag, tag);
    EXPECT_EQ(m.isExtension, 0U);
    EXPECT_EQ(m.next, kMarker);
  }
  const auto m = DecodeNullChoice<CallType>(BitWriter().Bit(true).NormallySmall(3).OpenType({1, 2}));
  EXPECT_EQ(m.status, kDecoded);
  EXPECT_EQ(m.tag, 0U);
  EXPECT_EQ(m.isExtension, 1U);
  EXPECT_EQ(m.next, kMarker);
}

TEST(PresentationIndicatorTest, RootAndDiscardedExtension) {
  for (uint32_t tag = 0; tag < 4; ++tag) {
    const auto m = DecodeNullChoice<PresentationIndicator>(BitWriter().Bits(tag, 3));
    EXPECT_EQ(m.status, tag < 3 ? kDecoded : kMalformed);
    if (tag < 3) {
      EXPECT_EQ(m.tag, tag);
    }
  }
  const auto m = DecodeNullChoice<PresentationIndicator>(BitWriter().Bit(true).NormallySmall(2).OpenType({1}));
  EXPECT_EQ(m.status, kDecoded);
  EXPECT_EQ(m.tag, 0U);
  EXPECT_EQ(m.isExtension, 1U);
  EXPECT_EQ(m.next, kMarker);
}

TEST(ScreeningIndicatorTest, TwoBitsAreReadOfThree) {
  constexpr struct {
    uint32_t sent, kept;  // the extension bit and the value as sent; the value as kept
  } kCases[] = {{0b000, 0}, {0b001, 0}, {0b010, 1}, {0b011, 1}, {0b100, 2}, {0b111, 3}};
  for (const auto& c : kCases) {
    Input input(BitWriter().Bits(c.sent, 3).Bits(0b10101, 5));
    Owned<ScreeningIndicator> indicator;
    ASSERT_EQ(Decode(*indicator, input.reader), kDecoded);
    EXPECT_EQ(+indicator->value, c.kept);
    EXPECT_EQ(+indicator->isExtended, 0U);
    EXPECT_EQ(input.reader.bitOffset, 2U);
  }
}

}  // namespace
}  // namespace kelvra::h225
