// What one stream of a requested mode is to carry (H.245 ModeElementType and the types that hold it).
#pragma once

#include <stdint.h>

#include "../channels/data_type.h"
#include "audio_mode.h"
#include "data_mode.h"
#include "video_mode.h"

namespace kelvra::h245 {

struct ModeElementType;
struct MultiplePayloadStreamElementMode;

#pragma pack(push, 1)

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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Record("videoMode", m.videoMode);
        case 2: return v.Record("audioMode", m.audioMode);
        case 3: return v.Record("dataMode", m.dataMode);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  EncryptionAuthenticationAndIntegrity encryptionAuthenticationAndIntegrity;
  MediaMode mediaMode;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("encryptionAuthenticationAndIntegrity", m.encryptionAuthenticationAndIntegrity);
    v.Record("mediaMode", m.mediaMode);
  }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Record("videoMode", m.videoMode);
        case 2: return v.Record("audioMode", m.audioMode);
        case 3: return v.Record("dataMode", m.dataMode);
        case 4: return v.Record("encryptionMode", m.encryptionMode);
        case 5: return v.Record("h235Mode", m.h235Mode);
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

struct RedundancyEncodingDTMode {
  RedundancyEncodingMethod redundancyEncodingMethod;
  RedundancyEncodingDTModeElement primary;
  uint8_t secondaryCount;
  RedundancyEncodingDTModeElement* secondary;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("redundancyEncodingMethod", m.redundancyEncodingMethod);
    v.Record("primary", m.primary);
    v.List("secondary", KELVRA_LIST(m.secondary));
  }
};

struct MultiplePayloadStreamMode {
  uint8_t elementsCount;
  MultiplePayloadStreamElementMode* elements;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("elements", KELVRA_LIST(m.elements));
  }
};

struct FECMode {
  struct Rfc2733Mode {
    struct Mode {
      struct SeparateStream {
        using DifferentPort = FECData::Rfc2733::Mode::SeparateStream::DifferentPort;

        struct SamePort {
          ModeElementType* protectedType;
          uint32_t isExtended;

          template <class Record, class Visitor>
          static void Walk(Record& m, Visitor& v) {
            v.Pointer("protectedType", KELVRA_SLOT(m.protectedType));
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

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    Rfc2733Mode rfc2733Mode;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("rfc2733Mode", m.rfc2733Mode);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("h235Mode", m.h235Mode);
        case 1: return v.Record("multiplexedStreamMode", m.multiplexedStreamMode);
        case 2: return v.Record("redundancyEncodingDTMode", m.redundancyEncodingDTMode);
        case 3: return v.Record("multiplePayloadStreamMode", m.multiplePayloadStreamMode);
        case 4: return v.Record("fecMode", m.fecMode);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("videoMode", m.videoMode);
      case 2: return v.Record("audioMode", m.audioMode);
      case 3: return v.Record("dataMode", m.dataMode);
      case 4: return v.Record("encryptionMode", m.encryptionMode);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MultiplePayloadStreamElementMode {
  ModeElementType type;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("type", m.type);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
