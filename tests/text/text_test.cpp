// Text of values, including values that no message produces.
#include "kelvra/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "kelvra/kelvra.h"

namespace kelvra {
namespace {

// A block of exactly its size, so that a sanitizer sees a read past it.
template <class T>
std::unique_ptr<T[]> Block(const std::vector<T>& values) {
  auto block = std::make_unique<T[]>(values.size());
  std::copy(values.begin(), values.end(), block.get());
  return block;
}

std::string OfUnits(const std::vector<uint16_t>& units) {
  const auto block = Block(units);
  return TextOf(BMPStringValue{static_cast<uint32_t>(units.size()), block.get()});
}

TEST(TextTest, WideCharactersBecomeUtf8) {
  EXPECT_EQ(OfUnits({'G', 'K', 0}), std::string("GK\0", 3));
  EXPECT_EQ(OfUnits({0x7F, 0x80, 0x7FF, 0x800, 0xFFFF}), "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF");
  EXPECT_EQ(OfUnits({0xD800, 0xDC00, 0xDBFF, 0xDFFF}), "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF");
}

TEST(TextTest, SurrogatesWithoutPartnerAreReplaced) {
  const std::string replacement = "\xEF\xBF\xBD";
  for (const int unit : {0xD800, 0xDBFF, 0xDC00, 0xDFFF})
    EXPECT_EQ(OfUnits({static_cast<uint16_t>(unit)}), replacement) << unit;
  EXPECT_EQ(OfUnits({0xD7FF, 0xE000}), "\xED\x9F\xBF\xEE\x80\x80");
  EXPECT_EQ(OfUnits({0xDC00, 0xDFFF}), replacement + replacement);
  EXPECT_EQ(OfUnits({0xD83D, 'x', 0xD83D, 0xD83D, 0xDE00}), replacement + "x" + replacement + "\xF0\x9F\x98\x80");
}

TEST(TextTest, CharactersAndDigits) {
  const auto characters = Block<uint8_t>({'a', 0x7F, 0x80, 0xE9});
  EXPECT_EQ(CharactersOf({4, characters.get()}), "a\x7F\xC2\x80\xC3\xA9");
  const auto codes = Block<uint8_t>({0, 1, 2, 3, 12, 13, 255});
  EXPECT_EQ(DigitsOf({7, codes.get()}), "#*,09??");
}

TEST(TextTest, ObjectIdentifiersAreDotted) {
  const auto arcs = Block<uint32_t>({0, 0, 8, 2250, 0, 4294967295});
  EXPECT_EQ(TextOf(ObjectIdentifierValue{6, arcs.get()}), "0.0.8.2250.0.4294967295");
}

std::string OfGroups(const std::array<uint16_t, 8>& groups) {
  std::vector<uint8_t> octets;
  for (const uint16_t group : groups) octets.insert(octets.end(), {uint8_t(group >> 8), uint8_t(group & 0xFF)});
  return Ipv6Text(Block(octets).get());
}

TEST(TextTest, Ipv6AddressesFollowRfc5952) {
  EXPECT_EQ(OfGroups({}), "::");
  EXPECT_EQ(OfGroups({0, 0, 0, 0, 0, 0, 0, 1}), "::1");
  EXPECT_EQ(OfGroups({1, 0, 0, 0, 0, 0, 0, 0}), "1::");
  EXPECT_EQ(OfGroups({0x2001, 0xDB8, 0, 0, 0, 0, 0, 1}), "2001:db8::1");
  EXPECT_EQ(OfGroups({0x2001, 0xDB8, 0, 1, 1, 1, 1, 1}), "2001:db8:0:1:1:1:1:1");
  EXPECT_EQ(OfGroups({0x2001, 0, 0, 1, 0, 0, 0, 1}), "2001:0:0:1::1");
  EXPECT_EQ(OfGroups({0x2001, 0xDB8, 0, 0, 1, 0, 0, 1}), "2001:db8::1:0:0:1");
  EXPECT_EQ(OfGroups({0xFFFF, 0x10, 0x200, 0xF, 1, 2, 3, 0}), "ffff:10:200:f:1:2:3:0");
}

// With the alternative of this number, as AlternativeOf counts them.
template <class Record>
Record With(uint32_t alternative) {
  Record record{};
  record.choiceTag = static_cast<uint8_t>(alternative);
  record.isExtension = alternative >= asn1::kFirstExtension ? 1 : 0;
  return record;
}

TEST(TextTest, AddressesHaveTheirPort) {
  const auto v4 = Block<uint8_t>({192, 0, 2, 1});
  const auto v6 = Block<uint8_t>({0x20, 1, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});

  auto h225 = With<h225::TransportAddress>(h225::TransportAddress::kIpAddress);
  h225.ipAddress.ip = {4, v4.get()};
  h225.ipAddress.port = 1720;
  EXPECT_EQ(TextOf(h225), "192.0.2.1:1720");
  h225 = With<h225::TransportAddress>(h225::TransportAddress::kIp6Address);
  h225.ip6Address.ip = {16, v6.get()};
  h225.ip6Address.port = 65535;
  EXPECT_EQ(TextOf(h225), "[2001:db8::1]:65535");

  h245::TransportAddress h245{};
  h245.choiceTag = h245::TransportAddress::kUnicastAddress;
  auto& unicast = h245.unicastAddress;
  unicast.choiceTag = h245::UnicastAddress::kIPAddress;
  unicast.iPAddress.networkLength = 4;
  unicast.iPAddress.network = v4.get();
  unicast.iPAddress.tsapIdentifier = 5004;
  EXPECT_EQ(TextOf(h245), "192.0.2.1:5004");
  unicast = {};
  unicast.choiceTag = h245::UnicastAddress::kIP6Address;
  unicast.iP6Address.network.data = v6.get();
  unicast.iP6Address.tsapIdentifier = 5005;
  EXPECT_EQ(TextOf(h245), "[2001:db8::1]:5005");
  unicast = {};
  unicast.choiceTag = h245::UnicastAddress::kIPSourceRouteAddress;
  unicast.iPSourceRouteAddress.network.data = v4.get();
  unicast.iPSourceRouteAddress.tsapIdentifier = 5006;
  EXPECT_EQ(TextOf(h245), "192.0.2.1:5006");

  h245 = {};
  h245.choiceTag = h245::TransportAddress::kMulticastAddress;
  auto& multicast = h245.multicastAddress;
  multicast.choiceTag = h245::MulticastAddress::kIPAddress;
  multicast.iPAddress.network = {4, v4.get()};
  multicast.iPAddress.tsapIdentifier = 5007;
  EXPECT_EQ(TextOf(h245), "192.0.2.1:5007");
  multicast = {};
  multicast.choiceTag = h245::MulticastAddress::kIP6Address;
  multicast.iP6Address.network = {16, v6.get()};
  multicast.iP6Address.tsapIdentifier = 5008;
  EXPECT_EQ(TextOf(h245), "[2001:db8::1]:5008");
}

TEST(TextTest, EachKindOfAliasAndPartyNumber) {
  using h225::AliasAddress;
  using h225::PartyNumber;
  const auto codes = Block<uint8_t>({4, 5});
  const auto units = Block<uint16_t>({'a', 'b'});
  const auto characters = Block<uint8_t>({'c', 'd'});
  const auto v4 = Block<uint8_t>({192, 0, 2, 1});
  const OctetStringValue digits{2, codes.get()};
  const OctetStringValue string{2, characters.get()};

  auto number = With<PartyNumber>(PartyNumber::kE164Number);
  number.e164Number.publicNumberDigits = digits;
  EXPECT_EQ(TextOf(number), "12");
  for (const auto kind :
       {PartyNumber::kDataPartyNumber, PartyNumber::kTelexPartyNumber, PartyNumber::kNationalStandardPartyNumber}) {
    number = With<PartyNumber>(kind);
    number.dataPartyNumber = digits;
    EXPECT_EQ(TextOf(number), "12") << kind;
  }
  number = With<PartyNumber>(PartyNumber::kPrivateNumber);
  number.privateNumber.privateNumberDigits = digits;
  EXPECT_EQ(TextOf(number), "12");

  auto alias = With<AliasAddress>(AliasAddress::kDialedDigits);
  alias.dialedDigits = digits;
  EXPECT_EQ(TextOf(alias), "12");
  alias = With<AliasAddress>(AliasAddress::kH323ID);
  alias.h323ID = {2, units.get()};
  EXPECT_EQ(TextOf(alias), "ab");
  for (const auto kind : {AliasAddress::kUrlID, AliasAddress::kEmailID}) {
    alias = With<AliasAddress>(kind);
    alias.urlID = string;
    EXPECT_EQ(TextOf(alias), "cd") << kind;
  }
  alias = With<AliasAddress>(AliasAddress::kTransportID);
  alias.transportID.choiceTag = h225::TransportAddress::kIpAddress;
  alias.transportID.ipAddress.ip = {4, v4.get()};
  EXPECT_EQ(TextOf(alias), "192.0.2.1:0");
  alias = With<AliasAddress>(AliasAddress::kPartyNumber);
  alias.partyNumber = number;
  EXPECT_EQ(TextOf(alias), "12");
}

TEST(TextTest, AddressesOfAnotherLengthAreEmpty) {
  const auto octets = Block<uint8_t>({192, 0, 2});
  for (const uint32_t length : {0U, 3U, 5U, 15U, 17U, 0xFFFFFFFFU}) {
    for (const auto tag : {h225::TransportAddress::kIpAddress, h225::TransportAddress::kIp6Address,
                           h225::TransportAddress::kIpSourceRoute}) {
      auto address = With<h225::TransportAddress>(tag);
      address.ipAddress.ip = {length, octets.get()};
      EXPECT_EQ(TextOf(address), "") << length;
    }
    h245::UnicastAddress unicast{};
    unicast.iPAddress.networkLength = length;
    unicast.iPAddress.network = octets.get();
    EXPECT_EQ(TextOf(unicast), "") << length;
  }
}

// An extension alternative of `routing` replaces the tag of the address: the text must not read it as an ipAddress or
// ip6Address.
TEST(TextTest, SourceRouteOfUnknownRoutingKeepsItsAddress) {
  const auto v4 = Block<uint8_t>({192, 0, 2, 1});
  for (uint8_t tag = 0; tag < 8; ++tag) {
    auto address = With<h225::TransportAddress>(tag);
    address.ipSourceRoute.ip = {4, v4.get()};
    address.ipSourceRoute.port = 1720;
    address.ipSourceRoute.routing.isExtension = 1;
    EXPECT_EQ(AlternativeOf(address), h225::TransportAddress::kIpSourceRoute);
    EXPECT_EQ(TextOf(address), "192.0.2.1:1720");
    EXPECT_STREQ(NameOf(address), "ipSourceRoute");
  }
}

TEST(TextTest, NullPointersWithACountAreEmpty) {
  EXPECT_EQ(TextOf(BMPStringValue{0xFFFFFFFF, nullptr}), "");
  EXPECT_EQ(CharactersOf({0xFFFFFFFF, nullptr}), "");
  EXPECT_EQ(DigitsOf({0xFFFFFFFF, nullptr}), "");
  EXPECT_EQ(TextOf(ObjectIdentifierValue{0xFFFFFFFF, nullptr}), "");
  const ElementRange<const uint16_t> range(nullptr, 3);
  EXPECT_EQ(range.size(), 0U);
  EXPECT_TRUE(range.empty());
  EXPECT_EQ(range.begin(), range.end());
}

TEST(TextTest, UnknownAlternativesHaveNeitherNameNorText) {
  for (const bool isExtension : {false, true}) {
    for (uint32_t tag = 0; tag < 256; ++tag) {
      const uint32_t alternative = (isExtension ? asn1::kFirstExtension : 0) + tag;
      const auto alias = With<h225::AliasAddress>(alternative);
      EXPECT_EQ(TextOf(alias), "");
      EXPECT_EQ(NameOf(alias) != nullptr, tag < (isExtension ? 5U : 2U)) << tag;
      const auto number = With<h225::PartyNumber>(alternative);
      EXPECT_EQ(TextOf(number), "");
      EXPECT_EQ(NameOf(number) != nullptr, tag < (isExtension ? 0U : 5U)) << tag;
      const auto reason = With<h225::FacilityReason>(alternative);
      EXPECT_EQ(NameOf(reason) != nullptr, tag < (isExtension ? 7U : 4U)) << tag;
      EXPECT_EQ(AlternativeOf(reason), alternative);
    }
  }
  for (uint32_t value = 0; value < 8; ++value) {
    EXPECT_EQ(NameOf(h225::ScreeningIndicator{value, 0}) != nullptr, value < 4);
  }
}

TEST(TextTest, CausesAreFoundUnderTheExtensionBit) {
  EXPECT_EQ(h225::CauseOf(0x90), h225::Q850Cause::kNormalCallClearing);
  EXPECT_EQ(h225::CauseOf(0x11), h225::Q850Cause::kUserBusy);
}

}  // namespace
}  // namespace kelvra
