// Internet addresses with ports, as octets and as text.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <span>
#include <string>

struct Endpoint {
  std::array<uint8_t, 16> address{};
  bool v6 = false;
  uint16_t port = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): taken for a pointer compared with 0
  auto operator<=>(const Endpoint&) const = default;
};

// `address` holds 4 octets (IPv4) or 16 (IPv6); any other number throws std::invalid_argument.
Endpoint MakeEndpoint(std::span<const uint8_t> address, uint16_t port);

// "192.0.2.1:1720" or "[2001:db8::1]:1720", the latter by RFC 5952.
std::string ToText(const Endpoint& endpoint);
