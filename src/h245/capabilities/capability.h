// The CHOICE of everything an endpoint can receive, transmit or do.
#pragma once

#include <stdint.h>

#include "audio_capability.h"
#include "conference_capability.h"
#include "data_application.h"
#include "encryption.h"
#include "stream_capability.h"
#include "video_capability.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct Capability {
  struct H233EncryptionReceiveCapability {
    uint8_t h233IVResponseTime;  // milliseconds
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("h233IVResponseTime", m.h233IVResponseTime);
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    VideoCapability receiveVideoCapability;
    VideoCapability transmitVideoCapability;
    VideoCapability receiveAndTransmitVideoCapability;
    AudioCapability receiveAudioCapability;
    AudioCapability transmitAudioCapability;
    AudioCapability receiveAndTransmitAudioCapability;
    DataApplicationCapability receiveDataApplicationCapability;
    DataApplicationCapability transmitDataApplicationCapability;
    DataApplicationCapability receiveAndTransmitDataApplicationCapability;
    uint32_t h233EncryptionTransmitCapability;
    H233EncryptionReceiveCapability h233EncryptionReceiveCapability;
    ConferenceCapability conferenceCapability;
    H235SecurityCapability h235SecurityCapability;
    uint8_t maxPendingReplacementFor;
    UserInputCapability receiveUserInputCapability;
    UserInputCapability transmitUserInputCapability;
    UserInputCapability receiveAndTransmitUserInputCapability;
    GenericCapability genericControlCapability;
    MultiplexedStreamCapability receiveMultiplexedStreamCapability;
    MultiplexedStreamCapability transmitMultiplexedStreamCapability;
    MultiplexedStreamCapability receiveAndTransmitMultiplexedStreamCapability;
    AudioTelephonyEventCapability receiveRTPAudioTelephonyEventCapability;
    AudioToneCapability receiveRTPAudioToneCapability;
    FECCapability fecCapability;
    MultiplePayloadStreamCapability multiplePayloadStreamCapability;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("conferenceCapability", m.conferenceCapability);
        case 1: return v.Record("h235SecurityCapability", m.h235SecurityCapability);
        case 2: return v.Number("maxPendingReplacementFor", m.maxPendingReplacementFor);
        case 3: return v.Record("receiveUserInputCapability", m.receiveUserInputCapability);
        case 4: return v.Record("transmitUserInputCapability", m.transmitUserInputCapability);
        case 5: return v.Record("receiveAndTransmitUserInputCapability", m.receiveAndTransmitUserInputCapability);
        case 6: return v.Record("genericControlCapability", m.genericControlCapability);
        case 7: return v.Record("receiveMultiplexedStreamCapability", m.receiveMultiplexedStreamCapability);
        case 8: return v.Record("transmitMultiplexedStreamCapability", m.transmitMultiplexedStreamCapability);
        case 9:
          return v.Record("receiveAndTransmitMultiplexedStreamCapability",
                          m.receiveAndTransmitMultiplexedStreamCapability);
        case 10: return v.Record("receiveRTPAudioTelephonyEventCapability", m.receiveRTPAudioTelephonyEventCapability);
        case 11: return v.Record("receiveRTPAudioToneCapability", m.receiveRTPAudioToneCapability);
        case 12: return v.Record("fecCapability", m.fecCapability);
        case 13: return v.Record("multiplePayloadStreamCapability", m.multiplePayloadStreamCapability);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("receiveVideoCapability", m.receiveVideoCapability);
      case 2: return v.Record("transmitVideoCapability", m.transmitVideoCapability);
      case 3: return v.Record("receiveAndTransmitVideoCapability", m.receiveAndTransmitVideoCapability);
      case 4: return v.Record("receiveAudioCapability", m.receiveAudioCapability);
      case 5: return v.Record("transmitAudioCapability", m.transmitAudioCapability);
      case 6: return v.Record("receiveAndTransmitAudioCapability", m.receiveAndTransmitAudioCapability);
      case 7: return v.Record("receiveDataApplicationCapability", m.receiveDataApplicationCapability);
      case 8: return v.Record("transmitDataApplicationCapability", m.transmitDataApplicationCapability);
      case 9:
        return v.Record("receiveAndTransmitDataApplicationCapability", m.receiveAndTransmitDataApplicationCapability);
      case 10: return v.Boolean("h233EncryptionTransmitCapability", m.h233EncryptionTransmitCapability);
      case 11: return v.Record("h233EncryptionReceiveCapability", m.h233EncryptionReceiveCapability);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
