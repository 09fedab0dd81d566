#include "decode/values.h"

#include "text/utf8.h"

std::string_view WithoutPadding(std::string_view text) { return text.substr(0, text.find_last_not_of('\0') + 1); }

std::optional<uint16_t> CallReference(Node value) {
  constexpr int64_t withoutFlag = 0x7FFF;
  const auto number = value.Number();
  return number ? std::optional(static_cast<uint16_t>(*number & withoutFlag)) : std::nullopt;
}

Node PartyDigits(Node partyNumber) {
  const Node number = partyNumber.Chosen();
  for (const char* digits : {"publicNumberDigits", "privateNumberDigits"}) {
    if (const Node found = number[digits]) return found;
  }
  return number;
}

std::string PartyNumberText(Node element) {
  constexpr uint8_t octet3a = 0x80;  // or above: no digit has this bit set
  auto octets = element.Octets();
  if (!octets.empty() && octets.front() >= octet3a) octets = octets.subspan(1);
  std::string text;
  AppendLatin1(text, octets);
  return std::string(WithoutPadding(text));
}

Codec CodecOf(Node capability) {
  const Node application = capability["application"];
  const Node choice = application ? application : capability;
  return {choice.Alternative(), choice.Chosen()["capabilityIdentifier"]};
}
