// New ATM virtual channels.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct ATMAdaptationLayer {
  struct Aal1 {
    KELVRA_NULL_CHOICE(NullChoice, ClockRecovery, 3, "nullClockRecovery", "srtsClockRecovery", "adaptiveClockRecovery");
    KELVRA_NULL_CHOICE(NullChoice, ErrorCorrection, 4, "nullErrorCorrection", "longInterleaver", "shortInterleaver",
                       "errorCorrectionOnly");

    ClockRecovery clockRecovery;
    ErrorCorrection errorCorrection;
    uint32_t structuredDataTransfer;
    uint32_t partiallyFilledCells;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(clockRecovery, DefinedType());
      KELVRA_MEMBER(errorCorrection, DefinedType());
      KELVRA_MEMBER(structuredDataTransfer, Boolean());
      KELVRA_MEMBER(partiallyFilledCells, Boolean());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct Aal5 {
    uint16_t forwardMaximumSDUSize;
    uint16_t backwardMaximumSDUSize;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(forwardMaximumSDUSize, Integer(0, 65535));
      KELVRA_MEMBER(backwardMaximumSDUSize, Integer(0, 65535));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Aal1 aal1;
    Aal5 aal5;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(aal1, InlineType());
    KELVRA_ALTERNATIVE(aal5, InlineType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, ATMMultiplex, 3, "noMultiplex", "transportStream", "programStream");

struct ATMReverseParameters {
  uint16_t bitRate;
  uint32_t bitRateLockedToPCRClock;
  uint32_t bitRateLockedToNetworkClock;
  ATMMultiplex multiplex;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(bitRate, Integer(1, 65535));
    KELVRA_MEMBER(bitRateLockedToPCRClock, Boolean());
    KELVRA_MEMBER(bitRateLockedToNetworkClock, Boolean());
    KELVRA_MEMBER(multiplex, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(resourceID, Integer(0, 65535));
    KELVRA_MEMBER(bitRate, Integer(1, 65535));
    KELVRA_MEMBER(bitRateLockedToPCRClock, Boolean());
    KELVRA_MEMBER(bitRateLockedToNetworkClock, Boolean());
    KELVRA_MEMBER(aal, DefinedType());
    KELVRA_MEMBER(multiplex, DefinedType());
    KELVRA_MEMBER(reverseParameters, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

// Like the command, except that the reverse parameters are an addition.
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(resourceID, Integer(0, 65535));
    KELVRA_MEMBER(bitRate, Integer(1, 65535));
    KELVRA_MEMBER(bitRateLockedToPCRClock, Boolean());
    KELVRA_MEMBER(bitRateLockedToNetworkClock, Boolean());
    KELVRA_MEMBER(aal, DefinedType());
    KELVRA_MEMBER(multiplex, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasReverseParameters, reverseParameters, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
