#include "calls/fields.h"

#include <algorithm>

namespace {

constexpr uint16_t kCallReferenceValue = 0x7FFF;

std::string WithoutPadding(std::string text) {
  text.erase(text.find_last_not_of('\0') + 1);
  return text;
}

// A PartyNumber holds its digits directly, or next to the type of number.
Node PartyDigits(Node party_number) {
  const Node number = party_number.Chosen();
  for (const char* digits : {"publicNumberDigits", "privateNumberDigits"}) {
    if (const Node found = number[digits]) return found;
  }
  return number;
}

}  // namespace

std::optional<Guid> ToGuid(Node octets) {
  const auto value = octets.Octets();
  Guid guid{};
  if (value.size() != guid.size()) return std::nullopt;
  std::copy(value.begin(), value.end(), guid.begin());
  return guid == Guid{} ? std::nullopt : std::optional(guid);
}

std::optional<Guid> CallIdentifierOf(Node body) { return ToGuid(body.Find({"callIdentifier", "guid"})); }

std::optional<uint16_t> CallReferenceOf(Node body) {
  const auto value = body["callReferenceValue"].Number();
  if (!value) return std::nullopt;
  return static_cast<uint16_t>(*value & kCallReferenceValue);
}

std::string AliasText(Node alias) {
  const Node chosen = alias.Chosen();
  if (const auto endpoint = ToEndpoint(chosen)) return ToText(*endpoint);
  if (chosen.Name() == "partyNumber") return WithoutPadding(PartyDigits(chosen).Text());
  const std::string text = WithoutPadding(chosen.Text());
  return text.empty() ? std::string(chosen.Name()) : text;
}

void AddAliases(Node list, Party& party) {
  for (const Node alias : list) {
    const std::string text = AliasText(alias);
    if (!text.empty()) AddOnce(party.aliases, text);
  }
}

void AddAddress(const std::optional<Endpoint>& address, Party& party) {
  if (address) AddOnce(party.addresses, *address);
}

std::string PartyNumberText(Node element) {
  auto octets = element.Octets();
  constexpr uint8_t octet_3a = 0x80;  // or above: no digit has this bit set
  if (!octets.empty() && octets[0] >= octet_3a) octets = octets.subspan(1);
  return WithoutPadding({octets.begin(), octets.end()});
}

std::string ReasonText(Node reason) {
  if (!reason) return {};
  if (reason.Is(NodeKind::kRecord)) return std::string(reason.Alternative());
  return reason.Text();
}
