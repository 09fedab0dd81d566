// The CHOICE of all capabilities of an endpoint.
#pragma once

#include "audio_capability.h"
#include "conference_capability.h"
#include "data_application.h"
#include "encryption.h"
#include "stream_capability.h"
#include "video_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct Capability {
  struct H233EncryptionReceiveCapability {
    uint8_t h233IVResponseTime;  // milliseconds
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(h233IVResponseTime, Integer(0, 255));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
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

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(receiveVideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(transmitVideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveAndTransmitVideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveAudioCapability, DefinedType());
    KELVRA_ALTERNATIVE(transmitAudioCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveAndTransmitAudioCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveDataApplicationCapability, DefinedType());
    KELVRA_ALTERNATIVE(transmitDataApplicationCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveAndTransmitDataApplicationCapability, DefinedType());
    KELVRA_ALTERNATIVE(h233EncryptionTransmitCapability, Boolean());
    KELVRA_ALTERNATIVE(h233EncryptionReceiveCapability, InlineType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(conferenceCapability, DefinedType());
    KELVRA_ALTERNATIVE(h235SecurityCapability, DefinedType());
    KELVRA_ALTERNATIVE(maxPendingReplacementFor, Integer(0, 255));
    KELVRA_ALTERNATIVE(receiveUserInputCapability, DefinedType());
    KELVRA_ALTERNATIVE(transmitUserInputCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveAndTransmitUserInputCapability, DefinedType());
    KELVRA_ALTERNATIVE(genericControlCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveMultiplexedStreamCapability, DefinedType());
    KELVRA_ALTERNATIVE(transmitMultiplexedStreamCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveAndTransmitMultiplexedStreamCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveRTPAudioTelephonyEventCapability, DefinedType());
    KELVRA_ALTERNATIVE(receiveRTPAudioToneCapability, DefinedType());
    KELVRA_ALTERNATIVE(fecCapability, DefinedType());
    KELVRA_ALTERNATIVE(multiplePayloadStreamCapability, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
