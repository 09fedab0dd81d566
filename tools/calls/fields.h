// What messages say in several places: identifiers, aliases, addresses.
#pragma once

#include <optional>
#include <string>

#include "calls/call.h"
#include "decode/decoded_message.h"

// The value of a GloballyUniqueID; none where it is absent, cut short or zero.
std::optional<Guid> ToGuid(Node octets);
// The callIdentifier of a message, or of an element of perCallInfo.
std::optional<Guid> CallIdentifierOf(Node body);

// Without the flag that shows who allocated it.
std::optional<uint16_t> CallReferenceOf(Node body);

// Without the NUL characters with which some equipment fills identifiers up.
std::string AliasText(Node alias);
void AddAliases(Node list, Party& party);
void AddAddress(const std::optional<Endpoint>& address, Party& party);

// The digits of a party number element of Q.931, of which the octet 3a may be part.
std::string PartyNumberText(Node element);

// The alternative of a CHOICE or the identifier of an ENUMERATED; other values as text.
std::string ReasonText(Node reason);
