// The kinds of protocolIdentifier, the object identifier { itu-t recommendation h 2250 version N }.
#pragma once

#include "../../description.h"

namespace kelvra::h225 {

struct ProtocolIdentifierKind : asn1::ObjectIdentifierKind {};
struct RegistrationProtocolIdentifierKind : asn1::ObjectIdentifierKind {};

// In a call-signalling body. Its version becomes that of the process.
constexpr ProtocolIdentifierKind ProtocolIdentifier() { return {}; }
// In a registration. Its version also decides which additions follow (KELVRA_VERSIONS). Versions other than 1 to 4 are
// refused.
constexpr RegistrationProtocolIdentifierKind RegistrationProtocolIdentifier() { return {}; }

}  // namespace kelvra::h225
