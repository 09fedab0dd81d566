// Values that many messages carry: identifiers, aliases, addresses.
#pragma once

#include <optional>
#include <string>

#include "calls/call.h"
#include "decode/decoded_message.h"

// The value of a GloballyUniqueID; empty if it is absent, cut short or zero.
std::optional<Guid> ToGuid(Node octets);
// The callIdentifier of a message, or of an element of perCallInfo.
std::optional<Guid> CallIdentifierOf(Node body);

std::optional<uint16_t> CallReferenceOf(Node body);

std::string AliasText(Node alias);
void AddAliases(Node list, Party& party);
void AddAddress(const std::optional<Endpoint>& address, Party& party);

// The alternative of a CHOICE or the identifier of an ENUMERATED; other values as text.
std::string ReasonText(Node reason);
