#include "kelvra/h225/common/endpoint_type.h"

#include <gtest/gtest.h>

#include <array>

#include "h225/decoding.h"
#include "kelvra/h225/common/non_standard.h"
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
using test::TextOf;
using Octets = std::vector<uint8_t>;

// SupportedProtocols: h310 (index 1) with nothing in it; 7 bits.
BitWriter& EmptyH310(BitWriter& w) { return w.Bits(1, 5).Bits(0, 2); }

// A list of `count` such protocols, of which `sent` are in the message.
BitWriter Protocols(uint32_t count, uint32_t sent) {
  BitWriter w;
  w.Length(count);
  for (uint32_t i = 0; i < sent; ++i) EmptyH310(w);
  return w;
}

TEST(NonStandardParameterTest, EmptyDataHasNoBlock) {
  Input input(Marked(BitWriter().Bits(0, 2).OpenType({0x2A}).Length(0)));
  Owned<NonStandardParameter> parameter;
  ASSERT_EQ(Decode(*parameter, input.reader), kDecoded);
  EXPECT_EQ(+parameter->data.length, 0U);
  EXPECT_TRUE(+parameter->data.data == nullptr);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(NonStandardParameterTest, H221NonStandardMayCarryAdditions) {
  BitWriter w;
  w.Bits(1, 2).Bit(true).Octets({0xB5, 0x01, 0x80, 0x02});
  Additions(w, 0b11, 2).OpenType({1}).OpenType({2});
  w.OpenType({0xDA, 0x7A});
  Input input(Marked(w));
  Owned<NonStandardParameter> parameter;
  ASSERT_EQ(Decode(*parameter, input.reader), kDecoded);
  const H221NonStandard& vendor = parameter->nonStandardIdentifier.h221NonStandard;
  EXPECT_EQ(+vendor.t35CountryCode, 0xB5);
  EXPECT_EQ(+vendor.t35Extension, 1);
  EXPECT_EQ(+vendor.manufacturerCode, 0x8002);
  EXPECT_EQ(+vendor.isExtended, 1U);
  EXPECT_EQ(OctetsOf(parameter->data), (Octets{0xDA, 0x7A}));
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(NonStandardParameterTest, UnknownIdentifierKeepsItsIndexAndTheData) {
  Input input(Marked(BitWriter().Bit(true).NormallySmall(1).OpenType({1, 2}).OpenType({3})));
  Owned<NonStandardParameter> parameter;
  ASSERT_EQ(Decode(*parameter, input.reader), kDecoded);
  EXPECT_EQ(+parameter->nonStandardIdentifier.choiceTag, 1);
  EXPECT_EQ(+parameter->nonStandardIdentifier.isExtension, 1U);
  EXPECT_EQ(OctetsOf(parameter->data), Octets{3});
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(VendorIdentifierTest, StringsOf1To256OctetsAndUnknownAdditions) {
  BitWriter w;
  w.Bits(0b111, 3).Bit(false).Octets({0xB5, 0, 0, 9});
  w.Bits(255, 8).Octets(Octets(256, 'p')).Bits(0, 8).Octets({'v'});
  Additions(w, 1, 1).OpenType({0x2A, 0x03});  // enterpriseNumber
  Input input(Marked(w));
  Owned<VendorIdentifier> vendor;
  ASSERT_EQ(Decode(*vendor, input.reader), kDecoded);
  EXPECT_EQ(TextOf(vendor->productId), std::string(256, 'p'));
  EXPECT_EQ(TextOf(vendor->versionId), "v");
  EXPECT_EQ(+vendor->isExtended, 1U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(EndpointTypeTest, FlagsWithoutAdditions) {
  Input input(Marked(BitWriter().Bits(0, 7).Bits(0b10, 2)));
  Owned<EndpointType> type;
  ASSERT_EQ(Decode(*type, input.reader), kDecoded);
  EXPECT_EQ(+type->mc, 1U);
  EXPECT_EQ(+type->undefinedNode, 0U);
  EXPECT_EQ(+type->isExtended, 0U);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(EndpointTypeTest, TunnelledProtocolsAndUnknownAdditions) {
  BitWriter list;
  list.Length(2);
  list.Bits(0b01, 2).Bits(0, 2).OpenType({0x2A, 0x05}).Bits(1, 6).Octets({'s', '1'});
  list.Bits(0, 2).Bits(1, 2).Bits(0b01, 2).Bits(2, 6).Octets({'i', 's', 'o'}).Bits(0, 6).Octets({'v'});
  BitWriter w;
  w.Bit(true).Bits(0, 8);
  Additions(w, 0b0111, 4).OpenType(list).OpenType({1, 2, 3}).OpenType({4});
  Input input(Marked(w));
  Owned<EndpointType> type;
  ASSERT_EQ(Decode(*type, input.reader), kDecoded);
  EXPECT_EQ(+type->hasSet, 0U);
  ASSERT_EQ(+type->supportedTunnelledProtocolsCount, 2);
  const TunnelledProtocol* protocols = type->supportedTunnelledProtocols;
  EXPECT_EQ(+protocols[0].id.tunnelledProtocolObjectID.count, 3U);
  EXPECT_EQ(TextOf(protocols[0].subIdentifier), "s1");
  EXPECT_EQ(+protocols[1].id.choiceTag, 1);
  EXPECT_EQ(TextOf(protocols[1].id.tunnelledProtocolAlternateID.protocolType), "iso");
  EXPECT_EQ(TextOf(protocols[1].id.tunnelledProtocolAlternateID.protocolVariant), "v");
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(GatewayInfoTest, ProtocolCountKeepsItsLow8Bits) {
  constexpr struct { uint32_t sent, kept; } kCases[] = {{0, 0}, {3, 3}, {256, 0}, {300, 44}};
  for (const auto& c : kCases) {
    BitWriter w;
    w.Bits(0b010, 3).Octets(Protocols(c.sent, c.kept));
    Input input(Marked(w));
    Owned<GatewayInfo> gateway;
    ASSERT_EQ(Decode(*gateway, input.reader), kDecoded);
    EXPECT_EQ(+gateway->hasProtocol, 1U);
    EXPECT_EQ(+gateway->protocolCount, c.kept);
    EXPECT_EQ(+gateway->protocol == nullptr, c.kept == 0);
    for (uint32_t i = 0; i < c.kept; ++i) EXPECT_EQ(+gateway->protocol[i].choiceTag, 1);
    EXPECT_EQ(input.Next(), kMarker) << c.sent;
  }
}

TEST(McuInfoTest, ProtocolIsAnAddition) {
  BitWriter w;
  w.Bits(0b10, 2);
  Additions(w, 0b101, 3).OpenType(Protocols(2, 2)).OpenType({1});
  Input input(Marked(w));
  Owned<McuInfo> mcu;
  ASSERT_EQ(Decode(*mcu, input.reader), kDecoded);
  EXPECT_EQ(+mcu->hasProtocol, 1U);
  EXPECT_EQ(+mcu->protocolCount, 2);
  EXPECT_EQ(+mcu->protocol[1].choiceTag, 1);
  EXPECT_EQ(input.Next(), kMarker);
}

TEST(SupportedProtocolsTest, RootIndices) {
  for (uint32_t index = 1; index < 9; ++index) {
    BitWriter w;
    w.Bits(index, 5).Bits(0b10, 2);
    BitWriter rates;
    rates.Length(1).Bits(0b001, 3).Bits(1, 2).Align().Bits(0x1234, 16).Bits(255, 8);
    BitWriter prefixes;
    prefixes.Length(1).Bits(0, 2).Bits(0, 2).Bits(0, 7).Align().Bits(4, 4);
    Additions(w, 0b111, 3).OpenType(rates).OpenType(prefixes).OpenType({1});
    Input input(Marked(w));
    Owned<SupportedProtocols> protocols;
    ASSERT_EQ(Decode(*protocols, input.reader), kDecoded);
    EXPECT_EQ(+protocols->choiceTag, index);
    const ProtocolCaps& caps = protocols->h310;  // all eight are laid out alike
    ASSERT_EQ(+caps.dataRatesSupportedCount, 1);
    EXPECT_EQ(+caps.dataRatesSupported[0].channelRate, 0x1234U);
    EXPECT_EQ(+caps.dataRatesSupported[0].channelMultiplier, 256)
        << "256 values from 1 on: one octet on the wire, two in the record";
    ASSERT_EQ(+caps.supportedPrefixesCount, 1);
    EXPECT_EQ(OctetsOf(caps.supportedPrefixes[0].prefix.dialedDigits), Octets{4});
    EXPECT_EQ(input.Next(), kMarker) << index;
  }
  for (uint32_t index = 9; index < 16; ++index) {
    Input input(BitWriter().Bits(index, 5).Octets(Rising(1, 8)));
    Owned<SupportedProtocols> protocols;
    EXPECT_EQ(Decode(*protocols, input.reader), kMalformed) << index;
  }
}

TEST(SupportedProtocolsTest, LaterExtensionsAreSkipped) {
  for (const uint32_t index : {2U, 64U, 256U, 257U}) {  // 2 is sip
    Input input(Marked(BitWriter().Bit(true).NormallySmall(index).OpenType({0xFF, 0xFF})));
    Owned<SupportedProtocols> protocols;
    ASSERT_EQ(Decode(*protocols, input.reader), kDecoded);
    EXPECT_EQ(+protocols->choiceTag, index & 0xFF);
    EXPECT_EQ(+protocols->isExtension, 1U);
    EXPECT_EQ(+protocols->nonStandardProtocol.hasNonStandardData, 0U) << index;
    EXPECT_EQ(input.Next(), kMarker) << index;
  }
}

// What the H.245 decoders within cannot report.
TEST(SupportedProtocolsTest, T38FaxThatCannotBeReadIsRefused) {
  constexpr struct {
    std::array<uint8_t, 11> octets;
    size_t count;
    Status status;
  } kCases[] = {
      {{0x81, 0x03, 0x00, 0x00, 0x70, 0x00}, 6, kMalformed},               // t38FaxProtocol has no root index 7
      {{0x81, 0x07, 0x48, 0xB5, 0x00, 0x00, 0x12, 0x7F}, 11, kExhausted},  // t38FaxProfile begins at the end
  };
  for (const auto& c : kCases) {
    Input input(Octets(c.octets.begin(), c.octets.begin() + c.count));
    Owned<SupportedProtocols> protocols;
    EXPECT_EQ(Decode(*protocols, input.reader), c.status) << c.count;
  }
}

}  // namespace
}  // namespace kelvra::h225
