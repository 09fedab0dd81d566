// Multiplex formats of H.222 and H.223.
#pragma once

#include <stdint.h>

#include "../channels/network_access.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("nullClockRecovery", m.nullClockRecovery);
      v.Boolean("srtsClockRecovery", m.srtsClockRecovery);
      v.Boolean("adaptiveClockRecovery", m.adaptiveClockRecovery);
      v.Boolean("nullErrorCorrection", m.nullErrorCorrection);
      v.Boolean("longInterleaver", m.longInterleaver);
      v.Boolean("shortInterleaver", m.shortInterleaver);
      v.Boolean("errorCorrectionOnly", m.errorCorrectionOnly);
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

  struct AvailableBitRates {
    struct Type {
      struct RangeOfBitRates {
        uint16_t lowerBitRate;
        uint16_t higherBitRate;

        template <class Record, class Visitor>
        static void Walk(Record& m, Visitor& v) {
          v.Number("lowerBitRate", m.lowerBitRate);
          v.Number("higherBitRate", m.higherBitRate);
        }
      };

      uint8_t choiceTag;
      union {
        uint16_t singleBitRate;
        RangeOfBitRates rangeOfBitRates;
      };

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        switch (m.choiceTag) {
          case 0: return v.Number("singleBitRate", m.singleBitRate);
          case 1: return v.Record("rangeOfBitRates", m.rangeOfBitRates);
          default: return v.UnknownRoot(m.choiceTag);
        }
      }
    };

    Type type;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("type", m.type);
    }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.List("gatewayAddress", KELVRA_LIST(m.gatewayAddress));
      v.Boolean("nullClockRecovery", m.nullClockRecovery);
      v.Boolean("srtsClockRecovery", m.srtsClockRecovery);
      v.Boolean("adaptiveClockRecovery", m.adaptiveClockRecovery);
      v.Boolean("nullErrorCorrection", m.nullErrorCorrection);
      v.Boolean("longInterleaver", m.longInterleaver);
      v.Boolean("shortInterleaver", m.shortInterleaver);
      v.Boolean("errorCorrectionOnly", m.errorCorrectionOnly);
      v.Boolean("structuredDataTransfer", m.structuredDataTransfer);
      v.Boolean("partiallyFilledCells", m.partiallyFilledCells);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasAal1) v.Record("aal1", m.aal1);
    if (m.hasAal5) v.Record("aal5", m.aal5);
    v.Boolean("transportStream", m.transportStream);
    v.Boolean("programStream", m.programStream);
    v.Record("availableBitRates", m.availableBitRates);
    if (m.hasAal1ViaGateway) v.Record("aal1ViaGateway", m.aal1ViaGateway);
  }
};

struct H222Capability {
  uint16_t numberOfVCs;
  uint8_t vcCapabilityCount;
  VCCapability* vcCapability;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("numberOfVCs", m.numberOfVCs);
    v.List("vcCapability", KELVRA_LIST(m.vcCapability));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("videoWithAL1M", m.videoWithAL1M);
    v.Boolean("videoWithAL2M", m.videoWithAL2M);
    v.Boolean("videoWithAL3M", m.videoWithAL3M);
    v.Boolean("audioWithAL1M", m.audioWithAL1M);
    v.Boolean("audioWithAL2M", m.audioWithAL2M);
    v.Boolean("audioWithAL3M", m.audioWithAL3M);
    v.Boolean("dataWithAL1M", m.dataWithAL1M);
    v.Boolean("dataWithAL2M", m.dataWithAL2M);
    v.Boolean("dataWithAL3M", m.dataWithAL3M);
    v.Boolean("alpduInterleaving", m.alpduInterleaving);
    v.Number("maximumAL1MPDUSize", m.maximumAL1MPDUSize);
    v.Number("maximumAL2MSDUSize", m.maximumAL2MSDUSize);
    v.Number("maximumAL3MSDUSize", m.maximumAL3MSDUSize);
    if (m.hasRsCodeCapability) v.Boolean("rsCodeCapability", m.rsCodeCapability);
  }
};

struct H223Capability {
  struct H223MultiplexTableCapability {
    struct Enhanced {
      uint8_t maximumNestingDepth;
      uint8_t maximumElementListSize;
      uint8_t maximumSubElementListSize;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("maximumNestingDepth", m.maximumNestingDepth);
        v.Number("maximumElementListSize", m.maximumElementListSize);
        v.Number("maximumSubElementListSize", m.maximumSubElementListSize);
      }
    };

    uint8_t choiceTag;
    union {
      Enhanced enhanced;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      switch (m.choiceTag) {
        case 0: return v.Null("basic");
        case 1: return v.Record("enhanced", m.enhanced);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  struct MobileOperationTransmitCapability {
    uint32_t modeChangeCapability;
    uint32_t h223AnnexA;
    uint32_t h223AnnexADoubleFlag;
    uint32_t h223AnnexB;
    uint32_t h223AnnexBwithHeader;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("modeChangeCapability", m.modeChangeCapability);
      v.Boolean("h223AnnexA", m.h223AnnexA);
      v.Boolean("h223AnnexADoubleFlag", m.h223AnnexADoubleFlag);
      v.Boolean("h223AnnexB", m.h223AnnexB);
      v.Boolean("h223AnnexBwithHeader", m.h223AnnexBwithHeader);
    }
  };

  struct MobileMultilinkFrameCapability {
    uint8_t maximumSampleSize;
    uint16_t maximumPayloadLength;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("maximumSampleSize", m.maximumSampleSize);
      v.Number("maximumPayloadLength", m.maximumPayloadLength);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("transportWithI-frames", m.transportWithIFrames);
    v.Boolean("videoWithAL1", m.videoWithAL1);
    v.Boolean("videoWithAL2", m.videoWithAL2);
    v.Boolean("videoWithAL3", m.videoWithAL3);
    v.Boolean("audioWithAL1", m.audioWithAL1);
    v.Boolean("audioWithAL2", m.audioWithAL2);
    v.Boolean("audioWithAL3", m.audioWithAL3);
    v.Boolean("dataWithAL1", m.dataWithAL1);
    v.Boolean("dataWithAL2", m.dataWithAL2);
    v.Boolean("dataWithAL3", m.dataWithAL3);
    v.Number("maximumAl2SDUSize", m.maximumAl2SDUSize);
    v.Number("maximumAl3SDUSize", m.maximumAl3SDUSize);
    v.Number("maximumDelayJitter", m.maximumDelayJitter);
    v.Record("h223MultiplexTableCapability", m.h223MultiplexTableCapability);
    if (m.hasMaxMUXPDUSizeCapability) v.Boolean("maxMUXPDUSizeCapability", m.maxMUXPDUSizeCapability);
    if (m.hasNsrpSupport) v.Boolean("nsrpSupport", m.nsrpSupport);
    if (m.hasMobileOperationTransmitCapability)
      v.Record("mobileOperationTransmitCapability", m.mobileOperationTransmitCapability);
    if (m.hasH223AnnexCCapability) v.Record("h223AnnexCCapability", m.h223AnnexCCapability);
    if (m.hasBitRate) v.Number("bitRate", m.bitRate);
    if (m.hasMobileMultilinkFrameCapability)
      v.Record("mobileMultilinkFrameCapability", m.mobileMultilinkFrameCapability);
  }
};

struct MultiplexFormat {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    H222Capability h222Capability;
    H223Capability h223Capability;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("h222Capability", m.h222Capability);
      case 2: return v.Record("h223Capability", m.h223Capability);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
