// What a user types on a keypad.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"
#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct UserInputIndication {
  struct UserInputSupportIndication {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Null("basicString");
        case 2: return v.Null("iA5String");
        case 3: return v.Null("generalString");
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  struct Signal {
    struct Rtp {
      uint32_t hasTimestamp;
      uint32_t timestamp;
      uint32_t hasExpirationTime;
      uint32_t expirationTime;
      uint16_t logicalChannelNumber;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        if (m.hasTimestamp) v.Number("timestamp", m.timestamp);
        if (m.hasExpirationTime) v.Number("expirationTime", m.expirationTime);
        v.Number("logicalChannelNumber", m.logicalChannelNumber);
      }
    };

    OctetStringValue signalType;  // one character
    uint32_t hasDuration;
    uint16_t duration;  // ms
    uint32_t hasRtp;
    Rtp rtp;
    uint32_t isExtended;
    uint32_t hasRtpPayloadIndication;
    uint8_t rtpPayloadIndication;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "signalType", m.signalType, OctetNotation::kCharacters);
      if (m.hasDuration) v.Number("duration", m.duration);
      if (m.hasRtp) v.Record("rtp", m.rtp);
      if (m.hasRtpPayloadIndication) v.Null("rtpPayloadIndication");
    }
  };

  struct SignalUpdate {
    struct Rtp {
      uint16_t logicalChannelNumber;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("logicalChannelNumber", m.logicalChannelNumber);
      }
    };

    uint16_t duration;  // ms
    uint32_t hasRtp;
    Rtp rtp;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("duration", m.duration);
      if (m.hasRtp) v.Record("rtp", m.rtp);
    }
  };

  struct ExtendedAlphanumeric {
    OctetStringValue alphanumeric;
    uint32_t hasRtpPayloadIndication;
    uint8_t rtpPayloadIndication;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      WalkOctets(v, "alphanumeric", m.alphanumeric, OctetNotation::kCharacters);
      if (m.hasRtpPayloadIndication) v.Null("rtpPayloadIndication");
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("userInputSupportIndication", m.userInputSupportIndication);
        case 1: return v.Record("signal", m.signal);
        case 2: return v.Record("signalUpdate", m.signalUpdate);
        case 3: return v.Record("extendedAlphanumeric", m.extendedAlphanumeric);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return WalkOctets(v, "alphanumeric", m.alphanumeric, OctetNotation::kCharacters);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
