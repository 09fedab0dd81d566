#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {

void DecodeNonStandardIdentifier(NonStandardIdentifier& m, PerReader& r) {
  m.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 2));
  if (m.choiceTag == 0) return PerReadObjectIdentifier(m.object, r);
  m.h221NonStandard.t35CountryCode = PerReadNumber<uint8_t>(r, 0, 255);
  m.h221NonStandard.t35Extension = PerReadNumber<uint8_t>(r, 0, 255);
  m.h221NonStandard.manufacturerCode = PerReadNumber<uint16_t>(r, 0, 65535);
}

void DecodeNonStandardData(NonStandardParameter& m, PerReader& r) {
  uint32_t length = 0;
  m.data = PerReadOctetString(r, &length);
  m.dataLength = length;
}

void DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r) {
  DecodeNonStandardIdentifier(m.nonStandardIdentifier, r);
  DecodeNonStandardData(m, r);
}

}  // namespace kelvra::h245
