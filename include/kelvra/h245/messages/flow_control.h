// Limits of the bit rate of a channel or multiplex.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// What a command or indication applies to. No extension marker.
struct MultiplexScope {
  uint8_t scopeTag;
  union {
    uint16_t logicalChannelNumber;
    uint16_t resourceID;
  };

  KELVRA_CHOICE(scopeTag)
    KELVRA_ALTERNATIVE(logicalChannelNumber, Integer(1, 65535));
    KELVRA_ALTERNATIVE(resourceID, Integer(0, 65535));
    KELVRA_NULL(wholeMultiplex);
  KELVRA_END
};

struct FlowControl {
  // No extension marker.
  struct Restriction {
    uint8_t restrictionTag;
    uint32_t maximumBitRate;  // in units of 100 bit/s
    KELVRA_CHOICE(restrictionTag)
      KELVRA_ALTERNATIVE(maximumBitRate, Integer(0, 16777215));
      KELVRA_NULL(noRestriction);
    KELVRA_END
  };

  MultiplexScope scope;
  Restriction restriction;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(scope, DefinedType());
    KELVRA_MEMBER(restriction, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using FlowControlCommand = FlowControl;
using FlowControlIndication = FlowControl;

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
