#include "h245/decode.h"
#include "h245/modes/mode_element_decode.h"
#include "h245/modes/request_mode_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeModeDescription(ModeDescription& m, PerReader& r) {
  KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m), r, 1, 256, DecodeModeElement));
}

}  // namespace

void DecodeRequestMode(RequestMode& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.requestedModes), r, 1, 256, DecodeModeDescription));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRequestModeAck(RequestModeAck& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  DecodeNullChoice(m.response, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRequestModeReject(RequestModeReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  DecodeNullChoice(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
