#include "kelvra/h245/messages/non_standard_message.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h245/messages/h245_message.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsAt;
using test::OctetsOf;
using test::Owned;
using Octets = std::vector<uint8_t>;

constexpr uint32_t kRootBitsOfClass[] = {4, 5, 3, 4};  // of each class

// A NonStandardMessage of h221NonStandard 86/1/1, without additions, up to its data.
BitWriter& PrivateIdentifier(BitWriter& w, bool isExtended = false) {
  return w.Bit(isExtended).Bit(true).Octets({86, 1, 0, 1});
}

Octets PrivateData(uint8_t type, const Octets& payload) {
  return BitWriter().Bits(0b01, 2).Octets({type}).OpenType(payload);
}

TEST(NonStandardMessageTest, PrivateMessageOfEachClass) {
  for (uint32_t messageClass = kRequest; messageClass <= kIndication; ++messageClass) {
    Octets data = PrivateData(200, {1, 2, 3});
    data.push_back(0xFF);  // not consumed
    BitWriter w;
    PrivateIdentifier(w.Bits(messageClass, 3).Bits(0, 1 + kRootBitsOfClass[messageClass]), true).OpenType(data);
    w.NormallySmall(0).Bit(true).OpenType({7, 7});
    Input input(Marked(w));
    const uint32_t allowance = input.reader.allowance;
    Owned<H245MessageRecord> m;
    DecodeH245(*m, input.reader);
    const H245NonStandardMessageRecord& body = m->request.nonStandard;  // all four classes have the same layout
    EXPECT_EQ(+body.messageClass, messageClass);
    EXPECT_EQ(+body.privateMessageDecoded, 1U);
    EXPECT_EQ(+body.privateMessage.messageType, 200);
    EXPECT_EQ(OctetsOf(body.privateMessage.payload), (Octets{1, 2, 3}));
    EXPECT_EQ(+body.nonStandardData.data, nullptr);
    EXPECT_EQ(+body.nonStandardData.dataLength, 0U);
    EXPECT_EQ(allowance - input.reader.allowance, 3U) << "claimed by the whole message";
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(NonStandardMessageTest, PrivateMessageWithoutPayloadAndWithAdditions) {
  const Octets data = BitWriter().Bits(0b10, 2).Octets({5}).NormallySmall(0).Bit(true).OpenType({1});
  BitWriter w;
  Input input(Marked(PrivateIdentifier(w).OpenType(data)));
  Owned<H245NonStandardMessageRecord> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->privateMessageDecoded, 1U);
  EXPECT_EQ(+m->privateMessage.messageType, 5);
  EXPECT_EQ(+m->privateMessage.hasPayload, 0U);
  EXPECT_EQ(+m->privateMessage.isExtended, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(NonStandardMessageTest, PayloadMayEndWithItsData) {
  BitWriter w;
  Input input(Marked(PrivateIdentifier(w).OpenType(PrivateData(1, {2, 3}))));
  Owned<H245NonStandardMessageRecord> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->privateMessageDecoded, 1U);
  EXPECT_EQ(OctetsOf(m->privateMessage.payload), (Octets{2, 3}));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(NonStandardMessageTest, NoDataIsNoPrivateMessage) {
  BitWriter w;
  PrivateIdentifier(w, true).Length(0).NormallySmall(0).Bit(true).OpenType({7, 7});
  Input input(Marked(w));
  Owned<H245NonStandardMessageRecord> m;
  m->messageClass = kCommand;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->nonStandardData.nonStandardIdentifier.h221NonStandard.t35CountryCode, 86);
  EXPECT_EQ(+m->isExtended, 1U);
  EXPECT_EQ(+m->privateMessageDecoded, 0U);
  EXPECT_EQ(+m->nonStandardData.data, nullptr);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(NonStandardMessageTest, OtherIdentifiersKeepTheirData) {
  const Octets data = PrivateData(1, {2});
  for (const Octets& number : {Octets{87, 1, 0, 1}, {86, 0, 0, 1}, {86, 1, 0, 2}, {86, 1, 1, 1}}) {
    Input input(Marked(BitWriter().Bits(0b01, 2).Octets(number).OpenType(data)));
    Owned<H245NonStandardMessageRecord> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->privateMessageDecoded, 0U);
    EXPECT_EQ(OctetsAt(m->nonStandardData.data, m->nonStandardData.dataLength), data);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(NonStandardMessageTest, FailedPrivateMessageEndsTheMessage) {
  const Octets noPayload = {0x40, 1};
  const Octets shortPayload = {0x40, 1, 3, 9, 9};
  const Octets shortLength = {0x40, 1, 0x80};
  const Octets fragments = {0x40, 1, 0xC1, 2, 3, 9};
  for (const Octets& data : {Octets{0x00}, noPayload, shortPayload, shortLength, fragments}) {
    BitWriter w;
    PrivateIdentifier(w, true).OpenType(data).NormallySmall(0).Bit(true).OpenType({7, 7});
    Input input(w);
    Owned<H245NonStandardMessageRecord> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->privateMessageDecoded, 0U);
    EXPECT_EQ(+m->privateMessage.payload.data, nullptr);
    EXPECT_TRUE(input.AtExactEnd()) << data.size();
  }
}

TEST(NonStandardMessageTest, PayloadMayBeEmpty) {
  for (const Octets& data : {Octets{0x40, 1, 0}, {0x40, 1, 0x80, 0}}) {
    BitWriter w;
    Input input(Marked(PrivateIdentifier(w).OpenType(data)));
    Owned<H245NonStandardMessageRecord> m;
    DecodeH245(*m, input.reader);
    EXPECT_EQ(+m->privateMessageDecoded, 1U);
    EXPECT_EQ(+m->privateMessage.hasPayload, 1U);
    EXPECT_EQ(+m->privateMessage.payload.length, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(NonStandardMessageTest, PayloadBeyondTheAllowanceFails) {
  BitWriter w;
  Input input(Marked(PrivateIdentifier(w).OpenType(PrivateData(1, {2, 3}))));
  input.reader.allowance = 1;
  Owned<H245NonStandardMessageRecord> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->privateMessageDecoded, 0U);
  EXPECT_TRUE(input.AtExactEnd());
}

TEST(NonStandardMessageTest, DataBeyondTheEndReadsAsZero) {
  BitWriter w;
  PrivateIdentifier(w).Length(20).Octets({0x40, 1, 4, 9, 9});
  Input input(w);
  Owned<H245NonStandardMessageRecord> m;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->privateMessageDecoded, 1U);
  EXPECT_EQ(OctetsOf(m->privateMessage.payload), (Octets{9, 9, 0, 0}));
  EXPECT_EQ(input.Bit(), 8U * (6 + 20));
}

TEST(NonStandardMessageTest, ClassWithoutPrivateMessagesStopsAfterTheLength) {
  BitWriter w;
  Input input(PrivateIdentifier(w, true).OpenType({0x00, 1}));
  Owned<H245NonStandardMessageRecord> m;
  m->messageClass = kIndication + 1;
  DecodeH245(*m, input.reader);
  EXPECT_EQ(+m->privateMessageDecoded, 0U);
  EXPECT_EQ(input.Bit(), 8U * 6);
}

}  // namespace
}  // namespace kelvra::h245
