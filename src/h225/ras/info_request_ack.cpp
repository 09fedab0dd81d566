#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/endpoints_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/ras/info_request_ack_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeInfoRequestAck(InfoRequestAck& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 5);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  m.hasIntegrityCheckValue = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeICV(m.integrityCheckValue, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeInfoRequestNak(InfoRequestNak& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasAltGKInfo = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  m.hasIntegrityCheckValue = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  KELVRA_TRY(DecodeNullChoice(m.nakReason, r));
  if (m.hasAltGKInfo) KELVRA_TRY(DecodeAltGKInfo(m.altGKInfo, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeICV(m.integrityCheckValue, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
