#include "h245/capabilities/capability_decode.h"
#include "h245/capabilities/multiplex_capability_decode.h"
#include "h245/capabilities/stream_capability_decode.h"
#include "h245/capabilities/terminal_capability_set_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeCapabilityTableEntry(CapabilityTableEntry& m, PerReader& r) {
  m.hasCapability = PerReadBit(r);
  m.capabilityTableEntryNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasCapability) DecodeCapability(m.capability, r);
}

void DecodeCapabilityDescriptor(CapabilityDescriptor& m, PerReader& r) {
  m.hasSimultaneousCapabilities = PerReadBit(r);
  m.capabilityDescriptorNumber = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.hasSimultaneousCapabilities)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.simultaneousCapabilities), r, 1, 256, DecodeAlternativeCapabilitySet));
}

void DecodeTableEntryCapacityExceeded(TerminalCapabilitySetReject::Cause::TableEntryCapacityExceeded& m, PerReader& r) {
  const uint32_t index = ReadRootChoice(m, r, 2);
  switch (index) {
    case 0: m.highestEntryNumberProcessed = PerReadNumber<uint16_t>(r, 1, 65535); return;
    default: return;
  }
}

void DecodeCause(TerminalCapabilitySetReject::Cause& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 3: return DecodeTableEntryCapacityExceeded(m.tableEntryCapacityExceeded, r);
    default: return;
  }
}

}  // namespace

void DecodeTerminalCapabilitySet(TerminalCapabilitySet& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasMultiplexCapability = flags.Next();
  m.hasCapabilityTable = flags.Next();
  m.hasCapabilityDescriptors = flags.Next();
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  PerReadObjectIdentifier(m.protocolIdentifier, r);
  if (m.hasMultiplexCapability) DecodeMultiplexCapability(m.multiplexCapability, r);
  if (m.hasCapabilityTable)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.capabilityTable), r, 1, 256, DecodeCapabilityTableEntry));
  if (m.hasCapabilityDescriptors)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_COUNTED_LIST(m.capabilityDescriptorCount, m.capabilityDescriptors), r,
                                         1, 256, DecodeCapabilityDescriptor));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeTerminalCapabilitySetReject(TerminalCapabilitySetReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.sequenceNumber = PerReadNumber<uint8_t>(r, 0, 255);
  DecodeCause(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
