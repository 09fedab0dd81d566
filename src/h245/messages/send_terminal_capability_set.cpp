#include "h245/decode.h"
#include "h245/messages/send_terminal_capability_set_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeSpecificRequest(SendTerminalCapabilitySet::SpecificRequest& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasCapabilityTableEntryNumbers = flags.Next();
  m.hasCapabilityDescriptorNumbers = flags.Next();
  m.multiplexCapability = flags.Next();
  if (m.hasCapabilityTableEntryNumbers)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.capabilityTableEntryNumbers), r, 1, 65535,
                                         PerReadElement<uint16_t, 1, 65535>));
  if (m.hasCapabilityDescriptorNumbers)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.capabilityDescriptorNumbers), r, 1, 256, PerReadElement<uint8_t, 0, 255>));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeSendTerminalCapabilitySet(SendTerminalCapabilitySet& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeSpecificRequest(m.specificRequest, r);
    default: return;
  }
}

}  // namespace kelvra::h245
