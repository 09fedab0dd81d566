#include "h245/channels/h2250_parameters_decode.h"
#include "h245/decode.h"
#include "h245/messages/close_logical_channel_decode.h"

namespace kelvra::h245 {

void DecodeOpenLogicalChannelReject(OpenLogicalChannelReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeNullChoice(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCloseLogicalChannel(CloseLogicalChannel& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeNullChoice(m.source, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasReason = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasReason) DecodeOpen(m.reason, r, DecodeNullChoice);
  PerSkipOpenTypes(r, unknown);
}

void DecodeRequestChannelClose(RequestChannelClose& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasQosCapability = known.Next();
  m.hasReason = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasQosCapability) DecodeOpen(m.qosCapability, r, DecodeQOSCapability);
  if (m.hasReason) DecodeOpen(m.reason, r, DecodeNullChoice);
  PerSkipOpenTypes(r, unknown);
}

void DecodeRequestChannelCloseReject(RequestChannelCloseReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.forwardLogicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeNullChoice(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
