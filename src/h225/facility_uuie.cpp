#include "h225/addresses_decode.h"
#include "h225/circuits_decode.h"
#include "h225/crypto_tokens_decode.h"
#include "h225/decode.h"
#include "h225/endpoint_type_decode.h"
#include "h225/facility_uuie_decode.h"
#include "h225/fast_start.h"
#include "h225/generic_data_decode.h"
#include "h225/h235_tokens_decode.h"
#include "h225/identifiers_decode.h"
#include "h225/non_standard_decode.h"
#include "h225/protocol_version.h"
#include "h225/services_decode.h"

namespace kelvra::h225 {

Status DecodeConferenceList(ConferenceList& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasConferenceID = PerReadBit(r);
  m.hasConferenceAlias = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  if (m.hasConferenceID) PerReadFixedOctets(m.conferenceID, r, 16);
  if (m.hasConferenceAlias) KELVRA_TRY(DecodeAliasAddress(m.conferenceAlias, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeFacilityUUIE(FacilityUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasAlternativeAddress = PerReadBit(r);
  m.hasAlternativeAliasAddress = PerReadBit(r);
  m.hasConferenceID = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasAlternativeAddress) KELVRA_TRY(DecodeTransportAddress(m.alternativeAddress, r));
  if (m.hasAlternativeAliasAddress)
    KELVRA_TRY(DecodeSequenceOf(r, &m.alternativeAliasAddressCount, Slot<AliasAddress>(&m.alternativeAliasAddress),
                                DecodeAliasAddress));
  if (m.hasConferenceID) PerReadFixedOctets(m.conferenceID, r, 16);
  KELVRA_TRY(DecodeNullChoice(m.reason, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 0);
  m.hasDestExtraCallInfo = PerReadAdditionBit(r, additions, 1);
  m.hasRemoteExtensionAddress = PerReadAdditionBit(r, additions, 2);
  m.hasTokens = PerReadAdditionBit(r, additions, 3);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 4);
  m.hasConferences = PerReadAdditionBit(r, additions, 5);
  m.hasH245Address = PerReadAdditionBit(r, additions, 6);
  m.hasFastStart = PerReadAdditionBit(r, additions, 7);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions, 8);
  m.hasMaintainConnection = PerReadAdditionBit(r, additions, 9);
  m.hasFastConnectRefused = PerReadAdditionBit(r, additions, 10);
  m.hasServiceControl = PerReadAdditionBit(r, additions, 11);
  m.hasCircuitInfo = PerReadAdditionBit(r, additions, 12);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 13);
  m.hasDestinationInfo = PerReadAdditionBit(r, additions, 14);
  m.hasH245SecurityMode = PerReadAdditionBit(r, additions, 15);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 16);
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasDestExtraCallInfo)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.destExtraCallInfoCount, Slot<AliasAddress>(&m.destExtraCallInfo),
                              DecodeAliasAddress);
    }));
  if (m.hasRemoteExtensionAddress)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeAliasAddress(m.remoteExtensionAddress, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasConferences)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.conferencesCount, Slot<ConferenceList>(&m.conferences), DecodeConferenceList);
    }));
  if (m.hasH245Address) KELVRA_TRY(InOpenType(r, [&] { return DecodeTransportAddress(m.h245Address, r); }));
  if (m.hasFastStart) KELVRA_TRY(InOpenType(r, [&] { return DecodeFastStart(r, &m.fastStartCount, &m.fastStart); }));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasFastConnectRefused) PerSkipOpenTypes(r, 1);
  if (m.hasServiceControl)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.serviceControlCount, Slot<ServiceControlSession>(&m.serviceControl),
                              DecodeServiceControlSession);
    }));
  if (m.hasCircuitInfo) KELVRA_TRY(InOpenType(r, [&] { return DecodeCircuitInfo(m.circuitInfo, r); }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  if (m.hasDestinationInfo) KELVRA_TRY(InOpenType(r, [&] { return DecodeEndpointType(m.destinationInfo, r); }));
  if (m.hasH245SecurityMode) KELVRA_TRY(InOpenType(r, [&] { return DecodeH245Security(m.h245SecurityMode, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

}  // namespace kelvra::h225
