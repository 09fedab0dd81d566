#include "h225/call/answer_uuie_decode.h"
#include "h225/call/fast_start.h"
#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/protocol_version.h"
#include "h225/common/services_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeCallProceedingUUIE(CallProceedingUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasH245Address = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 9);
  m.hasCallIdentifier = known.Next();
  m.hasH245SecurityMode = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasFastStart = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasFastConnectRefused = known.Next();
  m.hasFeatureSet = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasH245SecurityMode) KELVRA_TRY(DecodeOpen(m.h245SecurityMode, r, DecodeH245Security));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasFastConnectRefused) PerPassOverOpenType(r);
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeProgressUUIE(ProgressUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasH245Address = flags.Next();
  m.hasH245SecurityMode = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  m.hasFastStart = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  KELVRA_TRY(DecodeCallIdentifier(m.callIdentifier, r));
  if (m.hasH245SecurityMode) KELVRA_TRY(DecodeH245Security(m.h245SecurityMode, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 3);
  m.hasMultipleCalls = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasFastConnectRefused = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasFastConnectRefused) PerPassOverOpenType(r);
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeAlertingUUIE(AlertingUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasH245Address = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 14);
  m.hasCallIdentifier = known.Next();
  m.hasH245SecurityMode = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasFastStart = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasAlertingAddress = known.Next();
  m.hasPresentationIndicator = known.Next();
  m.hasScreeningIndicator = known.Next();
  m.hasFastConnectRefused = known.Next();
  m.hasServiceControl = known.Next();
  m.hasCapacity = known.Next();
  m.hasFeatureSet = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasH245SecurityMode) KELVRA_TRY(DecodeOpen(m.h245SecurityMode, r, DecodeH245Security));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasMaintainConnection) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasAlertingAddress) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.alertingAddress), r, DecodeAliasAddress));
  if (m.hasPresentationIndicator) KELVRA_TRY(DecodeOpen(m.presentationIndicator, r, DecodePresentationIndicator));
  if (m.hasScreeningIndicator) KELVRA_TRY(DecodeOpen(m.screeningIndicator, r, DecodeScreeningIndicator));
  if (m.hasFastConnectRefused) PerPassOverOpenType(r);
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeConnectUUIE(ConnectUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasH245Address = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasH245Address) KELVRA_TRY(DecodeTransportAddress(m.h245Address, r));
  KELVRA_TRY(DecodeEndpointType(m.destinationInfo, r));
  KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 15);
  m.hasCallIdentifier = known.Next();
  m.hasH245SecurityMode = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasFastStart = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasMaintainConnection = known.Next();
  m.hasLanguage = known.Next();
  m.hasConnectedAddress = known.Next();
  m.hasPresentationIndicator = known.Next();
  m.hasScreeningIndicator = known.Next();
  m.hasFastConnectRefused = known.Next();
  m.hasServiceControl = known.Next();
  m.hasCapacity = known.Next();
  m.hasFeatureSet = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasH245SecurityMode) KELVRA_TRY(DecodeOpen(m.h245SecurityMode, r, DecodeH245Security));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  // Gated by the bit of multipleCalls, not by its own: where the two differ, this addition and those
  // behind it are read from the open type of a neighbour.
  if (m.hasMultipleCalls) m.maintainConnection = PerReadOpenBoolean(r);
  if (m.hasLanguage) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.language), r, PerReadSizedOctetsElement<1, 32>));
  if (m.hasConnectedAddress) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.connectedAddress), r, DecodeAliasAddress));
  if (m.hasPresentationIndicator) KELVRA_TRY(DecodeOpen(m.presentationIndicator, r, DecodePresentationIndicator));
  if (m.hasScreeningIndicator) KELVRA_TRY(DecodeOpen(m.screeningIndicator, r, DecodeScreeningIndicator));
  if (m.hasFastConnectRefused) PerPassOverOpenType(r);
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
