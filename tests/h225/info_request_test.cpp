#include "kelvra/h225/ras/info_request.h"

#include <gtest/gtest.h>

#include "h225/common/protocol_version.h"
#include "h225/messages.h"
#include "kelvra/h225/ras/info_request_response.h"
#include "kelvra/h225/ras/non_standard_message.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::Addition;
using test::Additions;
using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsOf;
using test::Owned;
using test::Rising;
using test::TextOf;
using Octets = std::vector<uint8_t>;

TEST(NonStandardMessageTest, EndsBehindItsDataWithoutAdditions) {
  Input input(
      Marked(BitWriter().Bit(false).Align().Bits(0, 16).Bits(1, 2).Bit(false).Octets({181, 0, 0, 9}).OpenType({7, 8})));
  Owned<NonStandardMessage> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(OctetsOf(m->nonStandardData.data), (Octets{7, 8}));
  EXPECT_EQ(+m->isExtended, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(UnknownMessageResponseTest, MessageNotUnderstood) {
  {
    Input input(Marked(BitWriter().Bit(false).Align().Bits(8, 16)));
    Owned<UnknownMessageResponse> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->requestSeqNum, 9);
    EXPECT_EQ(input.Next(), kMarker);
  }
  BitWriter w;
  w.Bit(true).Align().Bits(8, 16);
  Additions(w, Addition(3, 5) | Addition(4, 5), 5).OpenType(BitWriter().OpenType({1, 2, 3})).OpenType({9, 9});
  Input input(Marked(w));
  Owned<UnknownMessageResponse> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(OctetsOf(m->messageNotUnderstood), (Octets{1, 2, 3}));
  EXPECT_EQ(input.Next(), kMarker);
}

// An InfoRequestResponse up to its additions, with one call whose single PDU is `pdu`.
BitWriter ResponseWith(const BitWriter& pdus, bool extended = false) {
  BitWriter w;
  w.Bit(extended).Bits(0b001, 3).Align().Bits(0, 16);
  test::EmptyEndpointType(w).Bits(0, 7).Align().Bits('E', 16);
  test::IpAddress(w, 6, 1719).Length(0);
  w.Length(1).Bit(true).Bits(0, 5).Align().Bits(77, 16).Octets(Rising(0x30, 16));
  w.Bits(0, 3).Bits(0, 3).Bits(0, 3).Bits(0, 2).Octets({5}).Bits(0, 2);
  return Additions(w, Addition(3, 8) | Addition(4, 8), 8)
      .OpenType(BitWriter().Length(1).Octets(Rising(0x40, 16)))
      .OpenType(pdus);
}

TEST(InfoRequestResponseTest, CallsWithTheirMessages) {
  BitWriter pdus;
  pdus.Length(2).Bits(0, 2).Bit(true).NormallySmall(1).OpenType(Octets{}).Bit(true);
  pdus.Bit(true).Bit(false).Bit(true).NormallySmall(1).OpenType(Octets{});
  Additions(pdus, Addition(2, 9), 9).OpenType(BitWriter().Length(1).OpenType({0x11, 0x22})).Bit(false);
  BitWriter w = ResponseWith(pdus, true);
  Additions(w, Addition(3, 8) | Addition(5, 8), 8).OpenType({0x80}).OpenType(BitWriter().Bits(2, 3).Octets({1, 0}));
  Input input(Marked(w));
  Owned<InfoRequestResponse> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(TextOf(m->endpointIdentifier), u"E");
  EXPECT_EQ(+m->needResponse, 1U);
  EXPECT_EQ(+m->irrStatus.choiceTag, 2);
  EXPECT_EQ(+m->irrStatus.segment, 256);
  ASSERT_EQ(+m->perCallInfoCount, 1);
  const auto& call = m->perCallInfo[0];
  EXPECT_EQ(+call.callReferenceValue, 77);
  EXPECT_EQ(+call.bandWidth, 5U);
  ASSERT_EQ(+call.substituteConfIDsCount, 1);
  EXPECT_EQ(OctetsOf(call.substituteConfIDs[0]), Rising(0x40, 16));
  ASSERT_EQ(+call.pduCount, 2);
  EXPECT_EQ(+call.pdu[0].h323pdu.h323MessageBody.choiceTag, 1);
  EXPECT_EQ(+call.pdu[0].h323pdu.isExtended, 0U);
  EXPECT_EQ(+call.pdu[0].sent, 1U);
  ASSERT_EQ(+call.pdu[1].h323pdu.h245ControlCount, 1);
  EXPECT_EQ(OctetsOf(call.pdu[1].h323pdu.h245Control[0]), (Octets{0x11, 0x22}));
  EXPECT_EQ(+call.pdu[1].sent, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(InfoRequestResponseTest, UnknownStatusesArePassedOver) {
  for (const uint32_t index : {0U, 2U, 258U}) {  // 2 is the tag of segment
    BitWriter w = ResponseWith(BitWriter().Length(0), true);
    Additions(w, Addition(5, 8), 8).OpenType(BitWriter().Bit(true).NormallySmall(index).OpenType({1, 2}));
    Input input(Marked(w));
    Owned<InfoRequestResponse> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded) << index;
    EXPECT_EQ(+m->irrStatus.isExtension, 1U);
    EXPECT_EQ(uint32_t{m->irrStatus.choiceTag}, index & 0xFF);
    EXPECT_EQ(+m->irrStatus.segment, 0);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(InfoRequestResponseTest, ReportedSetupSetsTheVersionMode) {
  constexpr struct {
    uint8_t version;
    int32_t mode;
  } kCases[] = {{2, 0}, {3, 1}, {4, 2}};
  for (const auto& c : kCases) {
    BitWriter pdus;
    pdus.Length(1).Bits(0, 2).Bits(0, 4).Bit(false).Bits(0, 7).OpenType(test::ProtocolIdentifier(c.version));
    test::EmptyEndpointType(pdus).Bit(true).Octets(Rising(0x60, 16)).Bits(0, 3).Bits(0, 3).Bit(true);
    Input input(Marked(ResponseWith(pdus)));
    Owned<InfoRequestResponse> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->perCallInfo[0].pdu[0].sent, 1U);
    EXPECT_EQ(ProtocolVersionMode(), c.mode);
  }
}

TEST(InfoRequestResponseTest, FailureWithinAMessageFailsTheResponse) {
  {
    Input input(Marked(ResponseWith(BitWriter().Length(1).Bits(0, 2).Bits(7, 4))));
    Owned<InfoRequestResponse> m;
    EXPECT_EQ(Decode(*m, input.reader), kMalformed);
  }
  // Generic data that holds itself, deeper than is followed.
  BitWriter parameter;
  for (uint32_t depth = 0; depth < 40; ++depth) {
    parameter.Bits(0b01, 2).Bits(0, 4).Align().Bits(depth, 16).Bits(10, 5).Align().Bits(0, 16);
  }
  BitWriter pdus;
  pdus.Length(1).Bits(0b10, 2).Bit(true).NormallySmall(1).OpenType(Octets{});
  Additions(pdus, Addition(8, 9), 9);
  pdus.OpenType(BitWriter().Length(1).Bits(0b01, 2).Bits(0, 4).Align().Bits(0, 16).Bits(0, 16).Octets(parameter));
  Input input(Marked(ResponseWith(pdus)));
  Owned<InfoRequestResponse> m;
  EXPECT_EQ(Decode(*m, input.reader), kMalformed);
  EXPECT_EQ(input.reader.depth, 0U);
}

TEST(InfoRequestResponseTest, MessagesPastTheAllowanceAreRefused) {
  // Lists of 255 empty messages, each call of a few hundred octets claiming some 400 kB.
  BitWriter pdus;
  pdus.Length(255);
  for (int i = 0; i < 255; ++i) pdus.Bits(0, 2).Bit(true).NormallySmall(1).OpenType(Octets{}).Bit(false);
  BitWriter w;
  w.Bit(false).Bits(0b001, 3).Align().Bits(0, 16);
  test::EmptyEndpointType(w).Bits(0, 7).Align().Bits('E', 16);
  test::IpAddress(w, 6, 1719).Length(0).Length(60);
  for (int i = 0; i < 60; ++i) {
    w.Bit(true).Bits(0, 5).Align().Bits(77, 16).Octets(Rising(0x30, 16));
    w.Bits(0, 3).Bits(0, 3).Bits(0, 3).Bits(0, 2).Octets({5}).Bits(0, 2);
    Additions(w, Addition(4, 8), 8).OpenType(pdus);
  }
  Input input(Marked(w));
  Owned<InfoRequestResponse> m;
  EXPECT_EQ(Decode(*m, input.reader), kRefused);
  EXPECT_TRUE(input.AtExactEnd());
}

}  // namespace
}  // namespace kelvra::h225
