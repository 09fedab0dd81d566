// Media addresses (H.245 TransportAddress).
#pragma once

#include <stdint.h>

#include "non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// The length words of strings whose size the ASN.1 fixes stay zero, save that of an iPAddress.
struct UnicastAddress {
  struct IPAddress {
    uint32_t networkLength;  // 4
    uint8_t* network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Octets("network", KELVRA_SLOT(m.network), 4, OctetNotation::kOctets);
      v.Number("tsapIdentifier", m.tsapIdentifier);
    }
  };

  struct IPXAddress {
    OctetStringValue node;
    OctetStringValue netnum;
    OctetStringValue tsapIdentifier;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Octets("node", KELVRA_SLOT(m.node.data), 6, OctetNotation::kOctets);
      v.Octets("netnum", KELVRA_SLOT(m.netnum.data), 4, OctetNotation::kOctets);
      v.Octets("tsapIdentifier", KELVRA_SLOT(m.tsapIdentifier.data), 2, OctetNotation::kOctets);
    }
  };

  struct IP6Address {
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Octets("network", KELVRA_SLOT(m.network.data), 16, OctetNotation::kOctets);
      v.Number("tsapIdentifier", m.tsapIdentifier);
    }
  };

  struct Routing {
    uint8_t choiceTag;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Null(m.choiceTag == 0 ? "strict" : "loose");
    }
  };

  struct IPSourceRouteAddress {
    Routing routing;
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint8_t routeCount;
    OctetStringValue* route;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("routing", m.routing);
      v.Octets("network", KELVRA_SLOT(m.network.data), 4, OctetNotation::kOctets);
      v.Number("tsapIdentifier", m.tsapIdentifier);
      v.FixedOctetStrings("route", KELVRA_LIST(m.route), 4);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return WalkOctets(v, "nsap", m.nsap);
        case 1: return v.Record("nonStandardAddress", m.nonStandardAddress);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("iPAddress", m.iPAddress);
      case 1: return v.Record("iPXAddress", m.iPXAddress);
      case 2: return v.Record("iP6Address", m.iP6Address);
      case 3: return v.Octets("netBios", KELVRA_SLOT(m.netBios.data), 16, OctetNotation::kOctets);
      case 4: return v.Record("iPSourceRouteAddress", m.iPSourceRouteAddress);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MulticastAddress {
  struct IPAddress {
    OctetStringValue network;
    uint16_t tsapIdentifier;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "network", m.network);
      v.Number("tsapIdentifier", m.tsapIdentifier);
    }
  };

  using IP6Address = IPAddress;

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    IPAddress iPAddress;
    IP6Address iP6Address;
    OctetStringValue nsap;
    NonStandardParameter nonStandardAddress;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return WalkOctets(v, "nsap", m.nsap);
        case 1: return v.Record("nonStandardAddress", m.nonStandardAddress);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("iPAddress", m.iPAddress);
      case 1: return v.Record("iP6Address", m.iP6Address);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct TransportAddress {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    UnicastAddress unicastAddress;
    MulticastAddress multicastAddress;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("unicastAddress", m.unicastAddress);
      case 1: return v.Record("multicastAddress", m.multicastAddress);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
