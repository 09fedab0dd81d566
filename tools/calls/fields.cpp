#include "calls/fields.h"

#include <algorithm>

#include "decode/values.h"

std::optional<Guid> ToGuid(Node octets) {
  const auto value = octets.Octets();
  Guid guid{};
  if (value.size() != guid.size()) return std::nullopt;
  std::copy(value.begin(), value.end(), guid.begin());
  return guid == Guid{} ? std::nullopt : std::optional(guid);
}

std::optional<Guid> CallIdentifierOf(Node body) { return ToGuid(body.Find({"callIdentifier", "guid"})); }

std::optional<uint16_t> CallReferenceOf(Node body) { return CallReference(body["callReferenceValue"]); }

std::string AliasText(Node alias) {
  const Node chosen = alias.Chosen();
  if (const auto endpoint = ToEndpoint(chosen)) return ToText(*endpoint);
  if (chosen.Name() == "partyNumber") return std::string(WithoutPadding(PartyDigits(chosen).Text()));
  const std::string text(WithoutPadding(chosen.Text()));
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

std::string ReasonText(Node reason) {
  if (!reason) return {};
  if (reason.Is(NodeKind::kRecord)) return std::string(reason.Alternative());
  return reason.Text();
}
