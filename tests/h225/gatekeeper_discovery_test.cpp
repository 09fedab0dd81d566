#include "kelvra/h225/ras/gatekeeper_discovery.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "kelvra/h225/ras/ras_message.h"
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
using Octets = std::vector<uint8_t>;

// A GatekeeperRequest up to the members behind endpointType; `optional` are its four presence bits.
BitWriter BeginDiscoveryRequest(bool extended, uint32_t optional = 0, uint16_t coded = 0) {
  BitWriter w;
  w.Bit(extended).Bits(optional, 4).Align().Bits(coded, 16).OpenType(test::ProtocolIdentifier(4));
  return test::EmptyEndpointType(test::IpAddress(w, 1, 1719));
}

TEST(GatekeeperRequestTest, SequenceNumberIsNotChecked) {
  Input input(Marked(BeginDiscoveryRequest(false, 0, 65535)));
  Owned<GatekeeperRequest> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->requestSeqNum, 0);
}

TEST(GatekeeperRequestTest, AliasCountKeepsItsLow8Bits) {
  constexpr struct { uint32_t sent, kept; } kCases[] = {{0, 0}, {2, 2}, {256, 0}, {300, 44}};
  for (const auto& c : kCases) {
    BitWriter w = BeginDiscoveryRequest(false, 0b0001);
    w.Length(c.sent);
    for (uint32_t i = 0; i < c.kept; ++i) w.Bits(0, 2).Bits(0, 7).Align().Bits(3 + i % 10, 4);
    Input input(Marked(w));
    Owned<GatekeeperRequest> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->hasEndpointAlias, 1U);
    EXPECT_EQ(+m->endpointAliasCount, c.kept);
    EXPECT_EQ(+m->endpointAlias == nullptr, c.kept == 0);
    for (uint32_t i = 0; i < c.kept; ++i) {
      EXPECT_EQ(OctetsOf(m->endpointAlias[i].dialedDigits), Octets{static_cast<uint8_t>(3 + i % 10)});
    }
    EXPECT_EQ(input.Next(), kMarker) << c.sent;
  }
}

TEST(GatekeeperRequestTest, SupportsAltGKIsItsFlagAlone) {
  BitWriter w = BeginDiscoveryRequest(true);
  Additions(w, Addition(7, 8), 8).OpenType({0xFF});
  Input input(Marked(w));
  Owned<GatekeeperRequest> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasSupportsAltGK, 1U);
  EXPECT_EQ(+m->supportsAltGK, 0);
  EXPECT_EQ(+m->hasFeatureSet, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GatekeeperRequestTest, UnknownAdditionsAreSkipped) {
  BitWriter w = BeginDiscoveryRequest(true);
  Additions(w, Addition(7, 12) | Addition(10, 12) | Addition(11, 12), 12);
  w.OpenType(Octets{}).OpenType({1, 2, 3}).OpenType({4});
  Input input(Marked(w));
  Owned<GatekeeperRequest> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasGenericData, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GatekeeperRequestTest, NestedAdditionsTakeOverTheCountOfUnknownOnes) {
  // The featureSet has an unknown addition of its own, so one of the two behind it is skipped.
  BitWriter features;
  features.Bit(true).Bits(0, 4);
  Additions(features, 1, 1).OpenType({7});
  BitWriter w = BeginDiscoveryRequest(true);
  Additions(w, Addition(8, 12) | Addition(10, 12) | Addition(11, 12), 12);
  w.OpenType(features).OpenType({1, 2, 3}).OpenType({0x66});
  Input input(w);
  Owned<GatekeeperRequest> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  EXPECT_EQ(+m->hasFeatureSet, 1U);
  EXPECT_EQ(input.Next(), 1U) << "the length of the second";
  EXPECT_EQ(input.Next(), 0x66U);
}

TEST(GatekeeperRequestTest, FailureInAMemberStopsTheBody) {
  BitWriter w;
  w.Bits(0, 5).Align().Bits(0, 16).OpenType(test::ProtocolIdentifier(4)).Bits(7, 4);
  Input input(Marked(w));
  Owned<GatekeeperRequest> m;
  EXPECT_EQ(Decode(*m, input.reader), kMalformed);
}

// A GatekeeperReject up to its rejectReason.
BitWriter BeginDiscoveryReject(bool extended) {
  return BitWriter().Bit(extended).Bits(0, 2).Align().Bits(0, 16).OpenType(test::ProtocolIdentifier(4));
}

TEST(GatekeeperRejectTest, Reasons) {
  for (uint32_t tag = 0; tag < 4; ++tag) {
    Input input(Marked(BeginDiscoveryReject(false).Bits(tag, 3)));
    Owned<GatekeeperReject> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, tag);
    EXPECT_EQ(+m->rejectReason.isExtension, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
  for (const uint32_t tag : {0U, 2U, 3U, 63U, 64U}) {
    Input input(Marked(BeginDiscoveryReject(false).Bit(true).NormallySmall(tag).OpenType({1, 2})));
    Owned<GatekeeperReject> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, tag);
    EXPECT_EQ(+m->rejectReason.isExtension, 1U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(GatekeeperRejectTest, AltGKInfoInItsAddition) {
  BitWriter gatekeeper;
  gatekeeper.Bit(false).Length(1).Bits(0, 2);
  test::IpAddress(gatekeeper, 5, 1719).Bit(true).Bits(127, 7).Bit(true);
  BitWriter w = BeginDiscoveryReject(true).Bits(3, 3);
  Additions(w, Addition(0, 7) | Addition(6, 7), 7).OpenType(gatekeeper).OpenType({9});
  Input input(Marked(w));
  Owned<GatekeeperReject> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  ASSERT_EQ(+m->altGKInfo.alternateGatekeeperCount, 1);
  EXPECT_EQ(+m->altGKInfo.alternateGatekeeper[0].needToRegister, 1U);
  EXPECT_EQ(+m->altGKInfo.alternateGatekeeper[0].priority, 127);
  EXPECT_EQ(+m->altGKInfo.altGKisPermanent, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GatekeeperConfirmTest, AlgorithmIdentifierInItsAddition) {
  BitWriter w;
  w.Bit(true).Bits(0, 2).Align().Bits(0, 16).OpenType(test::ProtocolIdentifier(3));
  test::IpAddress(w, 2, 1719);
  Additions(w, Addition(4, 11) | Addition(10, 11), 11).OpenType(BitWriter().OpenType({0x2A, 0x86, 0x48})).OpenType({1});
  Input input(Marked(w));
  Owned<GatekeeperConfirm> m;
  ASSERT_EQ(Decode(*m, input.reader), kDecoded);
  ASSERT_EQ(+m->algorithmOID.count, 3U);
  EXPECT_EQ(m->algorithmOID.arcs[2], 840U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(RasMessageTest, UnknownAlternatives) {
  for (uint32_t tag = 25; tag < 32; ++tag) {
    Input input(BitWriter().Bits(tag, 6).Octets(Octets(32, 0)));
    Owned<RasMessageRecord> m;
    EXPECT_EQ(Decode(*m, input.reader), kMalformed);
  }
  for (const uint32_t tag : {7U, 63U, 64U, 256U}) {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(tag).OpenType(Octets(40, 0xFF))));
    Owned<RasMessageRecord> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->choiceTag, tag & 0xFF);
    EXPECT_EQ(+m->isExtension, 1U);
    EXPECT_EQ(+m->gatekeeperRequest.requestSeqNum, 0);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

}  // namespace
}  // namespace kelvra::h225
