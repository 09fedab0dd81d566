#include "text/endpoint.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "text/concat.h"

namespace {

std::string V4Text(const std::array<uint8_t, 16>& address) {
  std::string text = std::to_string(address[0]);
  for (size_t i = 1; i < 4; ++i) text += Concat({".", std::to_string(address[i])});
  return text;
}

using Groups = std::array<uint16_t, 8>;

Groups GroupsOf(const std::array<uint8_t, 16>& address) {
  Groups groups{};
  for (size_t i = 0; i < groups.size(); ++i) {
    groups[i] = static_cast<uint16_t>(address[2 * i] << 8 | address[2 * i + 1]);
  }
  return groups;
}

struct Run {
  size_t start = 0;
  size_t length = 0;
};

Run LongestZeroRun(const Groups& groups) {
  Run longest;
  Run current;
  for (size_t i = 0; i < groups.size(); ++i) {
    if (groups[i] != 0) {
      current = {i + 1, 0};
    } else if (++current.length > longest.length) {
      longest = current;
    }
  }
  // RFC 5952 4.2.2: a single group is not shortened.
  return longest.length > 1 ? longest : Run{groups.size(), 0};
}

std::string V6Text(const std::array<uint8_t, 16>& address) {
  const Groups groups = GroupsOf(address);
  const Run zeros = LongestZeroRun(groups);
  std::string text;
  for (size_t i = 0; i < groups.size();) {
    if (i == zeros.start) {
      text += "::";
      i += zeros.length;
      continue;
    }
    if (!text.empty() && text.back() != ':') text += ':';
    std::array<char, 4> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), groups[i], 16).ptr;
    text.append(digits.data(), end);
    ++i;
  }
  return text;
}

}  // namespace

Endpoint MakeEndpoint(std::span<const uint8_t> address, uint16_t port) {
  if (address.size() != 4 && address.size() != 16) throw std::invalid_argument("address size");
  Endpoint endpoint;
  std::copy(address.begin(), address.end(), endpoint.address.begin());
  endpoint.v6 = address.size() == 16;
  endpoint.port = port;
  return endpoint;
}

std::string ToText(const Endpoint& endpoint) {
  const std::string port = std::to_string(endpoint.port);
  return endpoint.v6 ? Concat({"[", V6Text(endpoint.address), "]:", port})
                     : Concat({V4Text(endpoint.address), ":", port});
}
