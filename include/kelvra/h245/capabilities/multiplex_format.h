// Multiplex formats of H.222 and H.223.
#pragma once

#include "../channels/network_access.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct VCCapability {
  struct Aal1 {
    uint32_t nullClockRecovery;
    uint32_t srtsClockRecovery;
    uint32_t adaptiveClockRecovery;
    uint32_t nullErrorCorrection;
    uint32_t longInterleaver;
    uint32_t shortInterleaver;
    uint32_t errorCorrectionOnly;
    uint32_t structuredDataTransfer;
    uint32_t partiallyFilledCells;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(nullClockRecovery, Boolean());
      KELVRA_MEMBER(srtsClockRecovery, Boolean());
      KELVRA_MEMBER(adaptiveClockRecovery, Boolean());
      KELVRA_MEMBER(nullErrorCorrection, Boolean());
      KELVRA_MEMBER(longInterleaver, Boolean());
      KELVRA_MEMBER(shortInterleaver, Boolean());
      KELVRA_MEMBER(errorCorrectionOnly, Boolean());
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

  struct AvailableBitRates {
    struct Type {
      struct RangeOfBitRates {
        uint16_t lowerBitRate;
        uint16_t higherBitRate;
        KELVRA_SEQUENCE
          KELVRA_MEMBER(lowerBitRate, Integer(1, 65535));
          KELVRA_MEMBER(higherBitRate, Integer(1, 65535));
        KELVRA_END
      };

      uint8_t choiceTag;
      union {
        uint16_t singleBitRate;
        RangeOfBitRates rangeOfBitRates;
      };

      KELVRA_CHOICE(choiceTag)
        KELVRA_ALTERNATIVE(singleBitRate, Integer(1, 65535));
        KELVRA_ALTERNATIVE(rangeOfBitRates, InlineType());
      KELVRA_END
    };

    Type type;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(type, InlineType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct Aal1ViaGateway {
    uint16_t gatewayAddressCount;
    Q2931Address* gatewayAddress;
    uint32_t nullClockRecovery;
    uint32_t srtsClockRecovery;
    uint32_t adaptiveClockRecovery;
    uint32_t nullErrorCorrection;
    uint32_t longInterleaver;
    uint32_t shortInterleaver;
    uint32_t errorCorrectionOnly;
    uint32_t structuredDataTransfer;
    uint32_t partiallyFilledCells;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER_LIST(gatewayAddress, SequenceOf(1, 256, DefinedType()));
      KELVRA_MEMBER(nullClockRecovery, Boolean());
      KELVRA_MEMBER(srtsClockRecovery, Boolean());
      KELVRA_MEMBER(adaptiveClockRecovery, Boolean());
      KELVRA_MEMBER(nullErrorCorrection, Boolean());
      KELVRA_MEMBER(longInterleaver, Boolean());
      KELVRA_MEMBER(shortInterleaver, Boolean());
      KELVRA_MEMBER(errorCorrectionOnly, Boolean());
      KELVRA_MEMBER(structuredDataTransfer, Boolean());
      KELVRA_MEMBER(partiallyFilledCells, Boolean());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t hasAal1;
  Aal1 aal1;
  uint32_t hasAal5;
  Aal5 aal5;
  uint32_t transportStream;
  uint32_t programStream;
  AvailableBitRates availableBitRates;
  uint32_t isExtended;
  uint32_t hasAal1ViaGateway;
  Aal1ViaGateway aal1ViaGateway;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasAal1, aal1, InlineType());
    KELVRA_OPTIONAL(hasAal5, aal5, InlineType());
    KELVRA_MEMBER(transportStream, Boolean());
    KELVRA_MEMBER(programStream, Boolean());
    KELVRA_MEMBER(availableBitRates, InlineType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasAal1ViaGateway, aal1ViaGateway, InlineType());
  KELVRA_END
};

struct H222Capability {
  uint16_t numberOfVCs;
  uint8_t vcCapabilityCount;
  VCCapability* vcCapability;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(numberOfVCs, Integer(1, 256));
    KELVRA_MEMBER_LIST(vcCapability, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H223AnnexCCapability {
  uint32_t videoWithAL1M;
  uint32_t videoWithAL2M;
  uint32_t videoWithAL3M;
  uint32_t audioWithAL1M;
  uint32_t audioWithAL2M;
  uint32_t audioWithAL3M;
  uint32_t dataWithAL1M;
  uint32_t dataWithAL2M;
  uint32_t dataWithAL3M;
  uint32_t alpduInterleaving;
  uint16_t maximumAL1MPDUSize;
  uint16_t maximumAL2MSDUSize;
  uint16_t maximumAL3MSDUSize;
  uint32_t isExtended;
  uint32_t hasRsCodeCapability;
  uint32_t rsCodeCapability;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(videoWithAL1M, Boolean());
    KELVRA_MEMBER(videoWithAL2M, Boolean());
    KELVRA_MEMBER(videoWithAL3M, Boolean());
    KELVRA_MEMBER(audioWithAL1M, Boolean());
    KELVRA_MEMBER(audioWithAL2M, Boolean());
    KELVRA_MEMBER(audioWithAL3M, Boolean());
    KELVRA_MEMBER(dataWithAL1M, Boolean());
    KELVRA_MEMBER(dataWithAL2M, Boolean());
    KELVRA_MEMBER(dataWithAL3M, Boolean());
    KELVRA_MEMBER(alpduInterleaving, Boolean());
    KELVRA_MEMBER(maximumAL1MPDUSize, Integer(0, 65535));
    KELVRA_MEMBER(maximumAL2MSDUSize, Integer(0, 65535));
    KELVRA_MEMBER(maximumAL3MSDUSize, Integer(0, 65535));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasRsCodeCapability, rsCodeCapability, Boolean());
  KELVRA_END
};

struct H223Capability {
  struct H223MultiplexTableCapability {
    struct Enhanced {
      uint8_t maximumNestingDepth;
      uint8_t maximumElementListSize;
      uint8_t maximumSubElementListSize;
      uint32_t isExtended;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(maximumNestingDepth, Integer(1, 15));
        KELVRA_MEMBER(maximumElementListSize, Integer(2, 255));
        KELVRA_MEMBER(maximumSubElementListSize, Integer(2, 255));
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    uint8_t choiceTag;
    union {
      Enhanced enhanced;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(basic);
      KELVRA_ALTERNATIVE(enhanced, InlineType());
    KELVRA_END
  };

  struct MobileOperationTransmitCapability {
    uint32_t modeChangeCapability;
    uint32_t h223AnnexA;
    uint32_t h223AnnexADoubleFlag;
    uint32_t h223AnnexB;
    uint32_t h223AnnexBwithHeader;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(modeChangeCapability, Boolean());
      KELVRA_MEMBER(h223AnnexA, Boolean());
      KELVRA_MEMBER(h223AnnexADoubleFlag, Boolean());
      KELVRA_MEMBER(h223AnnexB, Boolean());
      KELVRA_MEMBER(h223AnnexBwithHeader, Boolean());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct MobileMultilinkFrameCapability {
    uint8_t maximumSampleSize;
    uint16_t maximumPayloadLength;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(maximumSampleSize, Integer(1, 255));
      KELVRA_MEMBER(maximumPayloadLength, Integer(1, 65025));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t transportWithIFrames;
  uint32_t videoWithAL1;
  uint32_t videoWithAL2;
  uint32_t videoWithAL3;
  uint32_t audioWithAL1;
  uint32_t audioWithAL2;
  uint32_t audioWithAL3;
  uint32_t dataWithAL1;
  uint32_t dataWithAL2;
  uint32_t dataWithAL3;
  uint16_t maximumAl2SDUSize;
  uint16_t maximumAl3SDUSize;
  uint16_t maximumDelayJitter;
  H223MultiplexTableCapability h223MultiplexTableCapability;
  uint32_t isExtended;
  uint32_t hasMaxMUXPDUSizeCapability;
  uint32_t maxMUXPDUSizeCapability;
  uint32_t hasNsrpSupport;
  uint32_t nsrpSupport;
  uint32_t hasMobileOperationTransmitCapability;
  MobileOperationTransmitCapability mobileOperationTransmitCapability;
  uint32_t hasH223AnnexCCapability;
  H223AnnexCCapability h223AnnexCCapability;
  uint32_t hasBitRate;
  uint16_t bitRate;
  uint32_t hasMobileMultilinkFrameCapability;
  MobileMultilinkFrameCapability mobileMultilinkFrameCapability;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(transportWithIFrames, Named("transportWithI-frames", Boolean()));
    KELVRA_MEMBER(videoWithAL1, Boolean());
    KELVRA_MEMBER(videoWithAL2, Boolean());
    KELVRA_MEMBER(videoWithAL3, Boolean());
    KELVRA_MEMBER(audioWithAL1, Boolean());
    KELVRA_MEMBER(audioWithAL2, Boolean());
    KELVRA_MEMBER(audioWithAL3, Boolean());
    KELVRA_MEMBER(dataWithAL1, Boolean());
    KELVRA_MEMBER(dataWithAL2, Boolean());
    KELVRA_MEMBER(dataWithAL3, Boolean());
    KELVRA_MEMBER(maximumAl2SDUSize, Integer(0, 65535));
    KELVRA_MEMBER(maximumAl3SDUSize, Integer(0, 65535));
    KELVRA_MEMBER(maximumDelayJitter, Integer(0, 1023));
    KELVRA_MEMBER(h223MultiplexTableCapability, InlineType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasMaxMUXPDUSizeCapability, maxMUXPDUSizeCapability, Boolean());
    KELVRA_ADDITION(hasNsrpSupport, nsrpSupport, Boolean());
    KELVRA_ADDITION(hasMobileOperationTransmitCapability, mobileOperationTransmitCapability, InlineType());
    KELVRA_ADDITION(hasH223AnnexCCapability, h223AnnexCCapability, DefinedType());
    KELVRA_ADDITION(hasBitRate, bitRate, Integer(1, 19200));
    KELVRA_ADDITION(hasMobileMultilinkFrameCapability, mobileMultilinkFrameCapability, InlineType());
  KELVRA_END
};

struct MultiplexFormat {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    H222Capability h222Capability;
    H223Capability h223Capability;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(h222Capability, DefinedType());
    KELVRA_ALTERNATIVE(h223Capability, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
