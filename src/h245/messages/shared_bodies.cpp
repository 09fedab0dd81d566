#include "h245/decode.h"
#include "h245/messages/shared_bodies_decode.h"

namespace kelvra::h245 {

void DecodeEmptyBody(EmptyBody& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSequenceNumberBody(SequenceNumberBody& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeForwardLogicalChannelNumberBody(ForwardLogicalChannelNumberBody& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
