// Unregistration, bandwidth, status and service-control messages.
#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h225/ras/bandwidth_messages.h"
#include "kelvra/h225/ras/info_request_ack.h"
#include "kelvra/h225/ras/ras_message.h"
#include "kelvra/h225/ras/request_in_progress.h"
#include "kelvra/h225/ras/resources_available.h"
#include "kelvra/h225/ras/service_control.h"
#include "kelvra/h225/ras/unregistration.h"
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
using Octets = std::vector<uint8_t>;

// `optional` presence bits behind the extension bit, then requestSeqNum 1.
BitWriter Body(bool extended, uint64_t optional, uint32_t count) {
  return BitWriter().Bit(extended).Bits(optional, count).Align().Bits(0, 16);
}

// A ResourcesAvailableIndicate up to the count of its protocols.
BitWriter Indicate() {
  BitWriter w = Body(false, 0, 4).OpenType(test::ProtocolIdentifier(4));
  return w.Bits(0, 7).Align().Bits('E', 16);
}

TEST(ResourcesAvailableTest, CountOfProtocolsIs8Bits) {
  for (const uint32_t count : {0U, 1U, 127U, 128U, 255U}) {
    BitWriter w = Indicate().Bits(count, 8);
    for (uint32_t i = 0; i < count; ++i) w.Bits(7, 5).Bits(0, 2);  // voice
    Input input(Marked(w.Bit(true)));
    Owned<ResourcesAvailableIndicate> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded) << count;
    ASSERT_EQ(+m->protocolsCount, count);
    EXPECT_EQ(+m->protocols == nullptr, count == 0);
    for (uint32_t i = 0; i < count; ++i) EXPECT_EQ(+m->protocols[i].choiceTag, 7);
    EXPECT_EQ(+m->almostOutOfResources, 1U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(ResourcesAvailableTest, LaterAdditionsOfTheConfirmAreSkipped) {
  BitWriter w = Body(true, 0, 4).OpenType(test::ProtocolIdentifier(2));
  Additions(w, 0b11, 2).OpenType(BitWriter().Length(1).Bits(0, 6).Align().Bits(7, 16)).OpenType({1, 2});
  Input input(Marked(w));
  Owned<ResourcesAvailableConfirm> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  ASSERT_EQ(+m->genericDataCount, 1);
  EXPECT_EQ(+m->genericData[0].id.standard, 7U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(RequestInProgressTest, AllAdditionsArePassedOver) {
  BitWriter w = Body(true, 0, 4).Bits(9999, 16);
  Additions(w, 0b111, 3).OpenType({1}).OpenType({2, 3}).OpenType(Octets{});
  Input input(Marked(w));
  Owned<RequestInProgress> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->delay, 10000);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(ServiceControlTest, CallAndResult) {
  BitWriter w = Body(false, 0b00100000, 8).Length(0);
  w.Bits(0, 2).Octets(Rising(1, 16)).Octets(Rising(0x40, 16)).Bit(true);
  Input input(Marked(w));
  Owned<ServiceControlIndication> indication;
  ASSERT_EQ(Decode(*indication, input.reader), kDecoded);
  EXPECT_EQ(OctetsOf(indication->callSpecific.callIdentifier.guid), Rising(1, 16));
  EXPECT_EQ(OctetsOf(indication->callSpecific.conferenceID), Rising(0x40, 16));
  EXPECT_EQ(+indication->callSpecific.answeredCall, 1U);
  EXPECT_EQ(input.Next(), kMarker);

  Input none(Marked(Body(false, 0, 7)));
  Owned<ServiceControlResponse> response;
  ASSERT_EQ(Decode(*response, none.reader), kDecoded);
  EXPECT_EQ(+response->hasResult, 0U);
  EXPECT_EQ(+response->result.choiceTag, 0);
  EXPECT_EQ(none.Next(), kMarker);
}

TEST(BandwidthTest, WholeRangeWithoutOffset) {
  for (const uint32_t bandwidth : {0U, 1U, 0x10000U, 0xFFFFFFFFU}) {
    // A number of up to 32 bits: 2 bits tell its octets, less one.
    const uint32_t octets = bandwidth > 0xFFFFFF ? 4 : bandwidth > 0xFFFF ? 3 : 1;
    Input input(Marked(Body(false, 0, 1).Bits(octets - 1, 2).Align().Bits(bandwidth, 8 * octets)));
    Owned<BandwidthConfirm> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->bandWidth, bandwidth);
    EXPECT_EQ(+m->hasGenericData, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

// The status of a body that holds nothing but a reason up to it. `width` bits tell a root reason.
template <class Message>
Status ReasonStatus(uint32_t optional, uint32_t count, uint32_t reason, uint32_t width) {
  BitWriter w = Body(false, optional, count).Bit(false).Bits(reason, width).Octets(Octets(8, 0));
  Input input(w);
  Owned<Message> m;
  return Decode(*m, input.reader);
}

TEST(RasReasonTest, RootIndexesBeyondTheAlternativesAreMalformed) {
  EXPECT_EQ(ReasonStatus<UnregistrationReject>(0, 1, 2, 2), kDecoded);
  EXPECT_EQ(ReasonStatus<UnregistrationReject>(0, 1, 3, 2), kMalformed);
  EXPECT_EQ(ReasonStatus<InfoRequestNak>(0, 5, 2, 2), kDecoded);
  EXPECT_EQ(ReasonStatus<InfoRequestNak>(0, 5, 3, 2), kMalformed);
  EXPECT_EQ(ReasonStatus<BandwidthReject>(0, 1, 5, 3), kDecoded);
  EXPECT_EQ(ReasonStatus<BandwidthReject>(0, 1, 6, 3), kMalformed);
  EXPECT_EQ(ReasonStatus<BandwidthReject>(0, 1, 7, 3), kMalformed);
  for (const uint32_t result : {0U, 4U}) {
    EXPECT_EQ(ReasonStatus<ServiceControlResponse>(0b1000000, 7, result, 3), kDecoded);
  }
  for (const uint32_t result : {5U, 6U, 7U}) {
    EXPECT_EQ(ReasonStatus<ServiceControlResponse>(0b1000000, 7, result, 3), kMalformed);
  }
}

TEST(RasMessageTest, ExtensionAlternativesReuseTags) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(3).OpenType(Body(false, 0, 4).Octets({1, 2, 3}))));
  Owned<RasMessageRecord> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->choiceTag, 3);
  EXPECT_EQ(+m->isExtension, 1U);
  EXPECT_EQ(+m->infoRequestAck.requestSeqNum, 1);
  EXPECT_EQ(input.Next(), kMarker) << "octets left in the alternative are passed over";

  Input malformed(Marked(BitWriter().Bit(true).NormallySmall(4).OpenType(Body(false, 0, 5).Bits(3, 3))));
  Owned<RasMessageRecord> nak;
  EXPECT_EQ(Decode(*nak, malformed.reader), kMalformed);
}

}  // namespace
}  // namespace kelvra::h225
