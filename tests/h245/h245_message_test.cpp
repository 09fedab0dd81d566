#include "kelvra/h245/messages/h245_message.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h245/common/generic_capability.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;
using Octets = std::vector<uint8_t>;

TEST(H245MessageTest, UnknownMessageClassDiscardsItsIndex) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(3).OpenType({1, 2})));
  Owned<H245MessageRecord> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->isExtension, 1U);
  EXPECT_EQ(+m->choiceTag, 0);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(H245MessageTest, UnknownAlternativesOfEachClass) {
  for (uint32_t messageClass = 0; messageClass < 4; ++messageClass) {
    for (const uint32_t tag : {60U, 64U, 256U + 3, 256U + 5}) {
      Input input(Marked(BitWriter().Bits(messageClass, 3).Bit(true).NormallySmall(tag).OpenType(Octets(30, 0xFF))));
      Owned<H245MessageRecord> m;
      DecodeH245(*m, input.reader);
      EXPECT_EQ(+m->choiceTag, messageClass);
      EXPECT_EQ(+m->request.choiceTag, tag & 0xFF) << "all four classes are laid out alike";
      EXPECT_EQ(+m->request.isExtension, 1U);
      EXPECT_EQ(input.Next(), kMarker);
    }
  }
}

// Whether a message holds nothing but its tags and extension bits.
bool HoldsOnlyItsTags(Owned<H245MessageRecord>& m) {
  m->isExtension = m->choiceTag = 0;
  m->request.isExtension = m->request.choiceTag = 0;
  return m.IsZero();
}

constexpr uint32_t kRootBits[] = {4, 5, 3, 4};  // of each class

TEST(H245MessageTest, RootIndicesBeyondTheAlternativesDecodeNothing) {
  constexpr struct {
    uint32_t messageClass, first, last;
  } kCases[] = {{kRequest, 11, 15}, {kResponse, 19, 31}, {kCommand, 7, 7}, {kIndication, 14, 15}};
  for (const auto& c : kCases) {
    for (uint32_t tag = c.first; tag <= c.last; ++tag) {
      Input input(
          BitWriter().Bits(c.messageClass, 3).Bits(tag, 1 + kRootBits[c.messageClass]).Octets(Octets(40, 0xFF)));
      Owned<H245MessageRecord> m;
      DecodeH245(*m, input.reader);
      EXPECT_EQ(+m->request.choiceTag, tag) << c.messageClass;
      EXPECT_EQ(input.Bit(), 4 + kRootBits[c.messageClass]);
      EXPECT_TRUE(HoldsOnlyItsTags(m)) << c.messageClass << ' ' << tag;
    }
  }
}

TEST(H245MessageTest, MultilinkAndLaterAlternativesArePassedOver) {
  constexpr struct {
    uint32_t messageClass, tag;
  } kCases[] = {{kRequest, 2}, {kRequest, 5},    {kResponse, 2},   {kResponse, 6},   {kCommand, 4},
                {kCommand, 6}, {kIndication, 5}, {kIndication, 8}, {kIndication, 10}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bits(c.messageClass, 3).Bit(true).NormallySmall(c.tag).OpenType(Octets(30, 0xFF));
    Input input(Marked(w));
    Owned<H245MessageRecord> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->request.isExtension, 1U);
    EXPECT_EQ(+m->request.choiceTag, c.tag) << c.messageClass;
    EXPECT_EQ(input.Next(), kMarker);
    EXPECT_TRUE(HoldsOnlyItsTags(m)) << c.messageClass << ' ' << c.tag;
  }
}

TEST(H245MessageTest, ResumesBehindTheOpenTypeOfAnAlternative) {
  const Octets rate = BitWriter().Bit(false).Align().Bits(9, 8).Bits(513 - 1, 16).Bits(0b11, 2).Align().Bits(640, 32);
  for (const size_t length : {size_t{2}, rate.size(), rate.size() + 3}) {
    Octets value = rate;
    value.resize(length);
    Input input(Marked(BitWriter().Bits(kRequest, 3).Bit(true).NormallySmall(3).OpenType(value)));
    Owned<H245MessageRecord> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->request.logicalChannelRateRequest.sequenceNumber, 9);
    if (length >= rate.size()) {
      EXPECT_EQ(+m->request.logicalChannelRateRequest.maximumBitRate, 640U);
    }
    EXPECT_EQ(input.Next(), kMarker) << length;
  }
}

