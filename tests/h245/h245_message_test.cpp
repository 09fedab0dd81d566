#include "h245/messages/h245_message.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/messages/h245_message_decode.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;
using Octets = std::vector<uint8_t>;

TEST(H245MessageTest, UnknownMessageClassDiscardsItsIndex) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(3).OpenType({1, 2})));
  Owned<H245MessageRecord> m;
  DecodeMultimediaSystemControlMessage(*m, input.reader);
  EXPECT_EQ(+m->isExtension, 1U);
  EXPECT_EQ(+m->choiceTag, 0);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H245MessageTest, UnknownAlternativesOfEachClass) {
  for (uint32_t messageClass = 0; messageClass < 4; ++messageClass) {
    for (const uint32_t tag : {60U, 64U, 256U + 3, 256U + 5}) {
      Input input(Marked(BitWriter().Bits(messageClass, 3).Bit(true).NormallySmall(tag).OpenType(Octets(30, 0xFF))));
      Owned<H245MessageRecord> m;
      DecodeMultimediaSystemControlMessage(*m, input.reader);
      EXPECT_EQ(+m->choiceTag, messageClass);
      EXPECT_EQ(+m->request.choiceTag, tag & 0xFF) << "all four classes are laid out alike";
      EXPECT_EQ(+m->request.isExtension, 1U);
      EXPECT_EQ(input.Next(), kMarker);
    }
  }
}

TEST(ParameterValueTest, Numbers) {
  constexpr struct {
    uint32_t index, value;
  } kCases[] = {{1, 0x80}, {2, 0xFFFF}, {3, 0x0102}, {4, 0xFFFFFFFF}, {5, 0x80000000}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bits(c.index, 4);
    if (c.index > 3) w.Bits(3, 2);
    w.Align().Bits(c.value, c.index == 1 ? 8 : c.index > 3 ? 32 : 16);
    Input input(Marked(w));
    Owned<ParameterValue> m;
    DecodeParameterValue(*m, input.reader);
    const uint32_t value = c.index == 1 ? m->booleanArray : c.index > 3 ? m->unsigned32Min : m->unsignedMin;
    EXPECT_EQ(value, c.value);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(ParameterValueTest, ListCountKeepsItsLow8Bits) {
  Input input(Marked(BitWriter().Bits(7, 4).Length(257).Bits(0, 2).Bits(0, 3).Bits(127, 7).Bits(0, 4)));
  Owned<ParameterValue> m;
  DecodeParameterValue(*m, input.reader);
  ASSERT_EQ(+m->genericParameter.count, 1);
  EXPECT_EQ(+m->genericParameter.elements[0].parameterIdentifier.standard, 127);
  EXPECT_EQ(input.Next(), kMarker);
}

}  // namespace
}  // namespace kelvra::h245
