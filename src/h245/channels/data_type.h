// What a logical channel carries (H.245 DataType and the types that hold it).
#pragma once

#include <stdint.h>

#include "../capabilities/audio_capability.h"
#include "../capabilities/data_application.h"
#include "../capabilities/encryption.h"
#include "../capabilities/multiplex_format.h"
#include "../capabilities/video_capability.h"

namespace kelvra::h245 {

struct DataType;

#pragma pack(push, 1)

struct RTPH263VideoRedundancyFrameMapping {
  uint8_t threadNumber;
  uint16_t frameSequenceCount;
  uint8_t* frameSequence;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("threadNumber", m.threadNumber);
    v.Numbers("frameSequence", KELVRA_LIST(m.frameSequence));
  }
};

struct RTPH263VideoRedundancyEncoding {
  struct FrameToThreadMapping {
    struct CustomList {
      uint16_t count;
      RTPH263VideoRedundancyFrameMapping* elements;
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      CustomList custom;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Null("roundrobin");
        case 1: return v.List("custom", ListOf(m.custom));
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint8_t numberOfThreads;
  uint16_t framesBetweenSyncPoints;
  FrameToThreadMapping frameToThreadMapping;
  uint32_t hasContainedThreads;
  uint16_t containedThreadsCount;
  uint8_t* containedThreads;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("numberOfThreads", m.numberOfThreads);
    v.Number("framesBetweenSyncPoints", m.framesBetweenSyncPoints);
    v.Record("frameToThreadMapping", m.frameToThreadMapping);
    if (m.hasContainedThreads) v.Numbers("containedThreads", KELVRA_LIST(m.containedThreads));
  }
};

struct RedundancyEncodingMethod {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    RTPH263VideoRedundancyEncoding rtpH263VideoRedundancyEncoding;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("rtpH263VideoRedundancyEncoding", m.rtpH263VideoRedundancyEncoding);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("rtpAudioRedundancyEncoding");
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct RedundancyEncodingElement {
  DataType* dataType;
  uint32_t hasPayloadType;
  uint8_t payloadType;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Pointer("dataType", KELVRA_SLOT(m.dataType));
    if (m.hasPayloadType) v.Number("payloadType", m.payloadType);
  }
};

struct RedundancyEncoding {
  struct RtpRedundancyEncoding {
    uint32_t hasPrimary;
    RedundancyEncodingElement primary;
    uint32_t hasSecondary;
    uint8_t secondaryCount;
    RedundancyEncodingElement* secondary;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasPrimary) v.Record("primary", m.primary);
      if (m.hasSecondary) v.List("secondary", KELVRA_LIST(m.secondary));
    }
  };

  RedundancyEncodingMethod redundancyEncodingMethod;
  uint32_t hasSecondaryEncoding;
  DataType* secondaryEncoding;
  uint32_t isExtended;
  uint32_t hasRtpRedundancyEncoding;
  RtpRedundancyEncoding rtpRedundancyEncoding;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("redundancyEncodingMethod", m.redundancyEncodingMethod);
    if (m.hasSecondaryEncoding) v.Pointer("secondaryEncoding", KELVRA_SLOT(m.secondaryEncoding));
    if (m.hasRtpRedundancyEncoding) v.Record("rtpRedundancyEncoding", m.rtpRedundancyEncoding);
  }
};

using MultiplePayloadStreamElement = RedundancyEncodingElement;

struct MultiplePayloadStream {
  uint8_t elementsCount;
  MultiplePayloadStreamElement* elements;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("elements", KELVRA_LIST(m.elements));
  }
};

struct FECData {
  struct Rfc2733 {
    struct Mode {
      struct SeparateStream {
        struct DifferentPort {
          uint8_t protectedSessionID;
          uint32_t hasProtectedPayloadType;
          uint8_t protectedPayloadType;
          uint32_t isExtended;

