// Commands and indications about one logical channel.
#pragma once

#include "../capabilities/encryption.h"
#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct KeyProtectionMethod {
  uint32_t secureChannel;
  uint32_t sharedSecret;
  uint32_t certProtectedKey;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(secureChannel, Boolean());
    KELVRA_MEMBER(sharedSecret, Boolean());
    KELVRA_MEMBER(certProtectedKey, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct EncryptionUpdateRequest {
  uint32_t hasKeyProtectionMethod;
  KeyProtectionMethod keyProtectionMethod;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasKeyProtectionMethod, keyProtectionMethod, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct PictureReference {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint16_t pictureNumber;
    uint8_t longTermPictureIndex;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(pictureNumber, Integer(0, 1023));
    KELVRA_ALTERNATIVE(longTermPictureIndex, Integer(0, 255));
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

struct MiscellaneousCommand {
  struct VideoFastUpdateGOB {
    uint8_t firstGOB;
    uint8_t numberOfGOBs;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(firstGOB, Integer(0, 17));
      KELVRA_MEMBER(numberOfGOBs, Integer(1, 18));
    KELVRA_END
  };

  struct VideoFastUpdateMB {
    uint32_t hasFirstGOB;
    uint8_t firstGOB;
    uint32_t hasFirstMB;
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasFirstGOB, firstGOB, Integer(0, 255));
      KELVRA_OPTIONAL(hasFirstMB, firstMB, Integer(1, 8192));
      KELVRA_MEMBER(numberOfMBs, Integer(1, 8192));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct ProgressiveRefinementStart {
    KELVRA_NULL_CHOICE(NullChoice, RepeatCount, 4, "doOneProgression", "doContinuousProgressions",
                       "doOneIndependentProgression", "doContinuousIndependentProgressions");

    RepeatCount repeatCount;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(repeatCount, DefinedType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct VideoBadMBs {
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint16_t temporalReference;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(firstMB, Integer(1, 9216));
      KELVRA_MEMBER(numberOfMBs, Integer(1, 9216));
      KELVRA_MEMBER(temporalReference, Integer(0, 1023));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct PictureReferenceList {
    uint8_t count;
    PictureReference* elements;
  };

  struct LostPartialPicture {
    PictureReference pictureReference;
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(pictureReference, DefinedType());
      KELVRA_MEMBER(firstMB, Integer(1, 9216));
      KELVRA_MEMBER(numberOfMBs, Integer(1, 9216));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct Type {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      VideoFastUpdateGOB videoFastUpdateGOB;
      uint8_t videoTemporalSpatialTradeOff;
      VideoFastUpdateMB videoFastUpdateMB;
      uint16_t maxH223MUXPDUsize;
      EncryptionSync encryptionUpdate;
      EncryptionUpdateRequest encryptionUpdateRequest;
      ProgressiveRefinementStart progressiveRefinementStart;
      VideoBadMBs videoBadMBs;
      PictureReferenceList lostPicture;
      LostPartialPicture lostPartialPicture;
      PictureReferenceList recoveryReferencePicture;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(equaliseDelay);
      KELVRA_NULL(zeroDelay);
      KELVRA_NULL(multipointModeCommand);
      KELVRA_NULL(cancelMultipointModeCommand);
      KELVRA_NULL(videoFreezePicture);
      KELVRA_NULL(videoFastUpdatePicture);
      KELVRA_ALTERNATIVE(videoFastUpdateGOB, InlineType());
      KELVRA_ALTERNATIVE(videoTemporalSpatialTradeOff, Integer(0, 31));
      KELVRA_NULL(videoSendSyncEveryGOB);
      KELVRA_NULL(videoSendSyncEveryGOBCancel);
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(videoFastUpdateMB, InlineType());
      KELVRA_ALTERNATIVE(maxH223MUXPDUsize, Integer(1, 65535));
      KELVRA_ALTERNATIVE(encryptionUpdate, DefinedType());
      KELVRA_ALTERNATIVE(encryptionUpdateRequest, DefinedType());
      KELVRA_NULL(switchReceiveMediaOff);
      KELVRA_NULL(switchReceiveMediaOn);
      KELVRA_ALTERNATIVE(progressiveRefinementStart, InlineType());
      KELVRA_NULL(progressiveRefinementAbortOne);
      KELVRA_NULL(progressiveRefinementAbortContinuous);
      KELVRA_ALTERNATIVE(videoBadMBs, InlineType());
      KELVRA_ALTERNATIVE(lostPicture, SequenceOf(DefinedType()));
      KELVRA_ALTERNATIVE(lostPartialPicture, InlineType());
      KELVRA_ALTERNATIVE(recoveryReferencePicture, SequenceOf(DefinedType()));
    KELVRA_END
  };

  uint16_t logicalChannelNumber;
  Type type;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(type, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MiscellaneousIndication {
  struct VideoNotDecodedMBs {
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint8_t temporalReference;
    uint32_t isExtended;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(firstMB, Integer(1, 8192));
      KELVRA_MEMBER(numberOfMBs, Integer(1, 8192));
      KELVRA_MEMBER(temporalReference, Integer(0, 255));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct Type {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      uint8_t videoTemporalSpatialTradeOff;
      VideoNotDecodedMBs videoNotDecodedMBs;
      TransportCapability transportCapability;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_NULL(logicalChannelActive);
      KELVRA_NULL(logicalChannelInactive);
      KELVRA_NULL(multipointConference);
      KELVRA_NULL(cancelMultipointConference);
      KELVRA_NULL(multipointZeroComm);
      KELVRA_NULL(cancelMultipointZeroComm);
      KELVRA_NULL(multipointSecondaryStatus);
      KELVRA_NULL(cancelMultipointSecondaryStatus);
      KELVRA_NULL(videoIndicateReadyToActivate);
      KELVRA_ALTERNATIVE(videoTemporalSpatialTradeOff, Integer(0, 31));
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(videoNotDecodedMBs, InlineType());
      KELVRA_ALTERNATIVE(transportCapability, DefinedType());
    KELVRA_END
  };

  uint16_t logicalChannelNumber;
  Type type;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(logicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(type, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
