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
  EXPECT_EQ(OfUnits({0xD83D, 0xDE00, 0xDBFF, 0xDFFF}), "\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
}

TEST(TextTest, SurrogatesWithoutPartnerAreReplaced) {
  const std::string replacement = "\xEF\xBF\xBD";
  EXPECT_EQ(OfUnits({0xD83D}), replacement);
  EXPECT_EQ(OfUnits({0xDE00, 0xD83D}), replacement + replacement);
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

template <class Record>
Record With(uint8_t tag, bool isExtension = false) {
  Record record{};
  record.choiceTag = tag;
  record.isExtension = isExtension ? 1 : 0;
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
  h245.unicastAddress.choiceTag = h245::UnicastAddress::kIPAddress;
  h245.unicastAddress.iPAddress.networkLength = 4;
  h245.unicastAddress.iPAddress.network = v4.get();
  h245.unicastAddress.iPAddress.tsapIdentifier = 5004;
  EXPECT_EQ(TextOf(h245), "192.0.2.1:5004");
  h245.unicastAddress = {};
  h245.unicastAddress.choiceTag = h245::UnicastAddress::kIP6Address;
  h245.unicastAddress.iP6Address.network.data = v6.get();
  EXPECT_EQ(TextOf(h245), "[2001:db8::1]:0");
  h245 = {};
  h245.choiceTag = h245::TransportAddress::kMulticastAddress;
  h245.multicastAddress.choiceTag = h245::MulticastAddress::kIPAddress;
  h245.multicastAddress.iPAddress.network = {4, v4.get()};
  EXPECT_EQ(TextOf(h245), "192.0.2.1:0");
}

TEST(TextTest, AddressesOfAnotherLengthAreEmpty) {
  const auto octets = Block<uint8_t>({192, 0, 2});
  for (const uint32_t length : {0U, 3U, 5U, 15U, 17U, 0xFFFFFFFFU}) {
    for (const auto tag : {h225::TransportAddress::kIpAddress, h225::TransportAddress::kIp6Address,
                           h225::TransportAddress::kIpSourceRoute}) {
      auto address = With<h225::TransportAddress>(static_cast<uint8_t>(tag));
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
    for (int tag = 0; tag < 256; ++tag) {
      const auto alias = With<h225::AliasAddress>(static_cast<uint8_t>(tag), isExtension);
      EXPECT_EQ(TextOf(alias), "");
      EXPECT_EQ(NameOf(alias) != nullptr, tag < (isExtension ? 5 : 2)) << tag;
      const auto number = With<h225::PartyNumber>(static_cast<uint8_t>(tag), isExtension);
      EXPECT_EQ(TextOf(number), "");
      EXPECT_EQ(NameOf(number) != nullptr, tag < (isExtension ? 0 : 5)) << tag;
      const auto reason = With<h225::FacilityReason>(static_cast<uint8_t>(tag), isExtension);
      EXPECT_EQ(NameOf(reason) != nullptr, tag < (isExtension ? 7 : 4)) << tag;
      EXPECT_EQ(AlternativeOf(reason), (isExtension ? 0x10000U : 0U) + static_cast<uint32_t>(tag));
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
