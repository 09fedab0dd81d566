#include "h225/call/release_complete_uuie_decode.h"
#include "h225/common/addresses_decode.h"
#include "h225/common/circuits_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/generic_data_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h225/common/protocol_version.h"
#include "h225/common/services_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeReleaseCompleteReason(ReleaseCompleteReason& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 12);
  if (m.isExtension) {
    switch (index) {
      case 5: return DecodeOpen(m.nonStandardReason, r, DecodeNonStandardParameter);
      case 6: return DecodeOpen(m.replaceWithConferenceInvite, r, DecodeGloballyUniqueID);
      default: return PassOverAlternative(r, index, 11);
    }
  }
  return NullAlternative(index, 12);
}

Status DecodeCallTerminationCause(CallTerminationCause& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeReleaseCompleteReason(m.releaseCompleteReason, r);
    case 1: PerReadSizedOctets(m.releaseCompleteCauseIE, r, 2, 32); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeReleaseCompleteUUIE(ReleaseCompleteUUIE& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasReason = flags.Next();
  ReadProtocolIdentifier(m.protocolIdentifier, r);
  if (m.hasReason) KELVRA_TRY(DecodeReleaseCompleteReason(m.reason, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 9);
  m.hasCallIdentifier = known.Next();
  m.hasTokens = known.Next();
  m.hasCryptoTokens = known.Next();
  m.hasBusyAddress = known.Next();
  m.hasPresentationIndicator = known.Next();
  m.hasScreeningIndicator = known.Next();
  m.hasCapacity = known.Next();
  m.hasServiceControl = known.Next();
  m.hasFeatureSet = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasCallIdentifier) KELVRA_TRY(DecodeOpen(m.callIdentifier, r, DecodeCallIdentifier));
  if (m.hasTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.tokens), r, h235::DecodeClearToken));
  if (m.hasCryptoTokens) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.cryptoTokens), r, DecodeCryptoH323Token));
  if (m.hasBusyAddress) KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.busyAddress), r, DecodeAliasAddress));
  if (m.hasPresentationIndicator) KELVRA_TRY(DecodeOpen(m.presentationIndicator, r, DecodePresentationIndicator));
  if (m.hasScreeningIndicator) KELVRA_TRY(DecodeOpen(m.screeningIndicator, r, DecodeScreeningIndicator));
  if (m.hasCapacity) KELVRA_TRY(DecodeOpen(m.capacity, r, DecodeCallCapacity));
  if (m.hasServiceControl)
    KELVRA_TRY(DecodeOpenSequenceOf(KELVRA_LIST(m.serviceControl), r, DecodeServiceControlSession));
  if (m.hasFeatureSet) KELVRA_TRY(DecodeOpen(m.featureSet, r, DecodeFeatureSet));
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
