// Call identifiers and small shared choices.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

// OCTET STRING (SIZE (16)).
using GloballyUniqueID = OctetStringValue;
using ConferenceIdentifier = GloballyUniqueID;

// BMPString (SIZE (1..128)).
using IdentifierString = BMPStringValue;
using EndpointIdentifier = IdentifierString;
using GatekeeperIdentifier = IdentifierString;

struct CallIdentifier {
  GloballyUniqueID guid;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(guid, DefinedType(OctetString(16)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CallTypeNames {
  enum Alternative : uint32_t;
  static constexpr bool kExtensionIndexIsNotKept = true;
  static constexpr uint32_t kRoots = 4;
  static constexpr const char* kAlternatives[] = {"pointToPoint", "oneToN", "nToOne", "nToN"};
};
using CallType = NullChoice<CallTypeNames>;

KELVRA_NULL_CHOICE(NullChoice, CallModel, 2, "direct", "gatekeeperRouted");
KELVRA_NULL_CHOICE(NullChoice, TransportQOS, 3, "endpointControlled", "gatekeeperControlled", "noControl");
KELVRA_NULL_CHOICE(NullChoice, UseSpecifiedTransport, 2, "tcp", "annexE");

struct PresentationIndicatorNames {
  enum Alternative : uint32_t;
  static constexpr bool kExtensionIndexIsNotKept = true;
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"presentationAllowed", "presentationRestricted",
                                                  "addressNotAvailable"};
};
using PresentationIndicator = NullChoice<PresentationIndicatorNames>;

// ENUMERATED. Its hand-written decoder reads no extension bit: the values come out halved and the reader stops one bit
// short. In an open type the reader still resumes at the right place; in an ExtendedAliasAddress, which is not in an
// open type, everything after it is shifted. `isExtended` is never set.
struct ScreeningIndicator {
  uint32_t value;
  uint32_t isExtended;

  KELVRA_ENUMERATED(value, "userProvidedNotScreened", "userProvidedVerifiedAndPassed", "userProvidedVerifiedAndFailed",
                    "networkProvided")
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
