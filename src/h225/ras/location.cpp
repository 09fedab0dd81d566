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
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasEndpointIdentifier = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasEndpointIdentifier) KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destinationInfo), r, DecodeAliasAddress));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeTransportAddress(m.replyAddress, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 12);
  m.hasSourceInfo = known.Next();
  m.hasCanMapAlias = known.Next();
  m.hasGatekeeperIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasDesiredProtocols = known.Next();
  m.hasDesiredTunnelledProtocol = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  m.hasHopCount = known.Next();
  m.hasCircuitInfo = known.Next();
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
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeTransportAddress(m.callSignalAddress, r));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 15);
  m.hasDestinationInfo = known.Next();
  m.hasDestExtraCallInfo = known.Next();
  m.hasDestinationType = known.Next();
  m.hasRemoteExtensionAddress = known.Next();
  m.hasAlternateEndpoints = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasAlternateTransportAddresses = known.Next();
  m.hasSupportedProtocols = known.Next();
  m.hasMultipleCalls = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasServiceControl = known.Next();
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
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  KELVRA_TRY(DecodeRouteRejectReason(m.rejectReason, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 7);
  m.hasAltGKInfo = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  m.hasServiceControl = known.Next();
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
