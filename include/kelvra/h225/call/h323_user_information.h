// H323-UserInformation, the contents of the user-user element.
#pragma once

#include "answer_uuie.h"
#include "facility_uuie.h"
#include "information_uuie.h"
#include "release_complete_uuie.h"
#include "setup_uuie.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h225 {

struct StimulusControl {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t hasIsText;
  uint8_t isText;
  uint32_t hasH248Message;
  OctetStringValue h248Message;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasNonStandard, nonStandard, DefinedType());
    KELVRA_OPTIONAL(hasIsText, isText, Null());
    KELVRA_OPTIONAL(hasH248Message, h248Message, OctetString());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H323UUPDU {
  struct H323MessageBody {
    uint8_t choiceTag;
    union {
      SetupUUIE setup;
      CallProceedingUUIE callProceeding;
      ConnectUUIE connect;
      AlertingUUIE alerting;
      InformationUUIE information;
      ReleaseCompleteUUIE releaseComplete;
      FacilityUUIE facility;
      ProgressUUIE progress;
      StatusUUIE status;
      StatusInquiryUUIE statusInquiry;
      SetupAcknowledgeUUIE setupAcknowledge;
      NotifyUUIE notify;
    };
    uint32_t isExtension;

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(setup, DefinedType());
      KELVRA_ALTERNATIVE(callProceeding, DefinedType());
      KELVRA_ALTERNATIVE(connect, DefinedType());
      KELVRA_ALTERNATIVE(alerting, DefinedType());
      KELVRA_ALTERNATIVE(information, DefinedType());
      KELVRA_ALTERNATIVE(releaseComplete, DefinedType());
      KELVRA_ALTERNATIVE(facility, DefinedType());
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(progress, DefinedType());
      KELVRA_NULL(empty);
      KELVRA_ALTERNATIVE(status, DefinedType());
      KELVRA_ALTERNATIVE(statusInquiry, DefinedType());
      KELVRA_ALTERNATIVE(setupAcknowledge, DefinedType());
      KELVRA_ALTERNATIVE(notify, DefinedType());
    KELVRA_END
  };

  struct TunnelledSignallingMessage {
    TunnelledProtocol tunnelledProtocolID;
    uint8_t messageContentCount;
    OctetStringValue* messageContent;
    uint32_t hasTunnellingRequired;
    uint8_t tunnellingRequired;
    uint32_t hasNonStandardData;
    NonStandardParameter nonStandardData;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_MEMBER(tunnelledProtocolID, DefinedType());
      KELVRA_MEMBER_LIST(messageContent, SequenceOf(ClearedOctetString()));
      KELVRA_OPTIONAL(hasTunnellingRequired, tunnellingRequired, Null());
      KELVRA_OPTIONAL(hasNonStandardData, nonStandardData, DefinedType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  H323MessageBody h323MessageBody;
  uint32_t nonStandardDataPresent;
  NonStandardParameter nonStandardData;
  uint32_t isExtended;
  uint32_t h4501SupplementaryServicePresent;
  uint8_t h4501SupplementaryServiceCount;
  OctetStringValue* h4501SupplementaryService;
  uint32_t h245TunnellingPresent;
  uint32_t h245Tunnelling;
  uint32_t h245ControlPresent;
  uint8_t h245ControlCount;
  OctetStringValue* h245Control;
  uint32_t nonStandardControlPresent;
  uint8_t nonStandardControlCount;
  NonStandardParameter* nonStandardControl;
  uint32_t callLinkagePresent;
  CallLinkage callLinkage;
  uint32_t tunnelledSignallingMessagePresent;
  TunnelledSignallingMessage tunnelledSignallingMessage;
  uint32_t provisionalRespToH245TunnellingPresent;
  uint8_t provisionalRespToH245Tunnelling;
  uint32_t stimulusControlPresent;
  StimulusControl stimulusControl;
  uint32_t genericDataPresent;
  uint8_t genericDataCount;
  GenericData* genericData;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(h323MessageBody, Named("h323-message-body", InlineType()));
    KELVRA_OPTIONAL(nonStandardDataPresent, nonStandardData, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION_LIST(h4501SupplementaryServicePresent, h4501SupplementaryService, SequenceOf(ClearedOctetString()));
    KELVRA_ADDITION(h245TunnellingPresent, h245Tunnelling, Boolean());
    KELVRA_ADDITION_LIST(h245ControlPresent, h245Control, SequenceOf(ClearedOctetString()));
    KELVRA_ADDITION_LIST(nonStandardControlPresent, nonStandardControl, SequenceOf(DefinedType()));
    KELVRA_ADDITION(callLinkagePresent, callLinkage, DefinedType());
    KELVRA_ADDITION(tunnelledSignallingMessagePresent, tunnelledSignallingMessage, InlineType());
    KELVRA_ADDITION(provisionalRespToH245TunnellingPresent, provisionalRespToH245Tunnelling, Null());
    KELVRA_ADDITION(stimulusControlPresent, stimulusControl, DefinedType());
    KELVRA_ADDITION_LIST(genericDataPresent, genericData, SequenceOf(DefinedType()));
  KELVRA_END
};

struct H323UserInformation {
  struct UserData {
    uint8_t protocolDiscriminator;
    OctetStringValue userInformation;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(protocolDiscriminator, Named("protocol-discriminator", Integer(0, 255)));
      KELVRA_MEMBER(userInformation, Named("user-information", OctetString(1, 131)));
    KELVRA_END
  };

  H323UUPDU h323UuPdu;
  uint32_t userDataPresent;
  UserData userData;
  uint32_t userDataExtension;  // the extension bit of user-data
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(h323UuPdu, Named("h323-uu-pdu", DefinedType()));
    KELVRA_OPTIONAL(userDataPresent, userData,
                    Named("user-data", InlineTypeExtendedBy(KELVRA_PLACE(userDataExtension))));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h225

#pragma pack(pop)
#include "../../end_descriptions.h"
