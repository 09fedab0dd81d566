#include "h225/decode.h"
#include "h225/identifiers_decode.h"

namespace kelvra::h225 {

Status DecodeCallIdentifier(CallIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  PerReadFixedOctets(m.guid, r, 16);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeCallType(CallType& m, PerReader& r) { return DecodeUnindexedNullChoice(m, r); }

Status DecodePresentationIndicator(PresentationIndicator& m, PerReader& r) { return DecodeUnindexedNullChoice(m, r); }

// No extension bit is read, so the values come out halved. The type always travels inside an open
// type, behind which the reader resumes at the right place.
Status DecodeScreeningIndicator(ScreeningIndicator& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.value = PerReadConstrainedWholeNumber(r, 3);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace kelvra::h225
