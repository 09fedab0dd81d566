#include "kelvra/h245/common/transport_address.h"

#include <gtest/gtest.h>

#include "h225/decoding.h"
#include "per/decoder.h"

namespace kelvra::h245 {
namespace {

using test::Additions;
using test::BitWriter;
using test::DecodeH245;
using test::Input;
using test::kMarker;
using test::Marked;
using test::OctetsAt;
using test::OctetsOf;
using test::Owned;
using test::Rising;
using Octets = std::vector<uint8_t>;

TEST(UnicastAddressTest, LengthWordsOfFixedStringsStayZero) {
  {
    BitWriter w;
    w.Bits(1, 4).Bit(true).Octets(Rising(1, 12));
    Additions(w, 1, 1).OpenType({1});
    Input input(Marked(w));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    EXPECT_EQ(+address->iPXAddress.node.length, 0U);
    EXPECT_EQ(+address->iPXAddress.netnum.length, 0U);
    EXPECT_EQ(+address->iPXAddress.tsapIdentifier.length, 0U);
    EXPECT_EQ(OctetsAt(address->iPXAddress.node.data, 6), Rising(1, 6));
    EXPECT_EQ(OctetsAt(address->iPXAddress.netnum.data, 4), Rising(7, 4));
    EXPECT_EQ(OctetsAt(address->iPXAddress.tsapIdentifier.data, 2), Rising(11, 2));
    EXPECT_EQ(input.Next(), kMarker);
  }
  {
    Input input(Marked(BitWriter().Bits(2, 4).Bit(false).Octets(Rising(1, 16)).Bits(1719, 16)));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    EXPECT_EQ(+address->iP6Address.network.length, 0U);
    EXPECT_EQ(OctetsAt(address->iP6Address.network.data, 16), Rising(1, 16));
    EXPECT_EQ(+address->iP6Address.tsapIdentifier, 1719);
    EXPECT_EQ(input.Next(), kMarker);
  }
  Input input(Marked(BitWriter().Bits(3, 4).Octets(Rising(1, 16))));
  Owned<UnicastAddress> address;
  DecodeH245(*address, input.reader);
  EXPECT_EQ(+address->netBios.length, 0U);
  EXPECT_EQ(OctetsAt(address->netBios.data, 16), Rising(1, 16));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(UnicastAddressTest, SourceRouteCountKeepsItsLow8Bits) {
  constexpr struct { uint32_t sent, kept; } kCases[] = {{0, 0}, {2, 2}, {256, 0}, {300, 44}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bits(4, 4).Bit(true).Bit(true).Octets({10, 0, 0, 1}).Bits(80, 16).Length(c.sent);
    for (uint32_t i = 0; i < c.kept; ++i) w.Bits(0x0A000000 + i, 32);
    Additions(w, 1, 1).OpenType({1});
    Input input(Marked(w));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    const UnicastAddress::IPSourceRouteAddress& source = address->iPSourceRouteAddress;
    EXPECT_EQ(+source.routing.choiceTag, 1);
    EXPECT_EQ(+source.network.length, 0U);
    EXPECT_EQ(+source.routeCount, c.kept);
    EXPECT_EQ(+source.route == nullptr, c.kept == 0);
    for (uint32_t i = 0; i < c.kept; ++i) {
      EXPECT_EQ(+source.route[i].length, 0U);
      EXPECT_EQ(OctetsAt(source.route[i].data, 4), (Octets{10, 0, 0, static_cast<uint8_t>(i)}));
    }
    EXPECT_EQ(input.Next(), kMarker) << c.sent;
  }
}

TEST(UnicastAddressTest, IndicesBeyondTheRootDecodeNothing) {
  for (uint32_t index = 5; index < 8; ++index) {
    Input input(BitWriter().Bits(index, 4).Bits(0b0110, 4));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    EXPECT_EQ(+address->choiceTag, index);
    EXPECT_EQ(PerReadBits(input.reader, 4), 0b0110U);
  }
}

TEST(UnicastAddressTest, Extensions) {
  {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(0).OpenType(BitWriter().Bits(19, 5).Octets(Rising(1, 20)))));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    EXPECT_EQ(OctetsOf(address->nsap), Rising(1, 20));
    EXPECT_EQ(input.Next(), kMarker);
  }
  {
    BitWriter parameter;
    parameter.Bit(true).Octets({0xB5, 1, 2, 3}).OpenType({4, 5});
    Input input(Marked(BitWriter().Bit(true).NormallySmall(1).OpenType(parameter)));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    EXPECT_EQ(+address->nonStandardAddress.nonStandardIdentifier.h221NonStandard.manufacturerCode, 0x0203);
    EXPECT_EQ(OctetsAt(address->nonStandardAddress.data, address->nonStandardAddress.dataLength), (Octets{4, 5}));
    EXPECT_EQ(input.Next(), kMarker);
  }
  for (const uint32_t index : {2U, 256U, 257U}) {
    Input input(Marked(BitWriter().Bit(true).NormallySmall(index).OpenType({9, 9})));
    Owned<UnicastAddress> address;
    DecodeH245(*address, input.reader);
    EXPECT_EQ(+address->choiceTag, index & 0xFF);
    EXPECT_EQ(+address->nsap.length, 0U);
    EXPECT_EQ(input.Next(), kMarker);
  }
}

TEST(MediaAddressTest, ExtensionIndexIsDiscarded) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(3).OpenType({1, 2})));
  Owned<TransportAddress> address;
  DecodeH245(*address, input.reader);
  EXPECT_EQ(+address->isExtension, 1U);
  EXPECT_EQ(+address->choiceTag, 0);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(MediaAddressTest, TruncatedNetworkMovesTheReaderToItsEnd) {
  Input input(BitWriter().Bits(0, 2).Bits(0, 5).Octets({10, 0, 0}));
  Owned<TransportAddress> address;
  DecodeH245(*address, input.reader);
  EXPECT_EQ(+address->unicastAddress.iPAddress.networkLength, 4U);
  EXPECT_EQ(+address->unicastAddress.iPAddress.tsapIdentifier, 0);
  EXPECT_TRUE(PerAtEnd(input.reader));
}

}  // namespace
}  // namespace kelvra::h245