TEST(FunctionNotUnderstoodTest, HoldsAMessageOfThreeClasses) {
  BitWriter ack;
  ack.Bits(kIndication, 3).Bits(1, 5).Bits(kResponse, 2).Bits(7, 6).Bit(false).Align().Bits(513 - 1, 16);
  Input input(Marked(ack));
  Owned<H245MessageRecord> m;
  DecodeH245(*m, input.reader);
  FunctionNotUnderstood& inner = m->indication.functionNotUnderstood;
  EXPECT_EQ(+inner.choiceTag, kResponse);
  EXPECT_EQ(+inner.response.choiceTag, 7);
  EXPECT_EQ(+inner.response.closeLogicalChannelAck.forwardLogicalChannelNumber, 513);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(FunctionNotUnderstoodTest, NonStandardMessageIsOfTheClassThatIsReturned) {
  BitWriter command;
  command.Bits(kIndication, 3).Bits(1, 5).Bits(kCommand, 2).Bits(0, 4).Bits(0b01, 2);
  command.Octets({60, 0}).Bits(21324, 16).OpenType({1, 2, 3});
  Input input(Marked(command));
  Owned<H245MessageRecord> m;
  DecodeH245(*m, input.reader);
  H245NonStandardMessageRecord& inner = m->indication.functionNotUnderstood.command.nonStandard;
  EXPECT_EQ(+inner.messageClass, kCommand);
  EXPECT_EQ(test::OctetsAt(inner.nonStandardData.data, inner.nonStandardData.dataLength), (Octets{1, 2, 3}));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(FunctionNotUnderstoodTest, FourthIndexDecodesNothing) {
  Input input(BitWriter().Bits(kIndication, 3).Bits(1, 5).Bits(3, 2).Octets(Octets(40, 0xFF)));
  Owned<H245MessageRecord> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->indication.functionNotUnderstood.choiceTag, 3);
  EXPECT_EQ(input.Bit(), 10U);
}

// Generic parameters, each but the last with the next one in its value and with an empty list `supersedes`.
void NestedParameter(BitWriter& w, uint32_t levels) {
  w.Bits(0b01, 2).Bits(0, 3).Bits(127, 7);  // standard 127
  if (levels == 1) {
    w.Bits(0, 4);  // logical
  } else {
    NestedParameter(w.Bits(7, 4).Length(1), levels - 1);
  }
  w.Length(0);
}

TEST(GenericParameterTest, NestsToTheMaximumDepthAndWhatFollowsATooDeepOneIsEmpty) {
  for (const uint32_t levels : {kMaximumDepth, kMaximumDepth + 1}) {
    BitWriter w;
    NestedParameter(w, levels);
    Input input(Marked(w));
    Owned<GenericParameter> m;
    DecodeH245(*m, input.reader);
    const GenericParameter* inner = &*m;
    for (uint32_t level = 1; level < levels; ++level) {
      EXPECT_EQ(+inner->supersedesCount, 0) << level;
      ASSERT_EQ(+inner->parameterValue.genericParameter.count, 1) << level;
      inner = inner->parameterValue.genericParameter.elements;
    }
    EXPECT_EQ(+inner->parameterIdentifier.standard, levels > kMaximumDepth ? 0 : 127);
    EXPECT_EQ(PerAtEnd(input.reader), levels > kMaximumDepth);
    EXPECT_EQ(input.reader.depth, 0U);
  }
}

TEST(ParameterValueTest, ListCountKeepsItsLow8Bits) {
  Input input(Marked(BitWriter().Bits(7, 4).Length(257).Bits(0, 2).Bits(0, 3).Bits(127, 7).Bits(0, 4)));
  Owned<ParameterValue> m;
  DecodeH245(*m, input.reader);
  ASSERT_EQ(+m->genericParameter.count, 1);
  EXPECT_EQ(+m->genericParameter.elements[0].parameterIdentifier.standard, 127);
  EXPECT_EQ(input.Next(), kMarker);
}

}  // namespace
}  // namespace kelvra::h245