          template <class Record, class Visitor>
          static void Walk(Record& m, Visitor& v) {
            v.Number("protectedSessionID", m.protectedSessionID);
            if (m.hasProtectedPayloadType) v.Number("protectedPayloadType", m.protectedPayloadType);
          }
        };

        struct SamePort {
          uint8_t protectedPayloadType;
          uint32_t isExtended;

          template <class Record, class Visitor>
          static void Walk(Record& m, Visitor& v) {
            v.Number("protectedPayloadType", m.protectedPayloadType);
          }
        };

        uint32_t isExtension;
        uint8_t choiceTag;
        union {
          DifferentPort differentPort;
          SamePort samePort;
        };

        template <class Record, class Visitor>
        static void Walk(Record& m, Visitor& v) {
          if (m.isExtension) return v.UnknownExtension(m.choiceTag);
          switch (m.choiceTag) {
            case 0: return v.Record("differentPort", m.differentPort);
            case 1: return v.Record("samePort", m.samePort);
            default: return v.UnknownRoot(m.choiceTag);
          }
        }
      };

      uint32_t isExtension;
      uint8_t choiceTag;
      union {
        SeparateStream separateStream;
      };

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        if (m.isExtension) return v.UnknownExtension(m.choiceTag);
        switch (m.choiceTag) {
          case 0: return v.Null("redundancyEncoding");
          case 1: return v.Record("separateStream", m.separateStream);
          default: return v.UnknownRoot(m.choiceTag);
        }
      }
    };

    Mode mode;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("mode", m.mode);
    }
  };

  uint8_t choiceTag;
  union {
    Rfc2733 rfc2733;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    switch (m.choiceTag) {
      case 0: return v.Record("rfc2733", m.rfc2733);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MultiplexedStreamParameter {
  MultiplexFormat multiplexFormat;
  uint32_t controlOnMuxStream;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("multiplexFormat", m.multiplexFormat);
    v.Boolean("controlOnMuxStream", m.controlOnMuxStream);
  }
};

struct H235Media {
  struct MediaType {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      VideoCapability videoData;
      AudioCapability audioData;
      DataApplicationCapability data;
      RedundancyEncoding redundancyEncoding;
      MultiplePayloadStream multiplePayloadStream;
      FECData fec;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) {
        switch (m.choiceTag) {
          case 0: return v.Record("redundancyEncoding", m.redundancyEncoding);
          case 1: return v.Record("multiplePayloadStream", m.multiplePayloadStream);
          case 2: return v.Record("fec", m.fec);
          default: return v.UnknownExtension(m.choiceTag);
        }
      }
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Record("videoData", m.videoData);
        case 2: return v.Record("audioData", m.audioData);
        case 3: return v.Record("data", m.data);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  EncryptionAuthenticationAndIntegrity encryptionAuthenticationAndIntegrity;
  MediaType mediaType;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("encryptionAuthenticationAndIntegrity", m.encryptionAuthenticationAndIntegrity);
    v.Record("mediaType", m.mediaType);
  }
};

struct DataType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    VideoCapability videoData;
    AudioCapability audioData;
    DataApplicationCapability data;
    EncryptionMode encryptionData;
    NonStandardParameter h235Control;
    H235Media h235Media;
    MultiplexedStreamParameter multiplexedStream;
    RedundancyEncoding redundancyEncoding;
    MultiplePayloadStream multiplePayloadStream;
    FECData fec;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("h235Control", m.h235Control);
        case 1: return v.Record("h235Media", m.h235Media);
        case 2: return v.Record("multiplexedStream", m.multiplexedStream);
        case 3: return v.Record("redundancyEncoding", m.redundancyEncoding);
        case 4: return v.Record("multiplePayloadStream", m.multiplePayloadStream);
        case 5: return v.Record("fec", m.fec);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("nullData");
      case 2: return v.Record("videoData", m.videoData);
      case 3: return v.Record("audioData", m.audioData);
      case 4: return v.Record("data", m.data);
      case 5: return v.Record("encryptionData", m.encryptionData);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
