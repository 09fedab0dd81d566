// Registration: the meaning of the additions depends on the H.225.0 version that the message names.
#include "kelvra/h225/ras/registration.h"

#include <gtest/gtest.h>

#include "h225/common/protocol_version.h"
#include "h225/decoding.h"
#include "per/decoder.h"

namespace kelvra::h225 {
namespace {

using test::Addition;
using test::Additions;
using test::BitWriter;
using test::Input;
using test::kMarker;
using test::Marked;
using test::Owned;
using test::ProtocolIdentifier;
using Octets = std::vector<uint8_t>;

// A RegistrationRequest up to its additions.
BitWriter BeginRegistrationRequest(const Octets& protocolIdentifier, bool extended) {
  BitWriter w;
  w.Bit(extended).Bits(0, 3).Align().Bits(0, 16).OpenType(protocolIdentifier);
  w.Bit(true).Length(0).Length(0);
  test::EmptyEndpointType(w);
  return w.Bits(0, 3).Bit(false).Align().Bits(0xB5, 8).Bits(0, 8).Bits(18, 16);
}

// A RegistrationConfirm up to its additions.
BitWriter BeginRegistrationConfirm(const Octets& protocolIdentifier, bool extended) {
  BitWriter w;
  w.Bit(extended).Bits(0, 3).Align().Bits(0, 16).OpenType(protocolIdentifier).Length(0);
  return w.Bits(0, 7).Align().Bits('E', 16);
}

// A RegistrationReject up to its reason.
BitWriter BeginRegistrationReject(uint8_t version) {
  return BitWriter().Bits(0, 3).Align().Bits(0, 16).OpenType(ProtocolIdentifier(version));
}

// A BOOLEAN, as well as AlternateTransportAddresses with an empty annexE.
const Octets kBooleanOrAddresses = {0x40, 0x00};
const Octets kTrue = {0x80};

// The additions keepAlive, maintainConnection, the tenth, multipleCalls and an unknown one.
Octets ExtendedRequest(uint8_t version) {
  BitWriter w = BeginRegistrationRequest(ProtocolIdentifier(version), true);
  Additions(w, Addition(5, 22) | Addition(8, 22) | Addition(9, 22) | Addition(14, 22) | Addition(21, 22), 22);
  return Marked(w.OpenType(kTrue).OpenType(kTrue).OpenType(kBooleanOrAddresses).OpenType(kTrue).OpenType({1, 2, 3}));
}

// A preGrantedARQ with four additions, the fourth of which is `annexE`, and three octets after it.
Octets ConfirmWithPreGrant(uint8_t version) {
  BitWriter grant;
  grant.Bit(true).Bits(0b1010, 4);
  Additions(grant, 0b1111, 4).OpenType({0, 9}).OpenType({0, 7}).OpenType(kBooleanOrAddresses).OpenType({0x40});
  BitWriter w = BeginRegistrationConfirm(ProtocolIdentifier(version), true);
  return Additions(w, Addition(6, 7), 7).OpenType(grant).Octets({0, 0, 0});
}

// Which version-dependent members a message had.
struct Reading {
  uint32_t keepAlive, maintainConnection, versionThreeBoolean, alternateTransportAddresses, multipleCalls;
  bool complete;

  bool operator==(const Reading&) const = default;
};

Reading ReadRequest(const Octets& octets) {
  Input input(octets);
  Owned<RegistrationRequest> m;
  const bool decoded = Decode(*m, input.reader) == kDecoded;
  return {m->hasKeepAlive & m->keepAlive,
          m->hasMaintainConnection & m->maintainConnection,
          m->hasVersionThreeBoolean,
          m->hasAlternateTransportAddresses & m->alternateTransportAddresses.hasAnnexE,
          m->hasMultipleCalls & m->multipleCalls,
          decoded && input.Next() == kMarker};
}

// The unknown additions of preGrantedARQ are counted anew, so the confirm skips as many open types after it.
struct Grant {
  uint32_t irrFrequencyInCall, totalBandwidthRestriction;
  uint32_t versionThreeBoolean, alternateTransportAddresses, useSpecifiedTransport;
  uint32_t octetsLeft;

