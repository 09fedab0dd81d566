#include "h225/common/addresses_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/services_decode.h"
#include "h225/common/usage_decode.h"
#include "h225/common/uuies_requested_decode.h"
#include "h225/ras/info_request_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeInfoRequest(InfoRequest& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandardData = flags.Next();
  m.hasReplyAddress = flags.Next();
  m.requestSeqNum = PerReadNumber<uint16_t>(r, 1, 65535);
  m.callReferenceValue = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.hasNonStandardData) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandardData, r));
  if (m.hasReplyAddress) KELVRA_TRY(DecodeTransportAddress(m.replyAddress, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 11);
  m.hasCallIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasIntegrityCheckValue = known.Next();
  m.hasUuiesRequested = known.Next();
  m.hasCallLinkage = known.Next();
  m.hasUsageInfoRequested = known.Next();
  m.hasSegmentedResponseSupported = known.Next();
  m.hasNextSegmentRequested = known.Next();
  m.hasCapacityInfoRequested = known.Next();
  m.hasGenericData = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasIntegrityCheckValue) KELVRA_TRY(DecodeOpen(m.integrityCheckValue, r, DecodeICV));
  if (m.hasUuiesRequested) KELVRA_TRY(DecodeOpen(m.uuiesRequested, r, DecodeUUIEsRequested));
  if (m.hasCallLinkage) KELVRA_TRY(DecodeOpen(m.callLinkage, r, DecodeCallLinkage));
  if (m.hasUsageInfoRequested) KELVRA_TRY(DecodeOpen(m.usageInfoRequested, r, DecodeRasUsageInfoTypes));
  if (m.hasSegmentedResponseSupported) PerPassOverOpenType(r);
  if (m.hasNextSegmentRequested) m.nextSegmentRequested = PerReadOpenNumber<uint16_t>(r, 0, 65535);
  if (m.hasCapacityInfoRequested) PerPassOverOpenType(r);
  if (m.hasGenericData) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.genericData), r, DecodeGenericData));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
