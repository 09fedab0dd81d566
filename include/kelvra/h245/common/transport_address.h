// Media addresses (H.245 TransportAddress).
#pragma once

#include "non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// The lengths of fixed-size strings stay zero, except that of an iPAddress.
struct UnicastAddress {
  struct IPAddress {
    uint32_t networkLength;  // 4
    uint8_t* network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(network, OctetStringOf(KELVRA_PLACE(networkLength), 4));
      KELVRA_MEMBER(tsapIdentifier, Integer(0, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct IPXAddress {
    OctetStringValue node;
    OctetStringValue netnum;
    OctetStringValue tsapIdentifier;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(node, UncountedOctetString(6));
      KELVRA_MEMBER(netnum, UncountedOctetString(4));
      KELVRA_MEMBER(tsapIdentifier, UncountedOctetString(2));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct IP6Address {
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(network, UncountedOctetString(16));
      KELVRA_MEMBER(tsapIdentifier, Integer(0, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct Routing {
    uint8_t choiceTag;
    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(strict);
      KELVRA_NULL(loose);
    KELVRA_END
  };

  struct IPSourceRouteAddress {
    Routing routing;
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint8_t routeCount;
    OctetStringValue* route;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(routing, InlineType());
      KELVRA_MEMBER(network, UncountedOctetString(4));
      KELVRA_MEMBER(tsapIdentifier, Integer(0, 65535));
      KELVRA_MEMBER_LIST(route, SequenceOf(UncountedOctetString(4)));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    IPAddress iPAddress;
    IPXAddress iPXAddress;
    IP6Address iP6Address;
    OctetStringValue netBios;
    IPSourceRouteAddress iPSourceRouteAddress;
    OctetStringValue nsap;
    NonStandardParameter nonStandardAddress;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(iPAddress, InlineType());
    KELVRA_ALTERNATIVE(iPXAddress, InlineType());
    KELVRA_ALTERNATIVE(iP6Address, InlineType());
    KELVRA_ALTERNATIVE(netBios, UncountedOctetString(16));
    KELVRA_ALTERNATIVE(iPSourceRouteAddress, InlineType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(nsap, OctetString(1, 20));
    KELVRA_ALTERNATIVE(nonStandardAddress, DefinedType());
  KELVRA_END
};

struct MulticastAddress {
  struct IPAddress {
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(network, OctetString(4));
      KELVRA_MEMBER(tsapIdentifier, Integer(0, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct IP6Address {
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(network, OctetString(16));
      KELVRA_MEMBER(tsapIdentifier, Integer(0, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    IPAddress iPAddress;
    IP6Address iP6Address;
    OctetStringValue nsap;
    NonStandardParameter nonStandardAddress;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(iPAddress, InlineType());
    KELVRA_ALTERNATIVE(iP6Address, InlineType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(nsap, OctetString(1, 20));
    KELVRA_ALTERNATIVE(nonStandardAddress, DefinedType());
  KELVRA_END
};

struct TransportAddress {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    UnicastAddress unicastAddress;
    MulticastAddress multicastAddress;
  };

  static constexpr bool kExtensionIndexIsNotKept = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(unicastAddress, DefinedType());
    KELVRA_ALTERNATIVE(multicastAddress, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
