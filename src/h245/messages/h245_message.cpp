#include "h245/channels/open_logical_channel_decode.h"
#include "h245/decode.h"
#include "h245/messages/communication_mode_decode.h"
#include "h245/messages/h245_message_decode.h"
#include "h245/messages/multiplex_entry_decode.h"
#include "h245/modes/request_mode_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeRequestMessage(H245ClassRecord<RequestMessageNames>& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, RequestMessageNames::kRoots);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  if (index == kOpenLogicalChannelTag) DecodeOpenLogicalChannel(m.openLogicalChannel, r);
  if (index == 6) DecodeMultiplexEntrySend(m.multiplexEntrySend, r);
  if (index == 7) DecodeRequestMultiplexEntry(m.requestMultiplexEntry, r);
  if (index == 8) DecodeRequestMode(m.requestMode, r);
}

void DecodeResponseMessage(H245ClassRecord<ResponseMessageNames>& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, ResponseMessageNames::kRoots);
  if (m.isExtension && index == 0) return DecodeOpen(m.communicationModeResponse, r, DecodeCommunicationModeResponse);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  if (index == kOpenLogicalChannelAckTag) DecodeOpenLogicalChannelAck(m.openLogicalChannelAck, r);
  if (index == 10) DecodeMultiplexEntrySendAck(m.multiplexEntrySendAck, r);
  if (index == 11) DecodeMultiplexEntrySendReject(m.multiplexEntrySendReject, r);
  if (index == 12) DecodeRequestMultiplexEntry(m.requestMultiplexEntry, r);
  if (index == 13) DecodeRequestMultiplexEntryReject(m.requestMultiplexEntryReject, r);
  if (index == 14) DecodeRequestModeAck(m.requestModeAck, r);
  if (index == 15) DecodeRequestModeReject(m.requestModeReject, r);
}

template <class Names>
void DecodeClassTag(H245ClassRecord<Names>& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, Names::kRoots);
  if (Names::kClass == kCommand && m.isExtension && index == 0)
    return DecodeOpen(m.communicationModeCommand, r, DecodeCommunicationModeCommand);
  if (Names::kClass == kIndication && !m.isExtension && index == 6)
    return DecodeMultiplexEntrySendRelease(m.multiplexEntrySendRelease, r);
  if (Names::kClass == kIndication && !m.isExtension && index == 7)
    return DecodeRequestMultiplexEntry(m.requestMultiplexEntry, r);
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
