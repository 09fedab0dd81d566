#include "h225/answer_uuie_decode.h"
#include "h225/decode.h"
#include "h225/endpoint_type_decode.h"
#include "h225/facility_uuie_decode.h"
#include "h225/generic_data_decode.h"
#include "h225/h323_user_information_decode.h"
#include "h225/information_uuie_decode.h"
#include "h225/non_standard_decode.h"
#include "h225/release_complete_uuie_decode.h"
#include "h225/services_decode.h"
#include "h225/setup_uuie_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeH323MessageBody(H323UUPDU::H323MessageBody& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 0: return InOpenType(r, [&] { return DecodeProgressUUIE(m.progress, r); });
      case 2: return InOpenType(r, [&] { return DecodeCallStatusUUIE(m.status, r); });
      case 3: return InOpenType(r, [&] { return DecodeCallStatusUUIE(m.statusInquiry, r); });
      case 4: return InOpenType(r, [&] { return DecodeCallStatusUUIE(m.setupAcknowledge, r); });
      case 5: return InOpenType(r, [&] { return DecodeCallStatusUUIE(m.notify, r); });
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 0: return DecodeSetupUUIE(m.setup, r);
    case 1: return DecodeCallProceedingUUIE(m.callProceeding, r);
    case 2: return DecodeConnectUUIE(m.connect, r);
    case 3: return DecodeAlertingUUIE(m.alerting, r);
    case 4: return DecodeInformationUUIE(m.information, r);
    case 5: return DecodeReleaseCompleteUUIE(m.releaseComplete, r);
    case 6: return DecodeFacilityUUIE(m.facility, r);
    default: return kMalformed;
  }
}

Status DecodeTunnelledSignallingMessage(H323UUPDU::TunnelledSignallingMessage& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasTunnellingRequired = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  KELVRA_TRY(DecodeTunnelledProtocol(m.tunnelledProtocolID, r));
  KELVRA_TRY(DecodeSequenceOf(r, &m.messageContentCount, Slot<OctetStringValue>(&m.messageContent), DecodeOctetString));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeUserData(H323UserInformation::UserData& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.protocolDiscriminator = PerReadNumber<uint8_t>(r, 0, 255);
  PerReadSizedOctets(m.userInformation, r, 131, 1);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeStimulusControl(StimulusControl& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  m.hasIsText = PerReadBit(r);
  m.hasH248Message = PerReadBit(r);
  if (m.hasNonStandard) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandard, r));
  if (m.hasH248Message) PerReadOctetString(m.h248Message, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeH323UUPDU(H323UUPDU& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.nonStandardDataPresent = PerReadBit(r);
  KELVRA_TRY(DecodeH323MessageBody(m.h323MessageBody, r));
  if (m.nonStandardDataPresent) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.h4501SupplementaryServicePresent = PerReadAdditionBit(r, additions, 0);
  m.h245TunnellingPresent = PerReadAdditionBit(r, additions, 1);
  m.h245ControlPresent = PerReadAdditionBit(r, additions, 2);
  m.nonStandardControlPresent = PerReadAdditionBit(r, additions, 3);
  m.callLinkagePresent = PerReadAdditionBit(r, additions, 4);
  m.tunnelledSignallingMessagePresent = PerReadAdditionBit(r, additions, 5);
  m.provisionalRespToH245TunnellingPresent = PerReadAdditionBit(r, additions, 6);
  m.stimulusControlPresent = PerReadAdditionBit(r, additions, 7);
  m.genericDataPresent = PerReadAdditionBit(r, additions, 8);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 9);
  if (m.h4501SupplementaryServicePresent)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.h4501SupplementaryServiceCount,
                              Slot<OctetStringValue>(&m.h4501SupplementaryService), DecodeOctetString);
    }));
  if (m.h245TunnellingPresent) m.h245Tunnelling = PerReadOpenBoolean(r);
  if (m.h245ControlPresent)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.h245ControlCount, Slot<OctetStringValue>(&m.h245Control), DecodeOctetString);
    }));
  if (m.nonStandardControlPresent)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.nonStandardControlCount, Slot<NonStandardParameter>(&m.nonStandardControl),
                              DecodeNonStandardParameter);
    }));
  if (m.callLinkagePresent) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallLinkage(m.callLinkage, r); }));
  if (m.tunnelledSignallingMessagePresent)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeTunnelledSignallingMessage(m.tunnelledSignallingMessage, r); }));
  if (m.provisionalRespToH245TunnellingPresent) PerSkipOpenTypes(r, 1);
  if (m.stimulusControlPresent) KELVRA_TRY(InOpenType(r, [&] { return DecodeStimulusControl(m.stimulusControl, r); }));
  if (m.genericDataPresent)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.genericDataCount, Slot<GenericData>(&m.genericData), DecodeGenericData);
    }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeH323UserInformation(H323UserInformation& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.userDataPresent = PerReadBit(r);
  KELVRA_TRY(DecodeH323UUPDU(m.h323UuPdu, r));
  if (m.userDataPresent) KELVRA_TRY(DecodeUserData(m.userData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
