#include "h225/circuits_decode.h"
#include "h225/crypto_tokens_decode.h"
#include "h225/decode.h"
#include "h225/fast_start.h"
#include "h225/h235_tokens_decode.h"
#include "h225/identifiers_decode.h"
#include "h225/information_uuie_decode.h"
#include "h225/protocol_version.h"

namespace kelvra::h225 {

Status DecodeInformationUUIE(InformationUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 0);
  m.hasTokens = PerReadAdditionBit(r, additions, 1);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 2);
  m.hasFastStart = PerReadAdditionBit(r, additions, 3);
  m.hasFastConnectRefused = PerReadAdditionBit(r, additions, 4);
  m.hasCircuitInfo = PerReadAdditionBit(r, additions, 5);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 6);
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasFastStart) KELVRA_TRY(InOpenType(r, [&] { return DecodeFastStart(r, &m.fastStartCount, &m.fastStart); }));
  if (m.hasFastConnectRefused) PerSkipOpenTypes(r, 1);
  if (m.hasCircuitInfo) KELVRA_TRY(InOpenType(r, [&] { return DecodeCircuitInfo(m.circuitInfo, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeCallStatusUUIE(CallStatusUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasTokens = PerReadBit(r);
  m.hasCryptoTokens = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  KELVRA_TRY(DecodeCallIdentifier(m.callIdentifier, r));
  if (m.hasTokens)
    KELVRA_TRY(DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken));
  if (m.hasCryptoTokens)
    KELVRA_TRY(
        DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
