#include "h225/call/h323_user_information_decode.h"
#include "h225/common/addresses_decode.h"
#include "h225/common/bandwidth_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/common/usage_decode.h"
#include "h225/ras/info_request_response_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeInfoRequestResponseStatus(InfoRequestResponseStatus& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return SkipAlternative(r);
  if (index == 2) m.segment = PerReadNumber<uint16_t>(r, 0, 65535);
  return kDecoded;
}

Status DecodePdu(InfoRequestResponse::PerCallInfo::Pdu& m, PerReader& r) {
  KELVRA_TRY(DecodeH323UUPDU(m.h323pdu, r));
  m.sent = PerReadBit(r);
  return kDecoded;
}

Status DecodePerCallInfo(InfoRequestResponse::PerCallInfo& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasOriginator = flags.Next();
  m.hasAudio = flags.Next();
  m.hasVideo = flags.Next();
  m.hasData = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  m.callReferenceValue = PerReadNumber<uint16_t>(r, 0, 65535);
  KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  if (m.hasOriginator) m.originator = PerReadBit(r);
  if (m.hasAudio) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.audio), r, DecodeRTPSession));
  if (m.hasVideo) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.video), r, DecodeRTPSession));
  if (m.hasData) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.data), r, DecodeTransportChannelInfo));
  KELVRA_TRY(DecodeTransportChannelInfo(m.h245, r));
  KELVRA_TRY(DecodeTransportChannelInfo(m.callSignalling, r));
  KELVRA_TRY(DecodeCallType(m.callType, r));
  m.bandWidth = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  KELVRA_TRY(DecodeNullChoice(m.callModel, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 8);
  m.hasCallIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasSubstituteConfIDs = known.Next();
  m.hasPdu = known.Next();
  m.hasCallLinkage = known.Next();
  m.hasUsageInformation = known.Next();
  m.hasCircuitInfo = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasSubstituteConfIDs)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.substituteConfIDs), r, DecodeGloballyUniqueID));
  if (m.hasPdu) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.pdu), r, DecodePdu));
  if (m.hasCallLinkage) KELVRA_TRY(DecodeOpen(m.callLinkage, r, DecodeCallLinkage));
  if (m.hasUsageInformation) KELVRA_TRY(DecodeOpen(m.usageInformation, r, DecodeRasUsageInformation));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeInfoRequestResponse(InfoRequestResponse& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasEndpointAlias = flags.Next();
  m.hasPerCallInfo = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeEndpointType(m.endpointType, r));
  KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.callSignalAddress), r, DecodeTransportAddress));
  if (m.hasEndpointAlias) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.endpointAlias), r, DecodeAliasAddress));
  if (m.hasPerCallInfo) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.perCallInfo), r, DecodePerCallInfo));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 8);
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasNeedResponse = known.Next();
  m.hasCapacity = known.Next();
  m.hasIrrStatus = known.Next();
  m.hasUnsolicited = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasNeedResponse) m.needResponse = PerReadOpenBoolean(r);
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasIrrStatus) KELVRA_TRY(DecodeOpen(m.irrStatus, r, DecodeInfoRequestResponseStatus));
  if (m.hasUnsolicited) m.unsolicited = PerReadOpenBoolean(r);
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
