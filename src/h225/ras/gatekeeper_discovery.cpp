#include "h225/common/addresses_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/ras/gatekeeper_discovery_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeGatekeeperRequest(GatekeeperRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 5);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  m.hasCallServices = flags.Next();
  m.hasEndpointAlias = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  KELVRA_TRY(DecodeEndpointType(m.endpointType, r));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  if (m.hasCallServices) KELVRA_TRY(DecodeQseriesOptions(m.callServices, r));
  if (m.hasEndpointAlias) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.endpointAlias), r, DecodeAliasAddress));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 10);
  m.hasAlternateEndpoints = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasAuthenticationCapability = known.Next();
  m.hasAlgorithmOIDs = known.Next();
  m.hasIntegrity = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasSupportsAltGK = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAlternateEndpoints) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.alternateEndpoints), r, DecodeEndpoint));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasAuthenticationCapability)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.authenticationCapability), r, h235::DecodeAuthenticationMechanism));
  if (m.hasAlgorithmOIDs) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.algorithmOIDs), r, PerReadObjectIdentifier));
  if (m.hasIntegrity) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.integrity), r, DecodeIntegrityMechanism));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasSupportsAltGK) PerPassOverOpenType(r);
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeGatekeeperConfirm(GatekeeperConfirm& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 9);
  m.hasAlternateGatekeeper = known.Next();
  m.hasAuthenticationMode = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasAlgorithmOID = known.Next();
  m.hasIntegrity = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAlternateGatekeeper)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.alternateGatekeeper), r, DecodeAlternateGK));
  if (m.hasAuthenticationMode) KELVRA_TRY(DecodeOpen(m.authenticationMode, r, h235::DecodeAuthenticationMechanism));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasAlgorithmOID) {
    DecodeOpen(m.algorithmOID, r, PerReadObjectIdentifier);
  }
  if (m.hasIntegrity) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.integrity), r, DecodeIntegrityMechanism));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeGatekeeperReject(GatekeeperReject& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  KELVRA_TRY(DecodeNullChoice(m.rejectReason, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 6);
  m.hasAltGKInfo = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasFeatureSet = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAltGKInfo) KELVRA_TRY(DecodeOpen(m.altGKInfo, r, DecodeAltGKInfo));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
