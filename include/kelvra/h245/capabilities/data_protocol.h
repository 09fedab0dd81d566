// Data protocols and their profiles (T.120, T.38, T.84, V.42bis).
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct V42bis {
  uint32_t numberOfCodewords;
  uint16_t maximumStringLength;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(numberOfCodewords, Integer(1, 65536));
    KELVRA_MEMBER(maximumStringLength, Integer(1, 256));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CompressionType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    V42bis v42bis;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(v42bis, DefinedType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct DataProtocolCapability {
  struct V76wCompression {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      CompressionType transmitCompression;
      CompressionType receiveCompression;
      CompressionType transmitAndReceiveCompression;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(transmitCompression, DefinedType());
      KELVRA_ALTERNATIVE(receiveCompression, DefinedType());
      KELVRA_ALTERNATIVE(transmitAndReceiveCompression, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    V76wCompression v76wCompression;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(v14buffered);
    KELVRA_NULL(v42lapm);
    KELVRA_NULL(hdlcFrameTunnelling);
    KELVRA_NULL(h310SeparateVCStack);
    KELVRA_NULL(h310SingleVCStack);
    KELVRA_NULL(transparent);
    KELVRA_EXTENSION(isExtension);
    KELVRA_NULL(segmentationAndReassembly);
    KELVRA_NULL(hdlcFrameTunnelingwSAR);
    KELVRA_NULL(v120);
    KELVRA_NULL(separateLANStack);
    KELVRA_ALTERNATIVE(v76wCompression, InlineType());
    KELVRA_NULL(tcp);
    KELVRA_NULL(udp);
  KELVRA_END
};

struct T84Profile {
  struct T84Restricted {
    uint32_t qcif;
    uint32_t cif;
    uint32_t ccir601Seq;
    uint32_t ccir601Prog;
    uint32_t hdtvSeq;
    uint32_t hdtvProg;
    uint32_t g3FacsMH200x100;
    uint32_t g3FacsMH200x200;
    uint32_t g4FacsMMR200x100;
    uint32_t g4FacsMMR200x200;
    uint32_t jbig200x200Seq;
    uint32_t jbig200x200Prog;
    uint32_t jbig300x300Seq;
    uint32_t jbig300x300Prog;
    uint32_t digPhotoLow;
    uint32_t digPhotoMedSeq;
    uint32_t digPhotoMedProg;
    uint32_t digPhotoHighSeq;
    uint32_t digPhotoHighProg;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(qcif, Boolean());
      KELVRA_MEMBER(cif, Boolean());
      KELVRA_MEMBER(ccir601Seq, Boolean());
      KELVRA_MEMBER(ccir601Prog, Boolean());
      KELVRA_MEMBER(hdtvSeq, Boolean());
      KELVRA_MEMBER(hdtvProg, Boolean());
      KELVRA_MEMBER(g3FacsMH200x100, Boolean());
      KELVRA_MEMBER(g3FacsMH200x200, Boolean());
      KELVRA_MEMBER(g4FacsMMR200x100, Boolean());
      KELVRA_MEMBER(g4FacsMMR200x200, Boolean());
      KELVRA_MEMBER(jbig200x200Seq, Boolean());
      KELVRA_MEMBER(jbig200x200Prog, Boolean());
      KELVRA_MEMBER(jbig300x300Seq, Boolean());
      KELVRA_MEMBER(jbig300x300Prog, Boolean());
      KELVRA_MEMBER(digPhotoLow, Boolean());
      KELVRA_MEMBER(digPhotoMedSeq, Boolean());
      KELVRA_MEMBER(digPhotoMedProg, Boolean());
      KELVRA_MEMBER(digPhotoHighSeq, Boolean());
      KELVRA_MEMBER(digPhotoHighProg, Boolean());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    T84Restricted t84Restricted;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_NULL(t84Unrestricted);
    KELVRA_ALTERNATIVE(t84Restricted, InlineType());
  KELVRA_END
};

KELVRA_NULL_CHOICE(NullChoice, T38FaxRateManagement, 2, "localTCF", "transferredTCF");

struct T38FaxUdpOptions {
  KELVRA_NULL_CHOICE(NullChoice, T38FaxUdpEC, 2, "t38UDPFEC", "t38UDPRedundancy");

  uint32_t hasT38FaxMaxBuffer;
  int32_t t38FaxMaxBuffer;
  uint32_t hasT38FaxMaxDatagram;
  int32_t t38FaxMaxDatagram;
  T38FaxUdpEC t38FaxUdpEC;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasT38FaxMaxBuffer, t38FaxMaxBuffer, Integer());
    KELVRA_OPTIONAL(hasT38FaxMaxDatagram, t38FaxMaxDatagram, Integer());
    KELVRA_MEMBER(t38FaxUdpEC, DefinedType());
  KELVRA_END
};

struct T38FaxTcpOptions {
  uint32_t t38TCPBidirectionalMode;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(t38TCPBidirectionalMode, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct T38FaxProfile {
  uint32_t fillBitRemoval;
  uint32_t transcodingJBIG;
  uint32_t transcodingMMR;
  uint32_t isExtended;
  uint32_t hasVersion;
  uint8_t version;
  uint32_t hasT38FaxRateManagement;
  T38FaxRateManagement t38FaxRateManagement;
  uint32_t hasT38FaxUdpOptions;
  T38FaxUdpOptions t38FaxUdpOptions;
  uint32_t hasT38FaxTcpOptions;
  T38FaxTcpOptions t38FaxTcpOptions;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(fillBitRemoval, Boolean());
    KELVRA_MEMBER(transcodingJBIG, Boolean());
    KELVRA_MEMBER(transcodingMMR, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasVersion, version, Integer(0, 255));
    KELVRA_ADDITION(hasT38FaxRateManagement, t38FaxRateManagement, DefinedType());
    KELVRA_ADDITION(hasT38FaxUdpOptions, t38FaxUdpOptions, DefinedType());
    KELVRA_ADDITION(hasT38FaxTcpOptions, t38FaxTcpOptions, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
