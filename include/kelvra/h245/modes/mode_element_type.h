// What one stream of a requested mode carries (H.245 ModeElementType and its containers).
#pragma once

#include "../channels/data_type.h"
#include "audio_mode.h"
#include "data_mode.h"
#include "video_mode.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct ModeElementType;
struct MultiplePayloadStreamElementMode;

struct H235Mode {
  struct MediaMode {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      VideoMode videoMode;
      AudioMode audioMode;
      DataMode dataMode;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_ALTERNATIVE(videoMode, DefinedType());
      KELVRA_ALTERNATIVE(audioMode, DefinedType());
      KELVRA_ALTERNATIVE(dataMode, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  EncryptionAuthenticationAndIntegrity encryptionAuthenticationAndIntegrity;
  MediaMode mediaMode;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(encryptionAuthenticationAndIntegrity, DefinedType());
    KELVRA_MEMBER(mediaMode, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RedundancyEncodingDTModeElement {
  struct Type {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      VideoMode videoMode;
      AudioMode audioMode;
      DataMode dataMode;
      EncryptionMode encryptionMode;
      H235Mode h235Mode;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_ALTERNATIVE(videoMode, DefinedType());
      KELVRA_ALTERNATIVE(audioMode, DefinedType());
      KELVRA_ALTERNATIVE(dataMode, DefinedType());
      KELVRA_ALTERNATIVE(encryptionMode, DefinedType());
      KELVRA_ALTERNATIVE(h235Mode, DefinedType());
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  Type type;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RedundancyEncodingDTMode {
  RedundancyEncodingMethod redundancyEncodingMethod;
  RedundancyEncodingDTModeElement primary;
  uint8_t secondaryCount;
  RedundancyEncodingDTModeElement* secondary;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(redundancyEncodingMethod, DefinedType());
    KELVRA_MEMBER(primary, DefinedType());
    KELVRA_MEMBER_LIST(secondary, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultiplePayloadStreamMode {
  uint8_t elementsCount;
  MultiplePayloadStreamElementMode* elements;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(elements, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct FECMode {
  struct Rfc2733Mode {
    struct Mode {
      struct SeparateStream {
        using DifferentPort = FECData::Rfc2733::Mode::SeparateStream::DifferentPort;

        struct SamePort {
          ModeElementType* protectedType;
          uint32_t isExtended;
          KELVRA_SEQUENCE
            KELVRA_MEMBER(protectedType, IndirectType());
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

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Rfc2733Mode rfc2733Mode;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(rfc2733Mode, InlineType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct ModeElementType {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    VideoMode videoMode;
    AudioMode audioMode;
    DataMode dataMode;
    EncryptionMode encryptionMode;
    H235Mode h235Mode;
    MultiplexedStreamParameter multiplexedStreamMode;
    RedundancyEncodingDTMode redundancyEncodingDTMode;
    MultiplePayloadStreamMode multiplePayloadStreamMode;
    FECMode fecMode;
  };

  static constexpr bool kRecursive = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(videoMode, DefinedType());
    KELVRA_ALTERNATIVE(audioMode, DefinedType());
    KELVRA_ALTERNATIVE(dataMode, DefinedType());
    KELVRA_ALTERNATIVE(encryptionMode, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(h235Mode, DefinedType());
    KELVRA_ALTERNATIVE(multiplexedStreamMode, DefinedType());
    KELVRA_ALTERNATIVE(redundancyEncodingDTMode, DefinedType());
    KELVRA_ALTERNATIVE(multiplePayloadStreamMode, DefinedType());
    KELVRA_ALTERNATIVE(fecMode, DefinedType());
  KELVRA_END
};

struct MultiplePayloadStreamElementMode {
  ModeElementType type;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(type, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
