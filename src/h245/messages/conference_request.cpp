#include "h245/channels/h2250_parameters_decode.h"
#include "h245/decode.h"
#include "h245/messages/conference_request_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeCriteria(Criteria& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadObjectIdentifier(m.field, r);
  PerReadSizedOctets(m.value, r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRequestTerminalCertificate(ConferenceRequest::RequestTerminalCertificate& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasTerminalLabel = flags.Next();
  m.hasCertSelectionCriteria = flags.Next();
  m.hasSRandom = flags.Next();
  if (m.hasTerminalLabel) DecodeTerminalLabel(m.terminalLabel, r);
  if (m.hasCertSelectionCriteria)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.certSelectionCriteria), r, 1, 16, DecodeCriteria));
  if (m.hasSRandom) m.sRandom = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeConferenceRequest(ConferenceRequest& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 8);
  if (m.isExtension) {
    switch (index) {
      case 2: return DecodeOpen(m.requestTerminalCertificate, r, DecodeRequestTerminalCertificate);
      case 3: m.broadcastMyLogicalChannel = PerReadOpenNumber<uint16_t>(r, 1, 65535); return;
      case 4: return DecodeOpen(m.makeTerminalBroadcaster, r, DecodeTerminalLabel);
      case 5: return DecodeOpen(m.sendThisSource, r, DecodeTerminalLabel);
      case 7: return DecodeOpen(m.remoteMCRequest, r, DecodeNullChoice);
      default: return PerPassOverAlternative(r, index, 8);
    }
  }
  switch (index) {
    case 3: return DecodeTerminalLabel(m.dropTerminal, r);
    case 4: return DecodeTerminalLabel(m.requestTerminalID, r);
    default: return;
  }
}

}  // namespace kelvra::h245
