// Internet addresses with ports, as octets and as text.
#pragma once

#include <array>
#include <bit>
#include <compare>
#include <cstdint>
#include <span>
#include <string>
#include <tuple>

struct Endpoint {
  std::array<uint8_t, 16> address{};
  bool v6 = false;
  uint16_t port = 0;

  bool operator==(const Endpoint& other) const { return Key() == other.Key(); }
  // The order has no meaning.
  std::strong_ordering operator<=>(const Endpoint& other) const { return Key() <=> other.Key(); }

 private:
  // Numbers compare faster than octets.
  std::tuple<uint64_t, uint64_t, bool, uint16_t> Key() const {
    const auto [first, second] = std::bit_cast<std::array<uint64_t, 2>>(address);
    return {first, second, v6, port};
  }
};

// `address` holds 4 octets (IPv4) or 16 (IPv6); any other number throws std::invalid_argument.
Endpoint MakeEndpoint(std::span<const uint8_t> address, uint16_t port);

// "192.0.2.1:1720" or "[2001:db8::1]:1720", the latter by RFC 5952.
std::string ToText(const Endpoint& endpoint);