  bool operator==(const Grant&) const = default;
};

Grant ReadGrant(const Octets& octets) {
  Input input(octets);
  Owned<RegistrationConfirm> m;
  EXPECT_EQ(Decode(*m, input.reader), kDecoded);
  const RegistrationConfirm::PreGrantedARQ& grant = m->preGrantedARQ;
  return {grant.irrFrequencyInCall,
          grant.totalBandwidthRestriction,
          grant.hasVersionThreeBoolean,
          grant.hasAlternateTransportAddresses & grant.alternateTransportAddresses.hasAnnexE,
          grant.hasUseSpecifiedTransport & grant.useSpecifiedTransport.choiceTag,
          PerOctetsLeft(input.reader)};
}

constexpr struct {
  uint8_t version;
  Reading request;
  Grant grant;
  int32_t mode;
} kVersions[] = {
    {1, {1, 0, 0, 0, 0, true}, {10, 7, 0, 0, 0, 1}, 0},
    {2, {1, 0, 0, 0, 0, true}, {10, 7, 0, 0, 0, 1}, 0},
    {3, {1, 1, 1, 0, 0, true}, {10, 7, 1, 0, 0, 2}, 1},
    {4, {1, 1, 0, 1, 1, true}, {10, 7, 0, 1, 1, 3}, 2},
};

TEST(RegistrationTest, AdditionsAreThoseOfTheVersionNamed) {
  for (const auto& v : kVersions) {
    SCOPED_TRACE(v.version);
    EXPECT_EQ(ReadRequest(ExtendedRequest(v.version)), v.request);
    EXPECT_EQ(ProtocolVersionMode(), v.mode);
    EXPECT_EQ(ReadGrant(ConfirmWithPreGrant(v.version)), v.grant);
    EXPECT_EQ(ProtocolVersionMode(), v.mode);
  }
}

TEST(RegistrationTest, UnknownVersionIsRefusedAtOnce) {
  ASSERT_TRUE(ReadRequest(ExtendedRequest(2)).complete);
  const Octets kIdentifiers[] = {
      ProtocolIdentifier(0),
      ProtocolIdentifier(5),
      {0x00, 0x08, 0x91, 0x4A, 0x00},  // one arc too few
      {0x00, 0x08, 0x91, 0x4A, 0x00, 0x04, 0x04},
      {},
  };
  for (const Octets& identifier : kIdentifiers) {
    SCOPED_TRACE(testing::PrintToString(identifier));
    Input request(Marked(BeginRegistrationRequest(identifier, false)));
    Owned<RegistrationRequest> m;
    EXPECT_EQ(Decode(*m, request.reader), kUnsupportedVersion);
    EXPECT_TRUE(request.AtExactEnd());
    EXPECT_EQ(+m->discoveryComplete, 0U);

    Input confirm(Marked(BeginRegistrationConfirm(identifier, false)));
    Owned<RegistrationConfirm> c;
    EXPECT_EQ(Decode(*c, confirm.reader), kUnsupportedVersion);
    EXPECT_TRUE(confirm.AtExactEnd());
    EXPECT_EQ(ProtocolVersionMode(), kVersion2Mode);
  }
}

TEST(RegistrationTest, RejectNamesAnyVersion) {
  ASSERT_TRUE(ReadRequest(ExtendedRequest(4)).complete);
  for (const uint8_t version : {uint8_t{2}, uint8_t{9}}) {
    Input input(Marked(BeginRegistrationReject(version).Bits(6, 4)));
    Owned<RegistrationReject> m;
    ASSERT_EQ(Decode(*m, input.reader), kDecoded);
    EXPECT_EQ(+m->rejectReason.choiceTag, 6);
    EXPECT_EQ(input.Next(), kMarker);
    EXPECT_EQ(ProtocolVersionMode(), kVersion4Mode);
  }
}

}  // namespace
}  // namespace kelvra::h225
