#include "h225/common/identifiers_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

Status DecodeGloballyUniqueID(GloballyUniqueID& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadOctets(m, r, 16);
  return kDecoded;
}

Status DecodeIdentifierString(IdentifierString& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadSizedBMPString(m, r, 1, 128);
  return kDecoded;
}

Status DecodeCallIdentifier(CallIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  KELVRA_TRY(DecodeGloballyUniqueID(m.guid, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallType(CallType& m, PerReader& r) { return DecodeUnindexedNullChoice(m, r); }

Status DecodePresentationIndicator(PresentationIndicator& m, PerReader& r) { return DecodeUnindexedNullChoice(m, r); }

// No extension bit is read, so the values come out halved and the reader stays one bit short. Behind an
// open type it resumes at the right place; the one that travels outside, in an ExtendedAliasAddress,
// shifts what is behind it.
Status DecodeScreeningIndicator(ScreeningIndicator& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.value = PerReadConstrainedWholeNumber(r, 3);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
