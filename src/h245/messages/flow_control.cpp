#include "h245/decode.h"
#include "h245/messages/flow_control_decode.h"

namespace kelvra::h245 {

void DecodeMultiplexScope(MultiplexScope& m, PerReader& r) {
  m.scopeTag = PerReadNumber<uint8_t>(r, 0, 2);
  switch (m.scopeTag) {
    case 0: m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535); return;
    case 1: m.resourceID = PerReadNumber<uint16_t>(r, 0, 65535); return;
    default: return;
  }
}

void DecodeFlowControl(FlowControl& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeMultiplexScope(m.scope, r);
  m.restriction.restrictionTag = PerReadNumber<uint8_t>(r, 0, 1);
  if (m.restriction.restrictionTag == 0) m.restriction.maximumBitRate = PerReadNumber<uint32_t>(r, 0, 16777215);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
