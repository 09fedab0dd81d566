// How an endpoint multiplexes its channels.
#pragma once

#include <stdint.h>

#include "h2250_capability.h"
#include "multiplex_format.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct V75Capability {
  uint32_t audioHeader;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("audioHeader", m.audioHeader);
  }
};

struct V76Capability {
  uint32_t suspendResumeCapabilitywAddress;
  uint32_t suspendResumeCapabilitywoAddress;
  uint32_t rejCapability;
  uint32_t sREJCapability;
  uint32_t mREJCapability;
  uint32_t crc8bitCapability;
  uint32_t crc16bitCapability;
  uint32_t crc32bitCapability;
  uint32_t uihCapability;
  uint16_t numOfDLCS;
  uint32_t twoOctetAddressFieldCapability;
  uint32_t loopBackTestCapability;
  uint16_t n401Capability;
  uint8_t maxWindowSizeCapability;
  V75Capability v75Capability;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("suspendResumeCapabilitywAddress", m.suspendResumeCapabilitywAddress);
    v.Boolean("suspendResumeCapabilitywoAddress", m.suspendResumeCapabilitywoAddress);
    v.Boolean("rejCapability", m.rejCapability);
    v.Boolean("sREJCapability", m.sREJCapability);
    v.Boolean("mREJCapability", m.mREJCapability);
    v.Boolean("crc8bitCapability", m.crc8bitCapability);
    v.Boolean("crc16bitCapability", m.crc16bitCapability);
    v.Boolean("crc32bitCapability", m.crc32bitCapability);
    v.Boolean("uihCapability", m.uihCapability);
    v.Number("numOfDLCS", m.numOfDLCS);
    v.Boolean("twoOctetAddressFieldCapability", m.twoOctetAddressFieldCapability);
    v.Boolean("loopBackTestCapability", m.loopBackTestCapability);
    v.Number("n401Capability", m.n401Capability);
    v.Number("maxWindowSizeCapability", m.maxWindowSizeCapability);
    v.Record("v75Capability", m.v75Capability);
  }
};

struct MultiplexCapability {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    H222Capability h222Capability;
    H223Capability h223Capability;
    V76Capability v76Capability;
    H2250Capability h2250Capability;
    GenericCapability genericMultiplexCapability;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("h2250Capability", m.h2250Capability);
        case 1: return v.Record("genericMultiplexCapability", m.genericMultiplexCapability);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("h222Capability", m.h222Capability);
      case 2: return v.Record("h223Capability", m.h223Capability);
      case 3: return v.Record("v76Capability", m.v76Capability);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
