// Commands and indications about one logical channel.
#pragma once

#include <stdint.h>

#include "../capabilities/encryption.h"
#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct KeyProtectionMethod {
  uint32_t secureChannel;
  uint32_t sharedSecret;
  uint32_t certProtectedKey;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("secureChannel", m.secureChannel);
    v.Boolean("sharedSecret", m.sharedSecret);
    v.Boolean("certProtectedKey", m.certProtectedKey);
  }
};

struct EncryptionUpdateRequest {
  uint32_t hasKeyProtectionMethod;
  KeyProtectionMethod keyProtectionMethod;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasKeyProtectionMethod) v.Record("keyProtectionMethod", m.keyProtectionMethod);
  }
};

struct PictureReference {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    uint16_t pictureNumber;
    uint8_t longTermPictureIndex;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Number("pictureNumber", m.pictureNumber);
      case 1: return v.Number("longTermPictureIndex", m.longTermPictureIndex);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

struct MiscellaneousCommand {
  struct VideoFastUpdateGOB {
    uint8_t firstGOB;
    uint8_t numberOfGOBs;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("firstGOB", m.firstGOB);
      v.Number("numberOfGOBs", m.numberOfGOBs);
    }
  };

  struct VideoFastUpdateMB {
    uint32_t hasFirstGOB;
    uint8_t firstGOB;
    uint32_t hasFirstMB;
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasFirstGOB) v.Number("firstGOB", m.firstGOB);
      if (m.hasFirstMB) v.Number("firstMB", m.firstMB);
      v.Number("numberOfMBs", m.numberOfMBs);
    }
  };

  struct ProgressiveRefinementStart {
    struct RepeatCountNames {
      static constexpr uint32_t kRoots = 4;
      static constexpr const char* kAlternatives[] = {"doOneProgression", "doContinuousProgressions",
                                                      "doOneIndependentProgression",
                                                      "doContinuousIndependentProgressions"};
    };
    using RepeatCount = NullChoice<RepeatCountNames>;

    RepeatCount repeatCount;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("repeatCount", m.repeatCount);
    }
  };

  struct VideoBadMBs {
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint16_t temporalReference;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("firstMB", m.firstMB);
      v.Number("numberOfMBs", m.numberOfMBs);
      v.Number("temporalReference", m.temporalReference);
    }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("pictureReference", m.pictureReference);
      v.Number("firstMB", m.firstMB);
      v.Number("numberOfMBs", m.numberOfMBs);
    }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) {
        switch (m.choiceTag) {
          case 0: return v.Record("videoFastUpdateMB", m.videoFastUpdateMB);
          case 1: return v.Number("maxH223MUXPDUsize", m.maxH223MUXPDUsize);
          case 2: return v.Record("encryptionUpdate", m.encryptionUpdate);
          case 3: return v.Record("encryptionUpdateRequest", m.encryptionUpdateRequest);
          case 4: return v.Null("switchReceiveMediaOff");
          case 5: return v.Null("switchReceiveMediaOn");
          case 6: return v.Record("progressiveRefinementStart", m.progressiveRefinementStart);
          case 7: return v.Null("progressiveRefinementAbortOne");
          case 8: return v.Null("progressiveRefinementAbortContinuous");
          case 9: return v.Record("videoBadMBs", m.videoBadMBs);
          case 10: return v.List("lostPicture", ListOf(m.lostPicture));
          case 11: return v.Record("lostPartialPicture", m.lostPartialPicture);
          case 12: return v.List("recoveryReferencePicture", ListOf(m.recoveryReferencePicture));
          default: return v.UnknownExtension(m.choiceTag);
        }
      }
      switch (m.choiceTag) {
        case 0: return v.Null("equaliseDelay");
        case 1: return v.Null("zeroDelay");
        case 2: return v.Null("multipointModeCommand");
        case 3: return v.Null("cancelMultipointModeCommand");
        case 4: return v.Null("videoFreezePicture");
        case 5: return v.Null("videoFastUpdatePicture");
        case 6: return v.Record("videoFastUpdateGOB", m.videoFastUpdateGOB);
        case 7: return v.Number("videoTemporalSpatialTradeOff", m.videoTemporalSpatialTradeOff);
        case 8: return v.Null("videoSendSyncEveryGOB");
        case 9: return v.Null("videoSendSyncEveryGOBCancel");
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint16_t logicalChannelNumber;
  Type type;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("logicalChannelNumber", m.logicalChannelNumber);
    v.Record("type", m.type);
  }
};

struct MiscellaneousIndication {
  struct VideoNotDecodedMBs {
    uint16_t firstMB;
    uint16_t numberOfMBs;
    uint8_t temporalReference;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("firstMB", m.firstMB);
      v.Number("numberOfMBs", m.numberOfMBs);
      v.Number("temporalReference", m.temporalReference);
    }
  };

  struct Type {
    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      uint8_t videoTemporalSpatialTradeOff;
      VideoNotDecodedMBs videoNotDecodedMBs;
      TransportCapability transportCapability;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) {
        switch (m.choiceTag) {
          case 0: return v.Record("videoNotDecodedMBs", m.videoNotDecodedMBs);
          case 1: return v.Record("transportCapability", m.transportCapability);
          default: return v.UnknownExtension(m.choiceTag);
        }
      }
      switch (m.choiceTag) {
        case 0: return v.Null("logicalChannelActive");
        case 1: return v.Null("logicalChannelInactive");
        case 2: return v.Null("multipointConference");
        case 3: return v.Null("cancelMultipointConference");
        case 4: return v.Null("multipointZeroComm");
        case 5: return v.Null("cancelMultipointZeroComm");
        case 6: return v.Null("multipointSecondaryStatus");
        case 7: return v.Null("cancelMultipointSecondaryStatus");
        case 8: return v.Null("videoIndicateReadyToActivate");
        case 9: return v.Number("videoTemporalSpatialTradeOff", m.videoTemporalSpatialTradeOff);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint16_t logicalChannelNumber;
  Type type;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("logicalChannelNumber", m.logicalChannelNumber);
    v.Record("type", m.type);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
