#include "h225/addresses_decode.h"
#include "h225/circuits_decode.h"
#include "h225/crypto_tokens_decode.h"
#include "h225/decode.h"
#include "h225/generic_data_decode.h"
#include "h225/h235_tokens_decode.h"
#include "h225/identifiers_decode.h"
#include "h225/non_standard_decode.h"
#include "h225/protocol_version.h"
#include "h225/release_complete_uuie_decode.h"
#include "h225/services_decode.h"

namespace kelvra::h225 {

Status DecodeReleaseCompleteReason(ReleaseCompleteReason& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 12);
  if (m.isExtension) {
    switch (index) {
      case 5: return InOpenType(r, [&] { return DecodeNonStandardParameter(m.nonStandardReason, r); });
      case 6:
        return InOpenType(r, [&] {
          PerReadFixedOctets(m.replaceWithConferenceInvite, r, 16);
          return kDecoded;
        });
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
    case 11: return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeCallTerminationCause(CallTerminationCause& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeReleaseCompleteReason(m.releaseCompleteReason, r);
    case 1: PerReadSizedOctets(m.releaseCompleteCauseIE, r, 31, 2); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeReleaseCompleteUUIE(ReleaseCompleteUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasReason = PerReadBit(r);
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasReason) KELVRA_TRY(DecodeReleaseCompleteReason(m.reason, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasCallIdentifier = PerReadAdditionBit(r, additions, 0);
  m.hasTokens = PerReadAdditionBit(r, additions, 1);
  m.hasCryptoTokens = PerReadAdditionBit(r, additions, 2);
  m.hasBusyAddress = PerReadAdditionBit(r, additions, 3);
  m.hasPresentationIndicator = PerReadAdditionBit(r, additions, 4);
  m.hasScreeningIndicator = PerReadAdditionBit(r, additions, 5);
  m.hasCapacity = PerReadAdditionBit(r, additions, 6);
  m.hasServiceControl = PerReadAdditionBit(r, additions, 7);
  m.hasFeatureSet = PerReadAdditionBit(r, additions, 8);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 9);
  if (m.hasCallIdentifier) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallIdentifier(m.callIdentifier, r); }));
  if (m.hasTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.tokensCount, Slot<h235::ClearToken>(&m.tokens), h235::DecodeClearToken);
    }));
  if (m.hasCryptoTokens)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.cryptoTokensCount, Slot<CryptoH323Token>(&m.cryptoTokens), DecodeCryptoH323Token);
    }));
  if (m.hasBusyAddress)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.busyAddressCount, Slot<AliasAddress>(&m.busyAddress), DecodeAliasAddress);
    }));
  if (m.hasPresentationIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodePresentationIndicator(m.presentationIndicator, r); }));
  if (m.hasScreeningIndicator)
    KELVRA_TRY(InOpenType(r, [&] { return DecodeScreeningIndicator(m.screeningIndicator, r); }));
  if (m.hasCapacity) KELVRA_TRY(InOpenType(r, [&] { return DecodeCallCapacity(m.capacity, r); }));
  if (m.hasServiceControl)
    KELVRA_TRY(InOpenType(r, [&] {
      return DecodeSequenceOf(r, &m.serviceControlCount, Slot<ServiceControlSession>(&m.serviceControl),
                              DecodeServiceControlSession);
    }));
  if (m.hasFeatureSet) KELVRA_TRY(InOpenType(r, [&] { return DecodeFeatureSet(m.featureSet, r); }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

}  // namespace kelvra::h225
