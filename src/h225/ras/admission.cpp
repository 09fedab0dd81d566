#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/common/usage_decode.h"
#include "h225/common/uuies_requested_decode.h"
#include "h225/ras/admission_decode.h"
#include "h225/ras/route_reject_reason_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeAdmissionRequest(AdmissionRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasCallModel = flags.Next();
  m.hasDestinationInfo = flags.Next();
  m.hasDestCallSignalAddress = flags.Next();
  m.hasDestExtraCallInfo = flags.Next();
  m.hasSrcCallSignalAddress = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasCallServices = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeCallType(m.callType, r));
  if (m.hasCallModel) KELVRA_TRY(DecodeNullChoice(m.callModel, r));
  KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  if (m.hasDestinationInfo) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destinationInfo), r, DecodeAliasAddress));
  if (m.hasDestCallSignalAddress) KELVRA_TRY(DecodeTransportAddress(m.destCallSignalAddress, r));
  if (m.hasDestExtraCallInfo) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destExtraCallInfo), r, DecodeAliasAddress));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.srcInfo), r, DecodeAliasAddress));
  if (m.hasSrcCallSignalAddress) KELVRA_TRY(DecodeTransportAddress(m.srcCallSignalAddress, r));
  m.bandWidth = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  m.callReferenceValue = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasCallServices) KELVRA_TRY(DecodeQseriesOptions(m.callServices, r));
  KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  flags = PerReadFlags(r, 2);
  m.activeMC = flags.Next();
  m.answerCall = flags.Next();
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 18);
  m.hasCanMapAlias = known.Next();
  m.hasCallIdentifier = known.Next();
  m.hasSrcAlternatives = known.Next();
  m.hasDestAlternatives = known.Next();
  m.hasGatekeeperIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasTransportQOS = known.Next();
  m.hasWillSupplyUUIEs = known.Next();
  m.hasCallLinkage = known.Next();
  m.hasGatewayDataRate = known.Next();
  m.hasCapacity = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasDesiredProtocols = known.Next();
  m.hasDesiredTunnelledProtocol = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCanMapAlias) m.canMapAlias = PerReadOpenBoolean(r);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasSrcAlternatives) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.srcAlternatives), r, DecodeEndpoint));
  if (m.hasDestAlternatives) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.destAlternatives), r, DecodeEndpoint));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeOpen(m.gatekeeperIdentifier, r, DecodeIdentifierString));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasTransportQOS) KELVRA_TRY(DecodeOpen(m.transportQOS, r, DecodeNullChoice));
  if (m.hasWillSupplyUUIEs) m.willSupplyUUIEs = PerReadOpenBoolean(r);
  if (m.hasCallLinkage) KELVRA_TRY(DecodeOpen(m.callLinkage, r, DecodeCallLinkage));
  if (m.hasGatewayDataRate) KELVRA_TRY(DecodeOpen(m.gatewayDataRate, r, DecodeDataRate));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasDesiredProtocols)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.desiredProtocols), r, DecodeSupportedProtocols));
  if (m.hasDesiredTunnelledProtocol) KELVRA_TRY(DecodeOpen(m.desiredTunnelledProtocol, r, DecodeTunnelledProtocol));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeAdmissionConfirm(AdmissionConfirm& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasIrrFrequency = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  m.bandWidth = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  KELVRA_TRY(DecodeNullChoice(m.callModel, r));
  KELVRA_TRY(DecodeTransportAddress(m.destCallSignalAddress, r));
  if (m.hasIrrFrequency) m.irrFrequency = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 21);
  m.hasDestinationInfo = known.Next();
  m.hasDestExtraCallInfo = known.Next();
  m.hasDestinationType = known.Next();
  m.hasRemoteExtensionAddress = known.Next();
  m.hasAlternateEndpoints = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasTransportQOS = known.Next();
  m.hasWillRespondToIRR = known.Next();
  m.hasUuiesRequested = known.Next();
  m.hasLanguage = known.Next();
  m.hasAlternateTransportAddresses = known.Next();
  m.hasUseSpecifiedTransport = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasUsageSpec = known.Next();
  m.hasSupportedProtocols = known.Next();
  m.hasServiceControl = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasDestinationInfo) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.destinationInfo), r, DecodeAliasAddress));
  if (m.hasDestExtraCallInfo) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.destExtraCallInfo), r, DecodeAliasAddress));
  if (m.hasDestinationType) KELVRA_TRY(DecodeOpen(m.destinationType, r, DecodeEndpointType));
  if (m.hasRemoteExtensionAddress)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.remoteExtensionAddress), r, DecodeAliasAddress));
  if (m.hasAlternateEndpoints) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.alternateEndpoints), r, DecodeEndpoint));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasTransportQOS) KELVRA_TRY(DecodeOpen(m.transportQOS, r, DecodeNullChoice));
  if (m.hasWillRespondToIRR) m.willRespondToIRR = PerReadOpenBoolean(r);
  if (m.hasUuiesRequested) KELVRA_TRY(DecodeOpen(m.uuiesRequested, r, DecodeUUIEsRequested));
  if (m.hasLanguage) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.language), r, PerReadSizedOctetsElement<1, 32>));
  if (m.hasAlternateTransportAddresses)
    KELVRA_TRY(DecodeOpen(m.alternateTransportAddresses, r, DecodeAlternateTransportAddresses));
  if (m.hasUseSpecifiedTransport) KELVRA_TRY(DecodeOpen(m.useSpecifiedTransport, r, DecodeNullChoice));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasUsageSpec) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.usageSpec), r, DecodeRasUsageSpecification));
  if (m.hasSupportedProtocols)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedProtocols), r, DecodeSupportedProtocols));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeAdmissionReject(AdmissionReject& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeRouteRejectReason(m.rejectReason, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 8);
  m.hasAltGKInfo = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasCallSignalAddress = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasServiceControl = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAltGKInfo) KELVRA_TRY(DecodeOpen(m.altGKInfo, r, DecodeAltGKInfo));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasCallSignalAddress)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.callSignalAddress), r, DecodeTransportAddress));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
