#include "h245/common/non_standard_decode.h"
#include "h245/common/transport_address_decode.h"
#include "h245/messages/flow_control_decode.h"
#include "h245/messages/indications_decode.h"

namespace kelvra::h245 {

void DecodeJitterIndication(JitterIndication& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasSkippedFrameCount = flags.Next();
  m.hasAdditionalDecoderBuffer = flags.Next();
  DecodeMultiplexScope(m.scope, r);
  m.estimatedReceivedJitterMantissa = PerReadNumber<uint8_t>(r, 0, 3);
  m.estimatedReceivedJitterExponent = PerReadNumber<uint8_t>(r, 0, 7);
  if (m.hasSkippedFrameCount) m.skippedFrameCount = PerReadNumber<uint8_t>(r, 0, 15);
  if (m.hasAdditionalDecoderBuffer) m.additionalDecoderBuffer = PerReadNumber<uint32_t>(r, 0, 262143);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMCLocationIndication(MCLocationIndication& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeTransportAddress(m.signalAddress, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeVendorIdentification(VendorIdentification& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasProductNumber = flags.Next();
  m.hasVersionNumber = flags.Next();
  DecodeNonStandardIdentifier(m.vendor, r);
  if (m.hasProductNumber) PerReadSizedOctets(m.productNumber, r, 1, 256);
  if (m.hasVersionNumber) PerReadSizedOctets(m.versionNumber, r, 1, 256);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeFunctionNotSupported(FunctionNotSupported& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasReturnedFunction = flags.Next();
  DecodeNullChoice(m.cause, r);
  if (m.hasReturnedFunction) PerReadAnnouncedOctetString(m.returnedFunction, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
