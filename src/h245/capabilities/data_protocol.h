// Data protocols and their profiles (T.120, T.38, T.84, V.42bis).
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct V42bis {
  uint32_t numberOfCodewords;
  uint16_t maximumStringLength;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("numberOfCodewords", m.numberOfCodewords);
    v.Number("maximumStringLength", m.maximumStringLength);
  }
};

struct CompressionType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    V42bis v42bis;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("v42bis", m.v42bis);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("transmitCompression", m.transmitCompression);
        case 1: return v.Record("receiveCompression", m.receiveCompression);
        case 2: return v.Record("transmitAndReceiveCompression", m.transmitAndReceiveCompression);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    V76wCompression v76wCompression;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Null("segmentationAndReassembly");
        case 1: return v.Null("hdlcFrameTunnelingwSAR");
        case 2: return v.Null("v120");
        case 3: return v.Null("separateLANStack");
        case 4: return v.Record("v76wCompression", m.v76wCompression);
        case 5: return v.Null("tcp");
        case 6: return v.Null("udp");
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("v14buffered");
      case 2: return v.Null("v42lapm");
      case 3: return v.Null("hdlcFrameTunnelling");
      case 4: return v.Null("h310SeparateVCStack");
      case 5: return v.Null("h310SingleVCStack");
      case 6: return v.Null("transparent");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Boolean("qcif", m.qcif);
      v.Boolean("cif", m.cif);
      v.Boolean("ccir601Seq", m.ccir601Seq);
      v.Boolean("ccir601Prog", m.ccir601Prog);
      v.Boolean("hdtvSeq", m.hdtvSeq);
      v.Boolean("hdtvProg", m.hdtvProg);
      v.Boolean("g3FacsMH200x100", m.g3FacsMH200x100);
      v.Boolean("g3FacsMH200x200", m.g3FacsMH200x200);
      v.Boolean("g4FacsMMR200x100", m.g4FacsMMR200x100);
      v.Boolean("g4FacsMMR200x200", m.g4FacsMMR200x200);
      v.Boolean("jbig200x200Seq", m.jbig200x200Seq);
      v.Boolean("jbig200x200Prog", m.jbig200x200Prog);
      v.Boolean("jbig300x300Seq", m.jbig300x300Seq);
      v.Boolean("jbig300x300Prog", m.jbig300x300Prog);
      v.Boolean("digPhotoLow", m.digPhotoLow);
      v.Boolean("digPhotoMedSeq", m.digPhotoMedSeq);
      v.Boolean("digPhotoMedProg", m.digPhotoMedProg);
      v.Boolean("digPhotoHighSeq", m.digPhotoHighSeq);
      v.Boolean("digPhotoHighProg", m.digPhotoHighProg);
    }
  };

  uint8_t choiceTag;
  union {
    T84Restricted t84Restricted;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    switch (m.choiceTag) {
      case 0: return v.Null("t84Unrestricted");
      case 1: return v.Record("t84Restricted", m.t84Restricted);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct T38FaxRateManagementNames {
  static constexpr uint32_t kRoots = 2;
  static constexpr const char* kAlternatives[] = {"localTCF", "transferredTCF"};
};
using T38FaxRateManagement = NullChoice<T38FaxRateManagementNames>;

struct T38FaxUdpOptions {
  struct T38FaxUdpECNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"t38UDPFEC", "t38UDPRedundancy"};
  };
  using T38FaxUdpEC = NullChoice<T38FaxUdpECNames>;

  uint32_t hasT38FaxMaxBuffer;
  int32_t t38FaxMaxBuffer;
  uint32_t hasT38FaxMaxDatagram;
  int32_t t38FaxMaxDatagram;
  T38FaxUdpEC t38FaxUdpEC;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasT38FaxMaxBuffer) v.Number("t38FaxMaxBuffer", m.t38FaxMaxBuffer);
    if (m.hasT38FaxMaxDatagram) v.Number("t38FaxMaxDatagram", m.t38FaxMaxDatagram);
    v.Record("t38FaxUdpEC", m.t38FaxUdpEC);
  }
};

struct T38FaxTcpOptions {
  uint32_t t38TCPBidirectionalMode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("t38TCPBidirectionalMode", m.t38TCPBidirectionalMode);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("fillBitRemoval", m.fillBitRemoval);
    v.Boolean("transcodingJBIG", m.transcodingJBIG);
    v.Boolean("transcodingMMR", m.transcodingMMR);
    if (m.hasVersion) v.Number("version", m.version);
    if (m.hasT38FaxRateManagement) v.Record("t38FaxRateManagement", m.t38FaxRateManagement);
    if (m.hasT38FaxUdpOptions) v.Record("t38FaxUdpOptions", m.t38FaxUdpOptions);
    if (m.hasT38FaxTcpOptions) v.Record("t38FaxTcpOptions", m.t38FaxTcpOptions);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
