// New virtual channels of ATM.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct ATMAdaptationLayer {
  struct Aal1 {
    struct ClockRecoveryNames {
      static constexpr uint32_t kRoots = 3;
      static constexpr const char* kAlternatives[] = {"nullClockRecovery", "srtsClockRecovery",
                                                      "adaptiveClockRecovery"};
    };
    using ClockRecovery = NullChoice<ClockRecoveryNames>;

    struct ErrorCorrectionNames {
      static constexpr uint32_t kRoots = 4;
      static constexpr const char* kAlternatives[] = {"nullErrorCorrection", "longInterleaver", "shortInterleaver",
                                                      "errorCorrectionOnly"};
    };
    using ErrorCorrection = NullChoice<ErrorCorrectionNames>;

    ClockRecovery clockRecovery;
    ErrorCorrection errorCorrection;
    uint32_t structuredDataTransfer;
    uint32_t partiallyFilledCells;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("clockRecovery", m.clockRecovery);
      v.Record("errorCorrection", m.errorCorrection);
      v.Boolean("structuredDataTransfer", m.structuredDataTransfer);
      v.Boolean("partiallyFilledCells", m.partiallyFilledCells);
    }
  };

  struct Aal5 {
    uint16_t forwardMaximumSDUSize;
    uint16_t backwardMaximumSDUSize;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("forwardMaximumSDUSize", m.forwardMaximumSDUSize);
      v.Number("backwardMaximumSDUSize", m.backwardMaximumSDUSize);
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Aal1 aal1;
    Aal5 aal5;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("aal1", m.aal1);
      case 1: return v.Record("aal5", m.aal5);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct ATMMultiplexNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"noMultiplex", "transportStream", "programStream"};
};
using ATMMultiplex = NullChoice<ATMMultiplexNames>;

struct ATMReverseParameters {
  uint16_t bitRate;
  uint32_t bitRateLockedToPCRClock;
  uint32_t bitRateLockedToNetworkClock;
  ATMMultiplex multiplex;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("bitRate", m.bitRate);
    v.Boolean("bitRateLockedToPCRClock", m.bitRateLockedToPCRClock);
    v.Boolean("bitRateLockedToNetworkClock", m.bitRateLockedToNetworkClock);
    v.Record("multiplex", m.multiplex);
  }
};

struct NewATMVCCommand {
  uint16_t resourceID;
  uint16_t bitRate;
  uint32_t bitRateLockedToPCRClock;
  uint32_t bitRateLockedToNetworkClock;
  ATMAdaptationLayer aal;
  ATMMultiplex multiplex;
  ATMReverseParameters reverseParameters;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("resourceID", m.resourceID);
    v.Number("bitRate", m.bitRate);
    v.Boolean("bitRateLockedToPCRClock", m.bitRateLockedToPCRClock);
    v.Boolean("bitRateLockedToNetworkClock", m.bitRateLockedToNetworkClock);
    v.Record("aal", m.aal);
    v.Record("multiplex", m.multiplex);
    v.Record("reverseParameters", m.reverseParameters);
  }
};

// Like the command, but for the reverse parameters, which came later.
struct NewATMVCIndication {
  uint16_t resourceID;
  uint16_t bitRate;
  uint32_t bitRateLockedToPCRClock;
  uint32_t bitRateLockedToNetworkClock;
  ATMAdaptationLayer aal;
  ATMMultiplex multiplex;
  uint32_t isExtended;
  uint32_t hasReverseParameters;
  ATMReverseParameters reverseParameters;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("resourceID", m.resourceID);
    v.Number("bitRate", m.bitRate);
    v.Boolean("bitRateLockedToPCRClock", m.bitRateLockedToPCRClock);
    v.Boolean("bitRateLockedToNetworkClock", m.bitRateLockedToNetworkClock);
    v.Record("aal", m.aal);
    v.Record("multiplex", m.multiplex);
    if (m.hasReverseParameters) v.Record("reverseParameters", m.reverseParameters);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
