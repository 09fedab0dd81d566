#include "h225/addresses_decode.h"
#include "h225/crypto_tokens_decode.h"
#include "h225/decode.h"
#include "h225/endpoint_type_decode.h"
#include "h225/endpoints_decode.h"
#include "h225/gatekeeper_discovery_decode.h"
#include "h225/generic_data_decode.h"
#include "h225/h235_tokens_decode.h"
#include "h225/non_standard_decode.h"
#include "h225/services_decode.h"

namespace kelvra::h225 {

Status DecodeGatekeeperRequest(GatekeeperRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.hasGatekeeperIdentifier = PerReadBit(r);
  m.hasCallServices = PerReadBit(r);
  m.hasEndpointAlias = PerReadBit(r);
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  KELVRA_TRY(DecodeEndpointType(m.endpointType, r));
  if (m.hasGatekeeperIdentifier) PerReadCharacters16(m.gatekeeperIdentifier, r, PerReadNumber<uint32_t>(r, 1, 128));
  if (m.hasCallServices) KELVRA_TRY(DecodeQseriesOptions(m.callServices, r));
  if (m.hasEndpointAlias)
    KELVRA_TRY(DecodeSequenceOf(r, &m.endpointAliasCount, Slot<AliasAddress>(&m.endpointAlias), DecodeAliasAddress));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasAlternateEndpoints = PerReadAdditionBit(r, additions, 0);
  m.hasTokens = PerReadAdditionBit(r, additions, 1);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 2);
  m.hasAuthenticationCapability = PerReadAdditionBit(r, additions, 3);
  m.hasAlgorithmOIDs = PerReadAdditionBit(r, additions, 4);
  m.hasIntegrity = PerReadAdditionBit(r, additions, 5);
  m.hasIntegrityCheckValue = PerReadAdditionBit(r, additions, 6);
  m.hasSupportsAltGK = PerReadAdditionBit(r, additions, 7);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 8);
  m.hasGenericData = PerReadAdditionBit(r, additions, 9);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 10);
  if (m.hasAlternateEndpoints)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.alternateEndpointsCount, Slot<Endpoint>(&m.alternateEndpoints), DecodeEndpoint);
    }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasAuthenticationCapability)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.authenticationCapabilityCount,
                              Slot<h235::AuthenticationMechanism>(&m.authenticationCapability),
                              h235::DecodeAuthenticationMechanism);
    }));
  if (m.hasAlgorithmOIDs)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.algorithmOIDsCount, Slot<ObjectIdentifierValue>(&m.algorithmOIDs),
                              DecodeObjectIdentifier);
    }));
  if (m.hasIntegrity)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.integrityCount, Slot<IntegrityMechanism>(&m.integrity), DecodeIntegrityMechanism);
    }));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(InOpenType(r, [&] { return DecodeICV(m.integrityCheckValue, r); }));
  if (m.hasSupportsAltGK) PerSkipOpenTypes(r, 1);
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  if (m.hasGenericData)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.genericDataCount, Slot<GenericData>(&m.genericData), DecodeGenericData);
    }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeGatekeeperConfirm(GatekeeperConfirm& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.hasGatekeeperIdentifier = PerReadBit(r);
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasGatekeeperIdentifier) PerReadCharacters16(m.gatekeeperIdentifier, r, PerReadNumber<uint32_t>(r, 1, 128));
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasAlternateGatekeeper = PerReadAdditionBit(r, additions, 0);
  m.hasAuthenticationMode = PerReadAdditionBit(r, additions, 1);
  m.hasTokens = PerReadAdditionBit(r, additions, 2);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 3);
  m.hasAlgorithmOID = PerReadAdditionBit(r, additions, 4);
  m.hasIntegrity = PerReadAdditionBit(r, additions, 5);
  m.hasIntegrityCheckValue = PerReadAdditionBit(r, additions, 6);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 7);
  m.hasGenericData = PerReadAdditionBit(r, additions, 8);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 9);
  if (m.hasAlternateGatekeeper)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.alternateGatekeeperCount, Slot<AlternateGK>(&m.alternateGatekeeper),
                              DecodeAlternateGK);
    }));
  if (m.hasAuthenticationMode)
    KELVRA_TRY(InOpenType(r, [&] { return h235::DecodeAuthenticationMechanism(m.authenticationMode, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasAlgorithmOID) {
    KELVRA_TRY(InOpenType(r, [&] {
      PerReadObjectIdentifier(m.algorithmOID, r);
      return kDecoded;
    }));
  }
  if (m.hasIntegrity)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.integrityCount, Slot<IntegrityMechanism>(&m.integrity), DecodeIntegrityMechanism);
    }));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(InOpenType(r, [&] { return DecodeICV(m.integrityCheckValue, r); }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  if (m.hasGenericData)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.genericDataCount, Slot<GenericData>(&m.genericData), DecodeGenericData);
    }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeGatekeeperReject(GatekeeperReject& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.hasGatekeeperIdentifier = PerReadBit(r);
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasGatekeeperIdentifier) PerReadCharacters16(m.gatekeeperIdentifier, r, PerReadNumber<uint32_t>(r, 1, 128));
  KELVRA_TRY(DecodeNullChoice(m.rejectReason, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasAltGKInfo = PerReadAdditionBit(r, additions, 0);
  m.hasTokens = PerReadAdditionBit(r, additions, 1);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 2);
  m.hasIntegrityCheckValue = PerReadAdditionBit(r, additions, 3);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 4);
  m.hasGenericData = PerReadAdditionBit(r, additions, 5);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 6);
  if (m.hasAltGKInfo) KELVRA_TRY(InOpenType(r, [&] { return DecodeAltGKInfo(m.altGKInfo, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(InOpenType(r, [&] { return DecodeICV(m.integrityCheckValue, r); }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  if (m.hasGenericData)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.genericDataCount, Slot<GenericData>(&m.genericData), DecodeGenericData);
    }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

}  // namespace kelvra::h225
