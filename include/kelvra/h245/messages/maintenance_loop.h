// Looping media back for tests.
#pragma once

#include <stdint.h>

#include "../../null_choice.h"
#include "../../walk.h"

#include "../../begin_descriptions.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

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

#pragma pack(pop)

}  // namespace kelvra::h245

#include "../../end_descriptions.h"
