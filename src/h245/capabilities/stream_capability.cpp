#include "h245/capabilities/multiplex_format_decode.h"
#include "h245/capabilities/stream_capability_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeSeparateStream(FECCapability::Rfc2733::SeparateStream& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.separatePort = flags.Next();
  m.samePort = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRfc2733(FECCapability::Rfc2733& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.redundancyEncoding = flags.Next();
  DecodeSeparateStream(m.separateStream, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

// The count is one of 255 values, so it is not aligned as one of SIZE (1..256) would be; 256 entries
// can still be counted in its 8 bits.
void DecodeAlternativeCapabilitySet(AlternativeCapabilitySet& m, PerReader& r) {
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_COUNTED_LIST(m.entryCount, m.entries), r, 1, 255,
                                       PerReadElement<uint16_t, 1, 65535>));
}

void DecodeMultiplexedStreamCapability(MultiplexedStreamCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasCapabilityOnMuxStream = flags.Next();
  DecodeMultiplexFormat(m.multiplexFormat, r);
  m.controlOnMuxStream = PerReadBit(r);
  if (m.hasCapabilityOnMuxStream)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.capabilityOnMuxStream), r, 1, 256, DecodeAlternativeCapabilitySet));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMultiplePayloadStreamCapability(MultiplePayloadStreamCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.capabilities), r, 1, 256, DecodeAlternativeCapabilitySet));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeFECCapability(FECCapability& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 1);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeRfc2733(m.rfc2733, r);
    default: return;
  }
}

}  // namespace kelvra::h245
