#include "h245/decode.h"
#include "h245/messages/logical_channel_rate_decode.h"

namespace kelvra::h245 {

void DecodeLogicalChannelRate(LogicalChannelRate& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  m.maximumBitRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeLogicalChannelRateReject(LogicalChannelRateReject& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasCurrentMaximumBitRate = flags.Next();
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeNullChoice(m.rejectReason, r);
  if (m.hasCurrentMaximumBitRate) m.currentMaximumBitRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
