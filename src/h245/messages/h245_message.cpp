#include "h245/capabilities/terminal_capability_set_decode.h"
#include "h245/channels/open_logical_channel_decode.h"
#include "h245/decode.h"
#include "h245/messages/h245_message_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeRequestMessage(H245ClassRecord<RequestMessageNames>& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, RequestMessageNames::kRoots);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  if (index == kOpenLogicalChannelTag) DecodeOpenLogicalChannel(m.openLogicalChannel, r);
  if (index == kTerminalCapabilitySetTag) DecodeTerminalCapabilitySet(m.terminalCapabilitySet, r);
}

void DecodeResponseMessage(H245ClassRecord<ResponseMessageNames>& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, ResponseMessageNames::kRoots);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  if (index == kOpenLogicalChannelAckTag) DecodeOpenLogicalChannelAck(m.openLogicalChannelAck, r);
  if (index == kTerminalCapabilitySetRejectTag) DecodeTerminalCapabilitySetReject(m.terminalCapabilitySetReject, r);
}

// A class of which no body is decoded.
template <class Names>
void DecodeClassTag(H245ClassRecord<Names>& m, PerReader& r) {
  ReadChoice(m, r, Names::kRoots);
  if (m.isExtension) PerSkipOpenTypes(r, 1);
}

}  // namespace

void DecodeMultimediaSystemControlMessage(H245MessageRecord& m, PerReader& r) {
  m.isExtension = PerReadBit(r);
  if (m.isExtension) {
    PerReadNormallySmall(r);  // the index is not kept
    return PerSkipOpenTypes(r, 1);
  }
  m.choiceTag = static_cast<uint8_t>(PerReadConstrainedWholeNumber(r, 4));
  switch (m.choiceTag) {
    case kRequest: return DecodeRequestMessage(m.request, r);
    case kResponse: return DecodeResponseMessage(m.response, r);
    case kCommand: return DecodeClassTag(m.command, r);
    default: return DecodeClassTag(m.indication, r);
  }
}

}  // namespace kelvra::h245
