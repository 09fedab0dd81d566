// What a logical channel carries (H.245 DataType and its containers).
#pragma once

#include "../capabilities/audio_capability.h"
#include "../capabilities/data_application.h"
#include "../capabilities/encryption.h"
#include "../capabilities/multiplex_format.h"
#include "../capabilities/video_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct DataType;

struct RTPH263VideoRedundancyFrameMapping {
  uint8_t threadNumber;
  uint16_t frameSequenceCount;
  uint8_t* frameSequence;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(threadNumber, Integer(0, 15));
    KELVRA_MEMBER_LIST(frameSequence, SequenceOf(1, 256, Integer(0, 255)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(roundrobin);
      KELVRA_ALTERNATIVE(custom, SequenceOf(1, 256, DefinedType()));
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  uint8_t numberOfThreads;
  uint16_t framesBetweenSyncPoints;
  FrameToThreadMapping frameToThreadMapping;
  uint32_t hasContainedThreads;
  uint16_t containedThreadsCount;
  uint8_t* containedThreads;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(numberOfThreads, Integer(1, 16));
    KELVRA_MEMBER(framesBetweenSyncPoints, Integer(1, 256));
    KELVRA_MEMBER(frameToThreadMapping, InlineType());
    KELVRA_OPTIONAL_LIST(hasContainedThreads, containedThreads, SequenceOf(1, 256, Integer(0, 15)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RedundancyEncodingMethod {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    RTPH263VideoRedundancyEncoding rtpH263VideoRedundancyEncoding;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(rtpAudioRedundancyEncoding);
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(rtpH263VideoRedundancyEncoding, DefinedType());
  KELVRA_END
};

struct RedundancyEncodingElement {
  DataType* dataType;
  uint32_t hasPayloadType;
  uint8_t payloadType;
  uint32_t isExtended;
  static constexpr bool kDecodedInPlace = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(dataType, IndirectType());
    KELVRA_OPTIONAL(hasPayloadType, payloadType, Integer(0, 127));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RedundancyEncoding {
  struct RtpRedundancyEncoding {
    uint32_t hasPrimary;
    RedundancyEncodingElement primary;
    uint32_t hasSecondary;
    uint8_t secondaryCount;
    RedundancyEncodingElement* secondary;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasPrimary, primary, DefinedType());
      KELVRA_OPTIONAL_LIST(hasSecondary, secondary, SequenceOf(0, 255, DefinedType()));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  RedundancyEncodingMethod redundancyEncodingMethod;
  uint32_t hasSecondaryEncoding;
  DataType* secondaryEncoding;
  uint32_t isExtended;
  uint32_t hasRtpRedundancyEncoding;
  RtpRedundancyEncoding rtpRedundancyEncoding;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(redundancyEncodingMethod, DefinedType());
    KELVRA_OPTIONAL(hasSecondaryEncoding, secondaryEncoding, IndirectType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasRtpRedundancyEncoding, rtpRedundancyEncoding, InlineType());
  KELVRA_END
};

using MultiplePayloadStreamElement = RedundancyEncodingElement;

struct MultiplePayloadStream {
  uint8_t elementsCount;
  MultiplePayloadStreamElement* elements;
  uint32_t isExtended;
  static constexpr bool kDecodedInPlace = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(elements, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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
          KELVRA_SEQUENCE
            KELVRA_MEMBER(protectedSessionID, Integer(1, 255));
            KELVRA_OPTIONAL(hasProtectedPayloadType, protectedPayloadType, Integer(0, 127));
            KELVRA_EXTENSION(isExtended);
          KELVRA_END
        };

        struct SamePort {
          uint8_t protectedPayloadType;
          uint32_t isExtended;
          KELVRA_SEQUENCE
            KELVRA_MEMBER(protectedPayloadType, Integer(0, 127));
            KELVRA_EXTENSION(isExtended);
          KELVRA_END
        };

        uint32_t isExtension;
        uint8_t choiceTag;
        union {
          DifferentPort differentPort;
          SamePort samePort;
        };

        KELVRA_CHOICE(choiceTag)
          KELVRA_ALTERNATIVE(differentPort, InlineType());
          KELVRA_ALTERNATIVE(samePort, InlineType());
          KELVRA_EXTENSION(isExtension);
        KELVRA_END
      };

      uint32_t isExtension;
      uint8_t choiceTag;
      union {
        SeparateStream separateStream;
      };

      KELVRA_CHOICE(choiceTag)
        KELVRA_NULL(redundancyEncoding);
        KELVRA_ALTERNATIVE(separateStream, InlineType());
        KELVRA_EXTENSION(isExtension);
      KELVRA_END
    };

    Mode mode;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(mode, InlineType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint8_t choiceTag;
  union {
    Rfc2733 rfc2733;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(rfc2733, InlineType());
  KELVRA_END
};

struct MultiplexedStreamParameter {
  MultiplexFormat multiplexFormat;
  uint32_t controlOnMuxStream;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(multiplexFormat, DefinedType());
    KELVRA_MEMBER(controlOnMuxStream, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

    static constexpr bool kDecodedInPlace = true;
    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_ALTERNATIVE(videoData, DefinedType());
      KELVRA_ALTERNATIVE(audioData, DefinedType());
      KELVRA_ALTERNATIVE(data, DefinedType());
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(redundancyEncoding, DefinedType());
      KELVRA_ALTERNATIVE(multiplePayloadStream, DefinedType());
      KELVRA_ALTERNATIVE(fec, DefinedType());
    KELVRA_END
  };

  EncryptionAuthenticationAndIntegrity encryptionAuthenticationAndIntegrity;
  MediaType mediaType;
  uint32_t isExtended;

  static constexpr bool kDecodedInPlace = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(encryptionAuthenticationAndIntegrity, DefinedType());
    KELVRA_MEMBER(mediaType, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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

  static constexpr bool kRecursive = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_NULL(nullData);
    KELVRA_ALTERNATIVE(videoData, DefinedType());
    KELVRA_ALTERNATIVE(audioData, DefinedType());
    KELVRA_ALTERNATIVE(data, DefinedType());
    KELVRA_ALTERNATIVE(encryptionData, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(h235Control, DefinedType());
    KELVRA_ALTERNATIVE(h235Media, DefinedType());
    KELVRA_ALTERNATIVE(multiplexedStream, DefinedType());
    KELVRA_ALTERNATIVE(redundancyEncoding, DefinedType());
    KELVRA_ALTERNATIVE(multiplePayloadStream, DefinedType());
    KELVRA_ALTERNATIVE(fec, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
