#include "h225/common/non_standard_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeNonStandardIdentifier(NonStandardIdentifier& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: PerReadObjectIdentifier(m.object, r); return kDecoded;
    case 1: return DecodeH221NonStandard(m.h221NonStandard, r);
    default: return kMalformed;
  }
}

}  // namespace

Status DecodeH221NonStandard(H221NonStandard& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.t35CountryCode = PerReadNumber<uint8_t>(r, 0, 255);
  m.t35Extension = PerReadNumber<uint8_t>(r, 0, 255);
  m.manufacturerCode = PerReadNumber<uint16_t>(r, 0, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  KELVRA_TRY(DecodeNonStandardIdentifier(m.nonStandardIdentifier, r));
  PerReadAnnouncedOctetString(m.data, r);
  return kDecoded;
}

}  // namespace kelvra::h225
