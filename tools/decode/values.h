// Values that many messages carry, as a person reads them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "decode/tree.h"

// Drops the NUL characters with which some equipment pads identifiers.
std::string_view WithoutPadding(std::string_view text);

// A call reference without the flag bit that shows which side allocated it, so that both sides of a call show the same.
std::optional<uint16_t> CallReference(Node value);

// A PartyNumber holds its digits directly, or next to the type of number.
Node PartyDigits(Node partyNumber);

// The digits of a Q.931 party number element in UTF-8, without octet 3a and padding.
std::string PartyNumberText(Node element);

// The codec of a capability. A generic one has an identifier.
struct Codec {
  std::string_view name;
  Node identifier;
};
Codec CodecOf(Node capability);
