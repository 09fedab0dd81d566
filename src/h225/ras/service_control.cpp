#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/ras/service_control_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeCallSpecific(ServiceControlIndication::CallSpecific& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeCallIdentifier(m.callIdentifier, r));
  KELVRA_TRY(DecodeGloballyUniqueID(m.conferenceID, r));
  m.answeredCall = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeServiceControlIndication(ServiceControlIndication& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 9);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasEndpointIdentifier = flags.Next();
  m.hasCallSpecific = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  m.hasIntegrityCheckValue = flags.Next();
  m.hasFeatureSet = flags.Next();
  m.hasGenericData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasEndpointIdentifier) KELVRA_TRY(DecodeIdentifierString(m.endpointIdentifier, r));
  if (m.hasCallSpecific) KELVRA_TRY(DecodeCallSpecific(m.callSpecific, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeICV(m.integrityCheckValue, r));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeFeatureSet(m.featureSet, r));
  if (m.hasGenericData) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeServiceControlResponse(ServiceControlResponse& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasResult = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  m.hasIntegrityCheckValue = flags.Next();
  m.hasFeatureSet = flags.Next();
  m.hasGenericData = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasResult) KELVRA_TRY(DecodeNullChoice(m.result, r));
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeICV(m.integrityCheckValue, r));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeFeatureSet(m.featureSet, r));
  if (m.hasGenericData) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
