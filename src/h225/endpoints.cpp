#include "h225/addresses_decode.h"
#include "h225/circuits_decode.h"
#include "h225/crypto_tokens_decode.h"
#include "h225/decode.h"
#include "h225/endpoint_type_decode.h"
#include "h225/endpoints_decode.h"
#include "h225/generic_data_decode.h"
#include "h225/h235_tokens_decode.h"
#include "h225/non_standard_decode.h"

namespace kelvra::h225 {

Status DecodeAlternateTransportAddresses(AlternateTransportAddresses& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasAnnexE = PerReadBit(r);
  if (m.hasAnnexE)
    KELVRA_TRY(DecodeSequenceOf(r, &m.annexECount, Slot<TransportAddress>(&m.annexE), DecodeTransportAddress));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeEndpoint(Endpoint& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasNonStandardData = PerReadBit(r);
  m.hasAliasAddress = PerReadBit(r);
  m.hasCallSignalAddress = PerReadBit(r);
  m.hasRasAddress = PerReadBit(r);
  m.hasEndpointType = PerReadBit(r);
  m.hasTokens = PerReadBit(r);
  m.hasCryptoTokens = PerReadBit(r);
  m.hasPriority = PerReadBit(r);
  m.hasRemoteExtensionAddress = PerReadBit(r);
  m.hasDestExtraCallInfo = PerReadBit(r);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasAliasAddress)
    KELVRA_TRY(DecodeSequenceOf(r, &m.aliasAddressCount, Slot<AliasAddress>(&m.aliasAddress), DecodeAliasAddress));
  if (m.hasCallSignalAddress)
    KELVRA_TRY(DecodeSequenceOf(r, &m.callSignalAddressCount, Slot<TransportAddress>(&m.callSignalAddress),
                                DecodeTransportAddress));
  if (m.hasRasAddress)
    KELVRA_TRY(DecodeSequenceOf(r, &m.rasAddressCount, Slot<TransportAddress>(&m.rasAddress), DecodeTransportAddress));
  if (m.hasEndpointType) KELVRA_TRY(DecodeEndpointType(m.endpointType, r));
  if (m.hasTokens)
    KELVRA_TRY(DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken));
  if (m.hasCryptoTokens)
    KELVRA_TRY(
        DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token));
  if (m.hasPriority) m.priority = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.hasRemoteExtensionAddress)
    KELVRA_TRY(DecodeSequenceOf(r, &m.remoteExtensionAddressCount, Slot<AliasAddress>(&m.remoteExtensionAddress),
                                DecodeAliasAddress));
  if (m.hasDestExtraCallInfo)
    KELVRA_TRY(
        DecodeSequenceOf(r, &m.destExtraCallInfoCount, Slot<AliasAddress>(&m.destExtraCallInfo), DecodeAliasAddress));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasAlternateTransportAddresses = PerReadAdditionBit(r, additions, 0);
  m.hasCircuitInfo = PerReadAdditionBit(r, additions, 1);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 2);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 3);
  if (m.hasAlternateTransportAddresses)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeAlternateTransportAddresses(m.alternateTransportAddresses, r); }));
  if (m.hasCircuitInfo) KELVRA_TRY(InOpenType(r, [&] { return DecodeCircuitInfo(m.circuitInfo, r); }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeAlternateGK(AlternateGK& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasGatekeeperIdentifier = PerReadBit(r);
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  if (m.hasGatekeeperIdentifier) PerReadCharacters16(m.gatekeeperIdentifier, r, PerReadNumber<uint32_t>(r, 1, 128));
  m.needToRegister = PerReadBit(r);
  m.priority = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeAltGKInfo(AltGKInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(
      DecodeSequenceOf(r, &m.alternateGatekeeperCount, Slot<AlternateGK>(&m.alternateGatekeeper), DecodeAlternateGK));
  m.altGKisPermanent = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
