#include "h225/call/fast_start.h"
#include "h225/call/information_uuie_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/protocol_version.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeInformationUUIE(InformationUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 6);
  m.hasCallIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasFastStart = known.Next();
  m.hasFastConnectRefused = known.Next();
  m.hasCircuitInfo = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasFastStart) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.fastStart), r, DecodeFastStartElement));
  if (m.hasFastConnectRefused) PerPassOverOpenType(r);
  if (m.hasCircuitInfo) KELVRA_TRY(DecodeOpen(m.circuitInfo, r, DecodeCircuitInfo));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeCallStatusUUIE(CallStatusUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasTokens = flags.Next();
  m.hasCryptoTokens = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeCallIdentifier(m.callIdentifier, r));
  if (m.hasTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
