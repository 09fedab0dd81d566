// Parameters of a channel in an H.222, H.223 or V.76 multiplex.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct H222LogicalChannelParameters {
  uint16_t resourceID;
  uint16_t subChannelID;
  uint32_t hasPcrPid;
  uint16_t pcrPid;
  uint32_t hasProgramDescriptors;
  OctetStringValue programDescriptors;
  uint32_t hasStreamDescriptors;
  OctetStringValue streamDescriptors;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("resourceID", m.resourceID);
    v.Number("subChannelID", m.subChannelID);
    if (m.hasPcrPid) v.Number("pcr-pid", m.pcrPid);
    if (m.hasProgramDescriptors) WalkOctets(v, "programDescriptors", m.programDescriptors);
    if (m.hasStreamDescriptors) WalkOctets(v, "streamDescriptors", m.streamDescriptors);
  }
};

struct H223AnnexCArqParameters {
  struct NumberOfRetransmissions {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      uint8_t finite;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Number("finite", m.finite);
        case 1: return v.Null("infinite");
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  NumberOfRetransmissions numberOfRetransmissions;
  uint32_t sendBufferSize;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("numberOfRetransmissions", m.numberOfRetransmissions);
    v.Number("sendBufferSize", m.sendBufferSize);
  }
};

// crcLength and arqType of the mobile adaptation layers.
struct H223CrcLengthNames {
  static constexpr uint32_t kRoots = 4;
  static constexpr const char* kAlternatives[] = {"crc4bit", "crc12bit", "crc20bit", "crc28bit",
                                                  "crc8bit", "crc16bit", "crc32bit", "crcNotUsed"};
};
using H223CrcLength = NullChoice<H223CrcLengthNames>;

struct H223ArqType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H223AnnexCArqParameters typeIArq;
    H223AnnexCArqParameters typeIIArq;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Null("noArq");
      case 1: return v.Record("typeIArq", m.typeIArq);
      case 2: return v.Record("typeIIArq", m.typeIIArq);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct H223AL1MParameters {
  struct TransferModeNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"framed", "unframed"};
  };
  using TransferMode = NullChoice<TransferModeNames>;

  struct HeaderFECNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"sebch16-7", "golay24-12"};
  };
  using HeaderFEC = NullChoice<HeaderFECNames>;

  TransferMode transferMode;
  HeaderFEC headerFEC;
  H223CrcLength crcLength;
  uint8_t rcpcCodeRate;
  H223ArqType arqType;
  uint32_t alpduInterleaving;
  uint32_t alsduSplitting;
  uint32_t isExtended;
  uint32_t hasRsCodeCorrection;
  uint8_t rsCodeCorrection;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("transferMode", m.transferMode);
    v.Record("headerFEC", m.headerFEC);
    v.Record("crcLength", m.crcLength);
    v.Number("rcpcCodeRate", m.rcpcCodeRate);
    v.Record("arqType", m.arqType);
    v.Boolean("alpduInterleaving", m.alpduInterleaving);
    v.Boolean("alsduSplitting", m.alsduSplitting);
    if (m.hasRsCodeCorrection) v.Number("rsCodeCorrection", m.rsCodeCorrection);
  }
};

struct H223AL2MParameters {
  struct HeaderFECNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"sebch16-5", "golay24-12"};
  };
  using HeaderFEC = NullChoice<HeaderFECNames>;

  HeaderFEC headerFEC;
  uint32_t alpduInterleaving;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("headerFEC", m.headerFEC);
    v.Boolean("alpduInterleaving", m.alpduInterleaving);
  }
};

struct H223AL3MParameters {
  struct HeaderFormatNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"sebch16-7", "golay24-12"};
  };
  using HeaderFormat = NullChoice<HeaderFormatNames>;

  HeaderFormat headerFormat;
  H223CrcLength crcLength;
  uint8_t rcpcCodeRate;
  H223ArqType arqType;
  uint32_t alpduInterleaving;
  uint32_t isExtended;
  uint32_t hasRsCodeCorrection;
  uint8_t rsCodeCorrection;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("headerFormat", m.headerFormat);
    v.Record("crcLength", m.crcLength);
    v.Number("rcpcCodeRate", m.rcpcCodeRate);
    v.Record("arqType", m.arqType);
    v.Boolean("alpduInterleaving", m.alpduInterleaving);
    if (m.hasRsCodeCorrection) v.Number("rsCodeCorrection", m.rsCodeCorrection);
  }
};

struct H223LogicalChannelParameters {
  struct AdaptationLayerType {
    struct Al3 {
      uint8_t controlFieldOctets;
      uint32_t sendBufferSize;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("controlFieldOctets", m.controlFieldOctets);
        v.Number("sendBufferSize", m.sendBufferSize);
      }
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      Al3 al3;
      H223AL1MParameters al1M;
      H223AL2MParameters al2M;
      H223AL3MParameters al3M;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) {
        switch (m.choiceTag) {
          case 0: return v.Record("al1M", m.al1M);
          case 1: return v.Record("al2M", m.al2M);
          case 2: return v.Record("al3M", m.al3M);
          default: return v.UnknownExtension(m.choiceTag);
        }
      }
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Null("al1Framed");
        case 2: return v.Null("al1NotFramed");
        case 3: return v.Null("al2WithoutSequenceNumbers");
        case 4: return v.Null("al2WithSequenceNumbers");
        case 5: return v.Record("al3", m.al3);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  AdaptationLayerType adaptationLayerType;
  uint32_t segmentableFlag;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("adaptationLayerType", m.adaptationLayerType);
    v.Boolean("segmentableFlag", m.segmentableFlag);
  }
};

struct CRCLengthNames {
  static constexpr uint32_t kRoots = 3;
  static constexpr const char* kAlternatives[] = {"crc8bit", "crc16bit", "crc32bit"};
};
using CRCLength = NullChoice<CRCLengthNames>;

struct V76HDLCParameters {
  CRCLength crcLength;
  uint16_t n401;
  uint32_t loopbackTestProcedure;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("crcLength", m.crcLength);
    v.Number("n401", m.n401);
    v.Boolean("loopbackTestProcedure", m.loopbackTestProcedure);
  }
};

struct V75Parameters {
  uint32_t audioHeaderPresent;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("audioHeaderPresent", m.audioHeaderPresent);
  }
};

struct V76LogicalChannelParameters {
  struct SuspendResumeNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"noSuspendResume", "suspendResumewAddress",
                                                    "suspendResumewoAddress"};
  };
  using SuspendResume = NullChoice<SuspendResumeNames>;

  struct Mode {
    struct ERM {
      struct RecoveryNames {
        static constexpr uint32_t kRoots = 3;
        static constexpr const char* kAlternatives[] = {"rej", "sREJ", "mSREJ"};
      };
      using Recovery = NullChoice<RecoveryNames>;

      uint8_t windowSize;
      Recovery recovery;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("windowSize", m.windowSize);
        v.Record("recovery", m.recovery);
      }
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      ERM eRM;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("eRM", m.eRM);
        case 1: return v.Null("uNERM");
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  V76HDLCParameters hdlcParameters;
  SuspendResume suspendResume;
  uint32_t uIH;
  Mode mode;
  V75Parameters v75Parameters;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("hdlcParameters", m.hdlcParameters);
    v.Record("suspendResume", m.suspendResume);
    v.Boolean("uIH", m.uIH);
    v.Record("mode", m.mode);
    v.Record("v75Parameters", m.v75Parameters);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
