// Addresses of separate stacks.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../common/transport_address.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct Q2931Address {
  struct Address {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      OctetStringValue internationalNumber;
      OctetStringValue nsapAddress;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return WalkOctets(v, "internationalNumber", m.internationalNumber, OctetNotation::kCharacters);
        case 1: return WalkOctets(v, "nsapAddress", m.nsapAddress);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  Address address;
  uint32_t hasSubaddress;
  OctetStringValue subaddress;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("address", m.address);
    if (m.hasSubaddress) WalkOctets(v, "subaddress", m.subaddress);
  }
};

struct NetworkAccessParameters {
  struct DistributionNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"unicast", "multicast"};
  };
  using Distribution = NullChoice<DistributionNames>;

  struct NetworkAddress {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      Q2931Address q2931Address;
      OctetStringValue e164Address;
      TransportAddress localAreaAddress;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("q2931Address", m.q2931Address);
        case 1: return WalkOctets(v, "e164Address", m.e164Address, OctetNotation::kDigits);
        case 2: return v.Record("localAreaAddress", m.localAreaAddress);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  struct T120SetupProcedureNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"originateCall", "waitForCall", "issueQuery"};
  };
  using T120SetupProcedure = NullChoice<T120SetupProcedureNames>;

  uint32_t hasDistribution;
  Distribution distribution;
  NetworkAddress networkAddress;
  uint32_t associateConference;
  uint32_t hasExternalReference;
  OctetStringValue externalReference;
  uint32_t isExtended;
  uint32_t hasT120SetupProcedure;
  T120SetupProcedure t120SetupProcedure;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasDistribution) v.Record("distribution", m.distribution);
    v.Record("networkAddress", m.networkAddress);
    v.Boolean("associateConference", m.associateConference);
    if (m.hasExternalReference) WalkOctets(v, "externalReference", m.externalReference);
    if (m.hasT120SetupProcedure) v.Record("t120SetupProcedure", m.t120SetupProcedure);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
