// Streams that carry several others or protect them, and the sets of capabilities they are made of.
#pragma once

#include <stdint.h>

#include "multiplex_format.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// Entries of the capability table of which one can be in use at a time.
struct AlternativeCapabilitySet {
  uint16_t entryCount;
  uint16_t* entries;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Numbers(kUnnamed, KELVRA_COUNTED_LIST(m.entryCount, m.entries));
  }
};

struct MultiplexedStreamCapability {
  MultiplexFormat multiplexFormat;
  uint32_t controlOnMuxStream;
  uint32_t hasCapabilityOnMuxStream;
  uint16_t capabilityOnMuxStreamCount;
  AlternativeCapabilitySet* capabilityOnMuxStream;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("multiplexFormat", m.multiplexFormat);
    v.Boolean("controlOnMuxStream", m.controlOnMuxStream);
    if (m.hasCapabilityOnMuxStream) v.List("capabilityOnMuxStream", KELVRA_LIST(m.capabilityOnMuxStream));
  }
};

struct MultiplePayloadStreamCapability {
  uint16_t capabilitiesCount;
  AlternativeCapabilitySet* capabilities;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("capabilities", KELVRA_LIST(m.capabilities));
  }
};

struct FECCapability {
  struct Rfc2733 {
    struct SeparateStream {
      uint32_t separatePort;
      uint32_t samePort;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Boolean("separatePort", m.separatePort);
        v.Boolean("samePort", m.samePort);
      }
    };

    uint32_t redundancyEncoding;
    SeparateStream separateStream;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("redundancyEncoding", m.redundancyEncoding);
      v.Record("separateStream", m.separateStream);
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Rfc2733 rfc2733;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("rfc2733", m.rfc2733);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
