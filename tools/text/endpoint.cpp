#include "text/endpoint.h"

#include <algorithm>
#include <stdexcept>

#include "kelvra/text.h"
#include "text/concat.h"
#include "text/number.h"

Endpoint MakeEndpoint(std::span<const uint8_t> address, uint16_t port) {
  if (address.size() != 4 && address.size() != 16) throw std::invalid_argument("address size");
  Endpoint endpoint;
  std::copy(address.begin(), address.end(), endpoint.address.begin());
  endpoint.v6 = address.size() == 16;
  endpoint.port = port;
  return endpoint;
}

std::string ToText(const Endpoint& endpoint) {
  std::string text = endpoint.v6 ? Concat({"[", kelvra::Ipv6Text(endpoint.address.data()), "]"})
                                 : kelvra::Ipv4Text(endpoint.address.data());
  text += ':';
  AppendNumber(text, endpoint.port);
  return text;
}
