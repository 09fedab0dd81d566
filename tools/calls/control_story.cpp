#include "calls/control_story.h"

#include <algorithm>

#include "calls/fields.h"
#include "calls/media_fields.h"
#include "text/concat.h"

namespace {

int64_t ChannelNumber(Node body) { return body["forwardLogicalChannelNumber"].Number().value_or(0); }

// The latest channel that this side opened under the number. For a fast-start channel the ports differ.
Channel* FindChannel(Call& call, const Endpoint& opener, Node body) {
  const int64_t number = ChannelNumber(body);
  const auto found = std::find_if(call.channels.rbegin(), call.channels.rend(), [&](const Channel& channel) {
    return channel.number == number && SameHost(channel.opener, opener);
  });
  return found == call.channels.rend() ? nullptr : &*found;
}

// The side that acknowledges a channel receives its media.
void AddAddresses(Call& call, Channel& channel, Node body) {
  const MediaFields fields = MediaFieldsOf(body);
  for (const Endpoint& address : fields.media) {
    AddOnce(channel.media, address);
    AddMediaAddress(call, address, channel.acknowledged.has_value());
  }
  for (const Endpoint& address : fields.control) AddOnce(channel.control, address);
}

void Open(Call& call, const Origin& origin, Node body) {
  Channel channel;
  channel.from = channel.opener = origin.source;
  channel.to = origin.destination;
  channel.number = ChannelNumber(body);
  channel.codec = DataTypeText(body.Find({"forwardLogicalChannelParameters", "dataType"}));
  channel.reverseCodec = DataTypeText(body.Find({"reverseLogicalChannelParameters", "dataType"}));
  channel.opened = origin.microseconds;
  AddAddresses(call, channel, body);
  call.channels.push_back(std::move(channel));
}

void Acknowledge(Call& call, const Origin& origin, Node body) {
  Channel* channel = FindChannel(call, origin.destination, body);
  if (channel == nullptr) return;
  channel->acknowledged = origin.microseconds;
  AddAddresses(call, *channel, body);
}

void Reject(Call& call, const Origin& origin, Node body) {
  Channel* channel = FindChannel(call, origin.destination, body);
  if (channel == nullptr) return;
  channel->rejected = origin.microseconds;
  channel->rejectReason = ReasonText(body["cause"]);
}

void Close(Call& call, const Origin& origin, Node body) {
  Channel* channel = FindChannel(call, origin.source, body);
  if (channel != nullptr && !channel->closed) channel->closed = origin.microseconds;
}

void AddCapabilities(Call& call, const Origin& origin, Node body) {
  const std::string text = CapabilitiesText(body);
  const auto latest = std::find_if(call.capabilities.rbegin(), call.capabilities.rend(),
                                   [&origin](const auto& known) { return known.sender == origin.source; });
  if (latest != call.capabilities.rend() && latest->text == text) return;
  call.capabilities.push_back({origin.source, text});
}

void AddRejection(Call& call, const Origin& origin, const DecodedMessage& message) {
  call.remarks.push_back(
      Concat({message.name, " (frame ", std::to_string(origin.frame), "): ", ReasonText(message.Body()["cause"])}));
}

}  // namespace

void AddControl(Call& call, const Origin& origin, const DecodedMessage& message) {
  const Node body = message.Body();
  const std::string_view name = message.name;
  if (name == "openLogicalChannel") return Open(call, origin, body);
  if (name == "openLogicalChannelAck") return Acknowledge(call, origin, body);
  if (name == "openLogicalChannelReject") return Reject(call, origin, body);
  if (name == "closeLogicalChannel") return Close(call, origin, body);
  if (name == "terminalCapabilitySet") return AddCapabilities(call, origin, body);
  if (name == "terminalCapabilitySetReject" || name == "masterSlaveDeterminationReject" ||
      name == "requestModeReject") {
    return AddRejection(call, origin, message);
  }
  if (name == "endSessionCommand") {
    call.ends.push_back({EndKind::kEndSession, origin.microseconds, origin.source, std::string(body.Alternative())});
  }
}
