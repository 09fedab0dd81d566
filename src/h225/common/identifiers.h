// Call identifiers and small shared choices.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../../record/walk.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    WalkOctets(v, "guid", m.guid);
  }
};

struct CallTypeNames {
  static constexpr uint32_t kRoots = 4;
  static constexpr const char* kAlternatives[] = {"pointToPoint", "oneToN", "nToOne", "nToN"};
};
using CallType = NullChoice<CallTypeNames>;

struct CallModelNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"direct", "gatekeeperRouted"};
};
using CallModel = NullChoice<CallModelNames>;

struct TransportQOSNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"endpointControlled", "gatekeeperControlled", "noControl"};
};
using TransportQOS = NullChoice<TransportQOSNames>;

struct UseSpecifiedTransportNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"tcp", "annexE"};
};
using UseSpecifiedTransport = NullChoice<UseSpecifiedTransportNames>;

struct PresentationIndicatorNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"presentationAllowed", "presentationRestricted",
                                                  "addressNotAvailable"};
};
using PresentationIndicator = NullChoice<PresentationIndicatorNames>;

// ENUMERATED; `isExtended` is never set.
struct ScreeningIndicator {
  uint32_t value;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    constexpr const char* kIdentifiers[] = {"userProvidedNotScreened", "userProvidedVerifiedAndPassed",
                                            "userProvidedVerifiedAndFailed", "networkProvided"};
    v.EnumeratedValue(m.value, m.value < 4 ? kIdentifiers[m.value] : nullptr);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
