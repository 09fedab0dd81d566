#include "calls/signalling_story.h"

#include "calls/fields.h"
#include "calls/media_fields.h"
#include "decode/message_text.h"
#include "decode/values.h"
#include "text/concat.h"
#include "text/hex.h"
#include "text/names.h"

namespace {

void SetOnce(std::optional<int64_t>& time, int64_t value) {
  if (!time) time = value;
}

std::string CauseText(Node octet) {
  const auto value = octet.Number();
  if (!value) return {};
  constexpr int64_t extension_bit = 0x80;
  const auto cause = static_cast<unsigned>(*value & ~extension_bit);
  const std::string_view name = CauseName(cause);
  return Concat({"cause ", std::to_string(cause), name.empty() ? "" : " (", name, name.empty() ? "" : ")"});
}

// The Q.850 cause and the H.225.0 reason, if present. In a Setup or Facility the reason is the purpose of the message.
std::string WhyText(const DecodedMessage& message) {
  const std::string cause = CauseText(message.Root()["causeValue"]);
  const std::string reason = ReasonText(message.Body()["reason"]);
  const char* separator = cause.empty() || reason.empty() ? "" : ", ";
  return Concat({cause, separator, reason.empty() ? "" : "reason ", reason});
}

void AddStep(Call& call, const Origin& origin, const DecodedMessage& message) {
  const std::string why = WhyText(message);
  call.signalling.push_back({origin, Concat({MessageTitle(message), why.empty() ? "" : ", ", why})});
}

void AddParties(Call& call, const Leg& leg, const DecodedMessage& message) {
  const Node root = message.Root();
  const Node body = message.Body();
  for (const auto& [element, party] :
       {std::pair("callingPartyNumber", &call.caller), std::pair("calledPartyNumber", &call.called)}) {
    const std::string number = PartyNumberText(root[element]);
    if (!number.empty()) AddOnce(party->aliases, number);
  }
  AddAliases(body["sourceAddress"], call.caller);
  AddAliases(body["destinationAddress"], call.called);
  AddAliases(body["connectedAddress"], call.called);
  if (&leg == call.FirstLeg()) {
    AddOnce(call.caller.addresses, leg.caller);
    AddOnce(call.called.addresses, leg.called);
  }
}

// The caller's proposal. A forward channel is the caller's, a reverse one the called party's.
Channel FastStartChannel(const Leg& leg, const Origin& origin, Node open) {
  Channel channel;
  channel.isFastStart = true;
  channel.number = open["forwardLogicalChannelNumber"].Number().value_or(0);
  channel.codec = DataTypeText(open.Find({"forwardLogicalChannelParameters", "dataType"}));
  channel.from = leg.caller;
  channel.to = leg.called;
  const std::string reverse = DataTypeText(open.Find({"reverseLogicalChannelParameters", "dataType"}));
  if (channel.codec.empty()) {
    channel.codec = reverse;
    std::swap(channel.from, channel.to);
  } else {
    channel.reverseCodec = reverse;
  }
  channel.opener = channel.from;
  channel.opened = origin.microseconds;
  MediaFields fields = MediaFieldsOf(open);
  channel.media = std::move(fields.media);
  channel.control = std::move(fields.control);
  return channel;
}

std::string ChannelText(const Leg& leg, const Channel& channel) {
  return Concat({channel.codec, channel.from == leg.caller ? " from caller" : " from called"});
}

void AddProposals(Call& call, const Leg& leg, const Origin& origin, Node fast_start) {
  for (const Node open : fast_start) {
    const Channel channel = FastStartChannel(leg, origin, open);
    AddOnce(call.fastStart.proposed, ChannelText(leg, channel));
    for (const Endpoint& address : channel.media) AddMediaAddress(call, address, channel.to == leg.caller);
  }
}

void AddAcceptances(Call& call, const Leg& leg, const Origin& origin, const DecodedMessage& message) {
  for (const Node open : message.Body()["fastStart"]) {
    Channel channel = FastStartChannel(leg, origin, open);
    channel.acknowledged = origin.microseconds;
    const std::string text = ChannelText(leg, channel);
    for (const std::string& known : call.fastStart.accepted) {
      if (known == text) return;  // repeated by a later message
    }
    call.fastStart.accepted.push_back(text);
    call.fastStart.acceptedIn = MessageTypeName(static_cast<unsigned>(MessageTypeOf(message)));
    for (const Endpoint& address : channel.media) AddMediaAddress(call, address, channel.to == leg.called);
    call.channels.push_back(std::move(channel));
  }
}

void AddFastStart(Call& call, const Leg& leg, const Origin& origin, const DecodedMessage& message) {
  const Node body = message.Body();
  if (MessageTypeOf(message) == kSetup) return AddProposals(call, leg, origin, body["fastStart"]);
  AddAcceptances(call, leg, origin, message);
  if (body["fastConnectRefused"]) {
    call.fastStart.refusedIn = MessageTypeName(static_cast<unsigned>(MessageTypeOf(message)));
  }
}

void AddTimes(Call& call, Leg& leg, const Origin& origin, const DecodedMessage& message) {
  switch (MessageTypeOf(message)) {
    case kSetup: return SetOnce(leg.setup, origin.microseconds);
    case kAlerting: return SetOnce(leg.alerting, origin.microseconds);
    case kConnect: return SetOnce(leg.connected, origin.microseconds);
    case kDisconnect:
    case kReleaseComplete:
      if (!leg.released) {
        call.ends.push_back({EndKind::kReleased, origin.microseconds, origin.source, WhyText(message)});
      }
      return SetOnce(leg.released, origin.microseconds);
    default: return;
  }
}

void CompareIdentifier(Call& call, const Origin& origin, const DecodedMessage& message) {
  const auto identifier = CallIdentifierOf(message.Body());
  if (!identifier) return;
  const size_t known = call.identifiers.size();
  AddOnce(call.identifiers, *identifier);
  if (known == 0 || call.identifiers.size() == known) return;
  call.remarks.push_back(Concat({MessageTitle(message), " (frame ", std::to_string(origin.frame),
                                 ") names another call identifier, ", ToHex(*identifier)}));
}

}  // namespace

int64_t MessageTypeOf(const DecodedMessage& message) { return message.Root()["messageType"].Number().value_or(0); }

bool IsFromCaller(const DecodedMessage& message) {
  constexpr int64_t flag = 0x8000;
  return (message.Root()["callReferenceValue"].Number().value_or(0) & flag) == 0;
}

void AddSignalling(Call& call, Leg& leg, const Origin& origin, const DecodedMessage& message) {
  CompareIdentifier(call, origin, message);
  AddStep(call, origin, message);
  AddTimes(call, leg, origin, message);
  AddParties(call, leg, message);
  AddFastStart(call, leg, origin, message);
}
