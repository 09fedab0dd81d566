// What a user types on a keypad.
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct UserInputIndication {
  struct UserInputSupportIndication {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_NULL(basicString);
      KELVRA_NULL(iA5String);
      KELVRA_NULL(generalString);
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  struct Signal {
    struct Rtp {
      uint32_t hasTimestamp;
      uint32_t timestamp;
      uint32_t hasExpirationTime;
      uint32_t expirationTime;
      uint16_t logicalChannelNumber;
      uint32_t isExtended;

      KELVRA_SEQUENCE
        KELVRA_OPTIONAL(hasTimestamp, timestamp, Integer(0, kUnsigned32Maximum));
        KELVRA_OPTIONAL(hasExpirationTime, expirationTime, Integer(0, kUnsigned32Maximum));
        KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    OctetStringValue signalType;  // one character
    uint32_t hasDuration;
    uint16_t duration;  // ms
    uint32_t hasRtp;
    Rtp rtp;
    uint32_t isExtended;
    uint32_t hasRtpPayloadIndication;
    uint8_t rtpPayloadIndication;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(signalType, SignalType());
      KELVRA_OPTIONAL(hasDuration, duration, Integer(1, 65535));
      KELVRA_OPTIONAL(hasRtp, rtp, InlineType());
      KELVRA_EXTENSION(isExtended);
      KELVRA_ADDITION(hasRtpPayloadIndication, rtpPayloadIndication, Null());
    KELVRA_END
  };

  struct SignalUpdate {
    struct Rtp {
      uint16_t logicalChannelNumber;
      uint32_t isExtended;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    uint16_t duration;  // ms
    uint32_t hasRtp;
    Rtp rtp;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(duration, Integer(1, 65535));
      KELVRA_OPTIONAL(hasRtp, rtp, InlineType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct ExtendedAlphanumeric {
    OctetStringValue alphanumeric;
    uint32_t hasRtpPayloadIndication;
    uint8_t rtpPayloadIndication;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(alphanumeric, GeneralString());
      KELVRA_OPTIONAL(hasRtpPayloadIndication, rtpPayloadIndication, Null());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    OctetStringValue alphanumeric;
    UserInputSupportIndication userInputSupportIndication;
    Signal signal;
    SignalUpdate signalUpdate;
    ExtendedAlphanumeric extendedAlphanumeric;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(alphanumeric, GeneralString());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(userInputSupportIndication, InlineType());
    KELVRA_ALTERNATIVE(signal, InlineType());
    KELVRA_ALTERNATIVE(signalUpdate, InlineType());
    KELVRA_ALTERNATIVE(extendedAlphanumeric, InlineType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
