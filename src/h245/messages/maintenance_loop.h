// Looping media back for tests.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct MaintenanceLoopType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint16_t mediaLoop;
    uint16_t logicalChannelLoop;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Null("systemLoop");
      case 1: return v.Number("mediaLoop", m.mediaLoop);
      case 2: return v.Number("logicalChannelLoop", m.logicalChannelLoop);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MaintenanceLoop {
  MaintenanceLoopType type;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("type", m.type);
  }
};

using MaintenanceLoopRequest = MaintenanceLoop;
using MaintenanceLoopAck = MaintenanceLoop;

struct MaintenanceLoopReject {
  struct CauseNames {
    static constexpr uint32_t kRoots = 1;
    static constexpr const char* kAlternatives[] = {"canNotPerformLoop"};
  };
  using Cause = NullChoice<CauseNames>;

  MaintenanceLoopType type;
  Cause cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("type", m.type);
    v.Record("cause", m.cause);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
