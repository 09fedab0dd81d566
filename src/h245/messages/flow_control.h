// Limits of the bit rate of a channel or multiplex.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// What a command or indication is about. No extension marker.
struct MultiplexScope {
  uint8_t scopeTag;
  union {
    uint16_t logicalChannelNumber;
    uint16_t resourceID;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    switch (m.scopeTag) {
      case 0: return v.Number("logicalChannelNumber", m.logicalChannelNumber);
      case 1: return v.Number("resourceID", m.resourceID);
      case 2: return v.Null("wholeMultiplex");
      default: return v.UnknownRoot(m.scopeTag);
    }
  }
};

struct FlowControl {
  // No extension marker.
  struct Restriction {
    uint8_t restrictionTag;
    uint32_t maximumBitRate;  // in units of 100 bit/s

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.restrictionTag == 0) return v.Number("maximumBitRate", m.maximumBitRate);
      v.Null("noRestriction");
    }
  };

  MultiplexScope scope;
  Restriction restriction;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("scope", m.scope);
    v.Record("restriction", m.restriction);
  }
};

using FlowControlCommand = FlowControl;
using FlowControlIndication = FlowControl;

#pragma pack(pop)

}  // namespace kelvra::h245
