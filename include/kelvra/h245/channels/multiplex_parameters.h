// Parameters of a channel in an H.222, H.223 or V.76 multiplex.
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(resourceID, Integer(0, 65535));
    KELVRA_MEMBER(subChannelID, Integer(0, 8191));
    KELVRA_OPTIONAL(hasPcrPid, pcrPid, Named("pcr-pid", Integer(0, 8191)));
    KELVRA_OPTIONAL(hasProgramDescriptors, programDescriptors, OctetString());
    KELVRA_OPTIONAL(hasStreamDescriptors, streamDescriptors, OctetString());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H223AnnexCArqParameters {
  struct NumberOfRetransmissions {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      uint8_t finite;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(finite, Integer(0, 16));
      KELVRA_NULL(infinite);
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  NumberOfRetransmissions numberOfRetransmissions;
  uint32_t sendBufferSize;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(numberOfRetransmissions, InlineType());
    KELVRA_MEMBER(sendBufferSize, Integer(0, 16777215));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

// crcLength and arqType of the mobile adaptation layers.
KELVRA_NULL_CHOICE(NullChoice, H223CrcLength, 4, "crc4bit", "crc12bit", "crc20bit", "crc28bit", "crc8bit", "crc16bit",
                   "crc32bit", "crcNotUsed");

struct H223ArqType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H223AnnexCArqParameters typeIArq;
    H223AnnexCArqParameters typeIIArq;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(noArq);
    KELVRA_ALTERNATIVE(typeIArq, DefinedType());
    KELVRA_ALTERNATIVE(typeIIArq, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct H223AL1MParameters {
  KELVRA_NULL_CHOICE(NullChoice, TransferMode, 2, "framed", "unframed");
  KELVRA_NULL_CHOICE(NullChoice, HeaderFEC, 2, "sebch16-7", "golay24-12");

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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(transferMode, DefinedType());
    KELVRA_MEMBER(headerFEC, DefinedType());
    KELVRA_MEMBER(crcLength, DefinedType());
    KELVRA_MEMBER(rcpcCodeRate, Integer(8, 32));
    KELVRA_MEMBER(arqType, DefinedType());
    KELVRA_MEMBER(alpduInterleaving, Boolean());
    KELVRA_MEMBER(alsduSplitting, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasRsCodeCorrection, rsCodeCorrection, Integer(0, 127));
  KELVRA_END
};

struct H223AL2MParameters {
  KELVRA_NULL_CHOICE(NullChoice, HeaderFEC, 2, "sebch16-5", "golay24-12");

  HeaderFEC headerFEC;
  uint32_t alpduInterleaving;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(headerFEC, DefinedType());
    KELVRA_MEMBER(alpduInterleaving, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H223AL3MParameters {
  KELVRA_NULL_CHOICE(NullChoice, HeaderFormat, 2, "sebch16-7", "golay24-12");

  HeaderFormat headerFormat;
  H223CrcLength crcLength;
  uint8_t rcpcCodeRate;
  H223ArqType arqType;
  uint32_t alpduInterleaving;
  uint32_t isExtended;
  uint32_t hasRsCodeCorrection;
  uint8_t rsCodeCorrection;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(headerFormat, DefinedType());
    KELVRA_MEMBER(crcLength, DefinedType());
    KELVRA_MEMBER(rcpcCodeRate, Integer(8, 32));
    KELVRA_MEMBER(arqType, DefinedType());
    KELVRA_MEMBER(alpduInterleaving, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasRsCodeCorrection, rsCodeCorrection, Integer(0, 127));
  KELVRA_END
};

struct H223LogicalChannelParameters {
  struct AdaptationLayerType {
    struct Al3 {
      uint8_t controlFieldOctets;
      uint32_t sendBufferSize;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(controlFieldOctets, Integer(0, 2));
        KELVRA_MEMBER(sendBufferSize, Integer(0, 16777215));
      KELVRA_END
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

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_NULL(al1Framed);
      KELVRA_NULL(al1NotFramed);
      KELVRA_NULL(al2WithoutSequenceNumbers);
      KELVRA_NULL(al2WithSequenceNumbers);
      KELVRA_ALTERNATIVE(al3, InlineType());
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(al1M, DefinedType());
      KELVRA_ALTERNATIVE(al2M, DefinedType());
      KELVRA_ALTERNATIVE(al3M, DefinedType());
    KELVRA_END
  };

  AdaptationLayerType adaptationLayerType;
  uint32_t segmentableFlag;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(adaptationLayerType, InlineType());
    KELVRA_MEMBER(segmentableFlag, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, CRCLength, 3, "crc8bit", "crc16bit", "crc32bit");

struct V76HDLCParameters {
  CRCLength crcLength;
  uint16_t n401;
  uint32_t loopbackTestProcedure;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(crcLength, DefinedType());
    KELVRA_MEMBER(n401, Integer(1, 4095));
    KELVRA_MEMBER(loopbackTestProcedure, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct V75Parameters {
  uint32_t audioHeaderPresent;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioHeaderPresent, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct V76LogicalChannelParameters {
  KELVRA_NULL_CHOICE(NullChoice, SuspendResume, 3, "noSuspendResume", "suspendResumewAddress",
                     "suspendResumewoAddress");

  struct Mode {
    struct ERM {
      KELVRA_NULL_CHOICE(NullChoice, Recovery, 3, "rej", "sREJ", "mSREJ");

      uint8_t windowSize;
      Recovery recovery;
      uint32_t isExtended;

      KELVRA_SEQUENCE
        KELVRA_MEMBER(windowSize, Integer(1, 127));
        KELVRA_MEMBER(recovery, DefinedType());
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      ERM eRM;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(eRM, InlineType());
      KELVRA_NULL(uNERM);
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  V76HDLCParameters hdlcParameters;
  SuspendResume suspendResume;
  uint32_t uIH;
  Mode mode;
  V75Parameters v75Parameters;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(hdlcParameters, DefinedType());
    KELVRA_MEMBER(suspendResume, DefinedType());
    KELVRA_MEMBER(uIH, Boolean());
    KELVRA_MEMBER(mode, InlineType());
    KELVRA_MEMBER(v75Parameters, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
