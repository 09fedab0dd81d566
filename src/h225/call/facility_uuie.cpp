#include "h225/call/facility_uuie_decode.h"
#include "h225/call/fast_start.h"
#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/protocol_version.h"
#include "h225/common/services_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeConferenceList(ConferenceList& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasConferenceID = flags.Next();
  m.hasConferenceAlias = flags.Next();
  m.hasNonStandardData = flags.Next();
  if (m.hasConferenceID) KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  if (m.hasConferenceAlias) KELVRA_TRY(DecodeAliasAddress(m.conferenceAlias, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeFacilityUUIE(FacilityUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasAlternativeAddress = flags.Next();
  m.hasAlternativeAliasAddress = flags.Next();
  m.hasConferenceID = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasAlternativeAddress) KELVRA_TRY(DecodeTransportAddress(m.alternativeAddress, r));
  if (m.hasAlternativeAliasAddress)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.alternativeAliasAddress), r, DecodeAliasAddress));
  if (m.hasConferenceID) KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  KELVRA_TRY(DecodeNullChoice(m.reason, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 16);
  m.hasCallIdentifier = known.Next();
  m.hasDestExtraCallInfo = known.Next();
  m.hasRemoteExtensionAddress = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasConferences = known.Next();
  m.hasH245Address = known.Next();
  m.hasFastStart = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasFastConnectRefused = known.Next();
  m.hasServiceControl = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasDestinationInfo = known.Next();
  m.hasH245SecurityMode = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasDestExtraCallInfo) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.destExtraCallInfo), r, DecodeAliasAddress));
  if (m.hasRemoteExtensionAddress) KELVRA_TRY(DecodeOpen(m.remoteExtensionAddress, r, DecodeAliasAddress));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasConferences) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.conferences), r, DecodeConferenceList));
  if (m.hasH245Address) KELVRA_TRY(DecodeOpen(m.h245Address, r, DecodeTransportAddress));
  if (m.hasFastStart) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasFastConnectRefused) PerPassOverOpenType(r);
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasDestinationInfo) KELVRA_TRY(DecodeOpen(m.destinationInfo, r, DecodeEndpointType));
  if (m.hasH245SecurityMode) KELVRA_TRY(DecodeOpen(m.h245SecurityMode, r, DecodeH245Security));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
