// Addresses of separate stacks.
#pragma once

#include "../common/transport_address.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct Q2931Address {
  struct Address {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      OctetStringValue internationalNumber;
      OctetStringValue nsapAddress;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(internationalNumber, NumericString(1, 16));
      KELVRA_ALTERNATIVE(nsapAddress, OctetString(1, 20));
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  Address address;
  uint32_t hasSubaddress;
  OctetStringValue subaddress;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(address, InlineType());
    KELVRA_OPTIONAL(hasSubaddress, subaddress, OctetString(1, 20));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct NetworkAccessParameters {
  KELVRA_NULL_CHOICE(NullChoice, Distribution, 2, "unicast", "multicast");

  struct NetworkAddress {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      Q2931Address q2931Address;
      OctetStringValue e164Address;
      TransportAddress localAreaAddress;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(q2931Address, DefinedType());
      KELVRA_ALTERNATIVE(e164Address, NumberDigits(1, 128));
      KELVRA_ALTERNATIVE(localAreaAddress, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  KELVRA_NULL_CHOICE(NullChoice, T120SetupProcedure, 3, "originateCall", "waitForCall", "issueQuery");

  uint32_t hasDistribution;
  Distribution distribution;
  NetworkAddress networkAddress;
  uint32_t associateConference;
  uint32_t hasExternalReference;
  OctetStringValue externalReference;
  uint32_t isExtended;
  uint32_t hasT120SetupProcedure;
  T120SetupProcedure t120SetupProcedure;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasDistribution, distribution, DefinedType());
    KELVRA_MEMBER(networkAddress, InlineType());
    KELVRA_MEMBER(associateConference, Boolean());
    KELVRA_OPTIONAL(hasExternalReference, externalReference, OctetString(1, 255));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasT120SetupProcedure, t120SetupProcedure, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
