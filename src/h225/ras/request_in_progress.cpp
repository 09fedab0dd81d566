#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/ras/request_in_progress_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeRequestInProgress(RequestInProgress& m, PerReader& r) {
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
  m.delay = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
