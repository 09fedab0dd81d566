#pragma once

#include "h245/decode.h"
#include "h245/messages/indications.h"

namespace kelvra::h245 {

void DecodeJitterIndication(JitterIndication& m, PerReader& r);

template <class Names>
void DecodeSkewIndication(SkewIndication<Names>& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.logicalChannelNumber1 = PerReadNumber<uint16_t>(r, 1, 65535);
  m.logicalChannelNumber2 = PerReadNumber<uint16_t>(r, 1, 65535);
  m.skew = PerReadNumber<uint16_t>(r, 0, 4095);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMCLocationIndication(MCLocationIndication& m, PerReader& r);
void DecodeVendorIdentification(VendorIdentification& m, PerReader& r);
void DecodeFunctionNotSupported(FunctionNotSupported& m, PerReader& r);

}  // namespace kelvra::h245
