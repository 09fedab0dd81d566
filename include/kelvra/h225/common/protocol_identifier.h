// The kinds of protocolIdentifier, the object identifier { itu-t recommendation h 2250 version N }.
#pragma once

#include "../../description.h"

namespace kelvra::h225 {

struct ProtocolIdentifierKind : asn1::ObjectIdentifierKind {};
struct RegistrationProtocolIdentifierKind : asn1::ObjectIdentifierKind {};

// That of a call-signalling body, whose version becomes that of the process.
constexpr ProtocolIdentifierKind ProtocolIdentifier() { return {}; }
// That of a registration, whose version also decides which additions follow (KELVRA_VERSIONS). One of no version from
// 1 to 4 is refused.
constexpr RegistrationProtocolIdentifierKind RegistrationProtocolIdentifier() { return {}; }

}  // namespace kelvra::h225
