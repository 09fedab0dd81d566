// Loopback of media for tests.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct MaintenanceLoopType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint16_t mediaLoop;
    uint16_t logicalChannelLoop;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(systemLoop);
    KELVRA_ALTERNATIVE(mediaLoop, Integer(1, 65535));
    KELVRA_ALTERNATIVE(logicalChannelLoop, Integer(1, 65535));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct MaintenanceLoop {
  MaintenanceLoopType type;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using MaintenanceLoopRequest = MaintenanceLoop;
using MaintenanceLoopAck = MaintenanceLoop;

struct MaintenanceLoopReject {
  KELVRA_NULL_CHOICE(NullChoice, Cause, 1, "canNotPerformLoop");

  MaintenanceLoopType type;
  Cause cause;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, DefinedType());
    KELVRA_MEMBER(cause, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
