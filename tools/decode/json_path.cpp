#include "decode/json_path.h"

#include "text/hex.h"

namespace {

const Json kNone;

std::optional<Endpoint> EndpointOf(const Json& address, const char* octets, const char* port) {
  const Json& host = Find(address, {octets});
  const Json& number = Find(address, {port});
  if (!host.is_string() || !number.is_number()) return std::nullopt;
  const auto& hex = host.get_ref<const std::string&>();
  if (hex.size() != 8 && hex.size() != 32) return std::nullopt;
  return MakeEndpoint(FromHex(hex), number.get<uint16_t>());
}

}  // namespace

const Json& Find(const Json& json, std::initializer_list<const char*> path) {
  const Json* found = &json;
  for (const char* name : path) {
    if (!found->is_object()) return kNone;
    const auto member = found->find(name);
    if (member == found->end()) return kNone;
    found = &*member;
  }
  return *found;
}

std::string Alternative(const Json& choice) {
  return choice.is_object() && !choice.empty() ? choice.begin().key() : std::string();
}

const Json& Chosen(const Json& choice) { return choice.is_object() && !choice.empty() ? *choice.begin() : kNone; }

const Json& UserInformationBody(const Json& message) {
  return Find(message, {"h323-UserInformation", "h323-uu-pdu", "h323-message-body"});
}

std::optional<Endpoint> ToEndpoint(const Json& address) {
  if (auto endpoint = EndpointOf(address, "ip", "port")) return endpoint;
  if (auto endpoint = EndpointOf(address, "network", "tsapIdentifier")) return endpoint;
  return address.is_object() && address.size() == 1 ? ToEndpoint(Chosen(address)) : std::nullopt;
}
