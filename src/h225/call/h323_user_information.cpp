#include "h225/call/answer_uuie_decode.h"
#include "h225/call/facility_uuie_decode.h"
#include "h225/call/h323_user_information_decode.h"
#include "h225/call/information_uuie_decode.h"
#include "h225/call/release_complete_uuie_decode.h"
#include "h225/call/setup_uuie_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeH323MessageBody(H323UUPDU::H323MessageBody& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.progress, r, DecodeProgressUUIE);
      case 2: return DecodeOpen(m.status, r, DecodeCallStatusUUIE);
      case 3: return DecodeOpen(m.statusInquiry, r, DecodeCallStatusUUIE);
      case 4: return DecodeOpen(m.setupAcknowledge, r, DecodeCallStatusUUIE);
      case 5: return DecodeOpen(m.notify, r, DecodeCallStatusUUIE);
      default: return PassOverAlternative(r, index, 6);
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
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasTunnellingRequired = flags.Next();
  m.hasNonStandardData = flags.Next();
  KELVRA_TRY(DecodeTunnelledProtocol(m.tunnelledProtocolID, r));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.messageContent), r, PerReadOctetStringRecord));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

void DecodeUserData(H323UserInformation& m, PerReader& r) {
  m.userDataExtension = PerReadBit(r);
  m.userData.protocolDiscriminator = PerReadNumber<uint8_t>(r, 0, 255);
  PerReadSizedOctets(m.userData.userInformation, r, 1, 131);
  if (m.userDataExtension) PerSkipExtensionAdditions(r);
}

Status DecodeStimulusControl(StimulusControl& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  m.hasIsText = flags.Next();
  m.hasH248Message = flags.Next();
  if (m.hasNonStandard) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandard, r));
  if (m.hasH248Message) PerReadAnnouncedOctetString(m.h248Message, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeH323UUPDU(H323UUPDU& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.nonStandardDataPresent = flags.Next();
  KELVRA_TRY(DecodeH323MessageBody(m.h323MessageBody, r));
  if (m.nonStandardDataPresent) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 9);
  m.h4501SupplementaryServicePresent = known.Next();
  m.h245TunnellingPresent = known.Next();
  m.h245ControlPresent = known.Next();
  m.nonStandardControlPresent = known.Next();
  m.callLinkagePresent = known.Next();
  m.tunnelledSignallingMessagePresent = known.Next();
  m.provisionalRespToH245TunnellingPresent = known.Next();
  m.stimulusControlPresent = known.Next();
  m.genericDataPresent = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.h4501SupplementaryServicePresent)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.h4501SupplementaryService), r, PerReadOctetStringRecord));
  if (m.h245TunnellingPresent) m.h245Tunnelling = PerReadOpenBoolean(r);
  if (m.h245ControlPresent) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.h245Control), r, PerReadOctetStringRecord));
  if (m.nonStandardControlPresent)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.nonStandardControl), r, DecodeNonStandardParameter));
  if (m.callLinkagePresent) KELVRA_TRY(DecodeOpen(m.callLinkage, r, DecodeCallLinkage));
  if (m.tunnelledSignallingMessagePresent)
    KELVRA_TRY(DecodeOpen(m.tunnelledSignallingMessage, r, DecodeTunnelledSignallingMessage));
  if (m.provisionalRespToH245TunnellingPresent) PerPassOverOpenType(r);
  if (m.stimulusControlPresent) KELVRA_TRY(DecodeOpen(m.stimulusControl, r, DecodeStimulusControl));
  if (m.genericDataPresent) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeH323UserInformation(H323UserInformation& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.userDataPresent = flags.Next();
  KELVRA_TRY(DecodeH323UUPDU(m.h323UuPdu, r));
  if (m.userDataPresent) DecodeUserData(m, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
