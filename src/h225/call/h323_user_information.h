// H323-UserInformation, the contents of the user-user element.
#pragma once

#include <stdint.h>

#include "answer_uuie.h"
#include "facility_uuie.h"
#include "information_uuie.h"
#include "release_complete_uuie.h"
#include "setup_uuie.h"

namespace kelvra::h225 {

#pragma pack(push, 1)

struct StimulusControl {
  uint32_t hasNonStandard;
  NonStandardParameter nonStandard;
  uint32_t hasIsText;
  uint8_t isText;
  uint32_t hasH248Message;
  OctetStringValue h248Message;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasNonStandard) v.Record("nonStandard", m.nonStandard);
    if (m.hasIsText) v.Null("isText");
    if (m.hasH248Message) WalkOctets(v, "h248Message", m.h248Message);
  }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) {
        switch (m.choiceTag) {
          case 0: return v.Record("progress", m.progress);
          case 1: return v.Null("empty");
          case 2: return v.Record("status", m.status);
          case 3: return v.Record("statusInquiry", m.statusInquiry);
          case 4: return v.Record("setupAcknowledge", m.setupAcknowledge);
          case 5: return v.Record("notify", m.notify);
          default: return v.UnknownExtension(m.choiceTag);
        }
      }
      switch (m.choiceTag) {
        case 0: return v.Record("setup", m.setup);
        case 1: return v.Record("callProceeding", m.callProceeding);
        case 2: return v.Record("connect", m.connect);
        case 3: return v.Record("alerting", m.alerting);
        case 4: return v.Record("information", m.information);
        case 5: return v.Record("releaseComplete", m.releaseComplete);
        case 6: return v.Record("facility", m.facility);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Record("tunnelledProtocolID", m.tunnelledProtocolID);
      v.OctetStrings("messageContent", KELVRA_LIST(m.messageContent), OctetNotation::kOctets);
      if (m.hasTunnellingRequired) v.Null("tunnellingRequired");
      if (m.hasNonStandardData) v.Record("nonStandardData", m.nonStandardData);
    }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("h323-message-body", m.h323MessageBody);
    if (m.nonStandardDataPresent) v.Record("nonStandardData", m.nonStandardData);
    if (m.h4501SupplementaryServicePresent)
      v.OctetStrings("h4501SupplementaryService", KELVRA_LIST(m.h4501SupplementaryService), OctetNotation::kOctets);
    if (m.h245TunnellingPresent) v.Boolean("h245Tunnelling", m.h245Tunnelling);
    if (m.h245ControlPresent) v.OctetStrings("h245Control", KELVRA_LIST(m.h245Control), OctetNotation::kOctets);
    if (m.nonStandardControlPresent) v.List("nonStandardControl", KELVRA_LIST(m.nonStandardControl));
    if (m.callLinkagePresent) v.Record("callLinkage", m.callLinkage);
    if (m.tunnelledSignallingMessagePresent) v.Record("tunnelledSignallingMessage", m.tunnelledSignallingMessage);
    if (m.provisionalRespToH245TunnellingPresent) v.Null("provisionalRespToH245Tunnelling");
    if (m.stimulusControlPresent) v.Record("stimulusControl", m.stimulusControl);
    if (m.genericDataPresent) v.List("genericData", KELVRA_LIST(m.genericData));
  }
};

struct H323UserInformation {
  struct UserData {
    uint8_t protocolDiscriminator;
    OctetStringValue userInformation;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("protocol-discriminator", m.protocolDiscriminator);
      WalkOctets(v, "user-information", m.userInformation);
    }
  };

  H323UUPDU h323UuPdu;
  uint32_t userDataPresent;
  UserData userData;
  uint32_t userDataExtension;  // the extension bit of user-data
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("h323-uu-pdu", m.h323UuPdu);
    if (m.userDataPresent) v.Record("user-data", m.userData);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h225
