#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/ras/location_decode.h"
#include "h225/ras/route_reject_reason_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeLocationRequest(LocationRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasEndpointIdentifier = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasEndpointIdentifier) KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destinationInfo), r, DecodeAliasAddress));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeTransportAddress(m.replyAddress, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  m.hasSourceInfo = PerReadAdditionBit(r, additions);
  m.hasCanMapAlias = PerReadAdditionBit(r, additions);
  m.hasGatekeeperIdentifier = PerReadAdditionBit(r, additions);
  m.hasTokens = PerReadAdditionBit(r, additions);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions);
  m.hasIntegrityCheckValue = PerReadAdditionBit(r, additions);
  m.hasDesiredProtocols = PerReadAdditionBit(r, additions);
  m.hasDesiredTunnelledProtocol = PerReadAdditionBit(r, additions);
  m.hasFeatureSet = PerReadAdditionBit(r, additions);
  m.hasGenericData = PerReadAdditionBit(r, additions);
  m.hasHopCount = PerReadAdditionBit(r, additions);
  m.hasCircuitInfo = PerReadAdditionBit(r, additions);
  PerNoteUnknownAdditions(r, additions);
  if (m.hasSourceInfo) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.sourceInfo), r, DecodeAliasAddress));
  if (m.hasCanMapAlias) m.canMapAlias = PerReadOpenBoolean(r);
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeOpen(m.gatekeeperIdentifier, r, DecodeIdentifierString));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasDesiredProtocols)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.desiredProtocols), r, DecodeSupportedProtocols));
  if (m.hasDesiredTunnelledProtocol) KELVRA_TRY(DecodeOpen(m.desiredTunnelledProtocol, r, DecodeTunnelledProtocol));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  if (m.hasHopCount) m.hopCount = PerReadOpenNumber<uint8_t>(r, 1, 255);
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeLocationConfirm(LocationConfirm& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeTransportAddress(m.callSignalAddress, r));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  m.hasDestinationInfo = PerReadAdditionBit(r, additions);
  m.hasDestExtraCallInfo = PerReadAdditionBit(r, additions);
  m.hasDestinationType = PerReadAdditionBit(r, additions);
  m.hasRemoteExtensionAddress = PerReadAdditionBit(r, additions);
  m.hasAlternateEndpoints = PerReadAdditionBit(r, additions);
  m.hasTokens = PerReadAdditionBit(r, additions);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions);
  m.hasIntegrityCheckValue = PerReadAdditionBit(r, additions);
  m.hasAlternateTransportAddresses = PerReadAdditionBit(r, additions);
  m.hasSupportedProtocols = PerReadAdditionBit(r, additions);
  m.hasMultipleCalls = PerReadAdditionBit(r, additions);
  m.hasFeatureSet = PerReadAdditionBit(r, additions);
  m.hasGenericData = PerReadAdditionBit(r, additions);
  m.hasCircuitInfo = PerReadAdditionBit(r, additions);
  m.hasServiceControl = PerReadAdditionBit(r, additions);
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
  if (m.hasAlternateTransportAddresses)
    KELVRA_TRY(DecodeOpen(m.alternateTransportAddresses, r, DecodeAlternateTransportAddresses));
  if (m.hasSupportedProtocols)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.supportedProtocols), r, DecodeSupportedProtocols));
  if (m.hasMultipleCalls) m.multipleCalls = PerReadOpenBoolean(r);
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeLocationReject(LocationReject& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeRouteRejectReason(m.rejectReason, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  m.hasAltGKInfo = PerReadAdditionBit(r, additions);
  m.hasTokens = PerReadAdditionBit(r, additions);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions);
  m.hasIntegrityCheckValue = PerReadAdditionBit(r, additions);
  m.hasFeatureSet = PerReadAdditionBit(r, additions);
  m.hasGenericData = PerReadAdditionBit(r, additions);
  m.hasServiceControl = PerReadAdditionBit(r, additions);
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAltGKInfo) KELVRA_TRY(DecodeOpen(m.altGKInfo, r, DecodeAltGKInfo));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
