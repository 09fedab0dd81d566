#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoint_type_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeAlternateTransportAddresses(AlternateTransportAddresses& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasAnnexE = flags.Next();
  if (m.hasAnnexE) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.annexE), r, DecodeTransportAddress));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeEndpoint(Endpoint& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 11);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasAliasAddress = flags.Next();
  m.hasCallSignalAddress = flags.Next();
  m.hasRasAddress = flags.Next();
  m.hasEndpointType = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  m.hasPriority = flags.Next();
  m.hasRemoteExtensionAddress = flags.Next();
  m.hasDestExtraCallInfo = flags.Next();
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasAliasAddress) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.aliasAddress), r, DecodeAliasAddress));
  if (m.hasCallSignalAddress) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.callSignalAddress), r, DecodeTransportAddress));
  if (m.hasRasAddress) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.rasAddress), r, DecodeTransportAddress));
  if (m.hasEndpointType) KELVRA_TRY(DecodeEndpointType(m.endpointType, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasPriority) m.priority = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.hasRemoteExtensionAddress)
    KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.remoteExtensionAddress), r, DecodeAliasAddress));
  if (m.hasDestExtraCallInfo) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.destExtraCallInfo), r, DecodeAliasAddress));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 3);
  m.hasAlternateTransportAddresses = known.Next();
  m.hasCircuitInfo = known.Next();
  m.hasFeatureSet = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasAlternateTransportAddresses)
    KELVRA_TRY(DecodeOpen(m.alternateTransportAddresses, r, DecodeAlternateTransportAddresses));
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeAlternateGK(AlternateGK& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasGatekeeperIdentifier = flags.Next();
  KELVRA_TRY(DecodeTransportAddress(m.rasAddress, r));
  if (m.hasGatekeeperIdentifier) KELVRA_TRY(DecodeIdentifierString(m.gatekeeperIdentifier, r));
  m.needToRegister = PerReadBit(r);
  m.priority = PerReadNumber<uint8_t>(r, 0, 127);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeAltGKInfo(AltGKInfo& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.alternateGatekeeper), r, DecodeAlternateGK));
  m.altGKisPermanent = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
