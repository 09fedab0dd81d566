#include "calls/call_tracker.h"

#include <algorithm>
#include <utility>

#include "calls/control_story.h"
#include "calls/fields.h"
#include "calls/ras_names.h"
#include "calls/ras_story.h"
#include "calls/signalling_story.h"
#include "decode/message_text.h"
#include "text/time_text.h"

namespace {

// Time after the last message. A message after a TCP gap comes a minute late.
constexpr int64_t kStaysReleased = 300 * kSecond;
constexpr int64_t kStaysOver = 90 * kSecond;
constexpr size_t kMostEntries = 16384;
// Bounds the memory of a call, and the time to search its lists. What follows begins another call.
constexpr size_t kMostMessages = 8192;
// After this time, the same sequence number means a new request.
constexpr int64_t kRepeatTime = 60 * kSecond;

bool IsAboutCall(const DecodedMessage& message, Node body) {
  return message.name == "admissionRequest" || message.name == "bandwidthRequest" ||
         message.name == "disengageRequest" || CallIdentifierOf(body);
}

// The part of a RAS message that describes a call; infoRequestResponse and serviceControl nest it in a member.
Node CallFieldsOf(Node body) {
  if (const Node specific = body["callSpecific"]) return specific;
  const Node reported = body["perCallInfo"];
  return reported.Count() > 0 ? *reported.begin() : body;
}

Leg LegOf(const Origin& origin, const DecodedMessage& message) {
  Leg leg;
  leg.caller = origin.source;
  leg.called = origin.destination;
  if (!IsFromCaller(message)) std::swap(leg.caller, leg.called);
  leg.reference = CallReferenceOf(message.Root()).value_or(0);
  return leg;
}

Leg& LegOf(Call& call, const Leg& leg) {
  const auto known = std::find_if(call.legs.begin(), call.legs.end(), [&leg](const Leg& other) {
    return other.caller == leg.caller && other.called == leg.called && other.reference == leg.reference;
  });
  return known == call.legs.end() ? call.legs.emplace_back(leg) : *known;
}

// True if the Setup begins a new call on the connection and reference of an earlier one.
bool BeginsAnother(const Call& call, const Leg& leg, Node body) {
  const auto identifier = CallIdentifierOf(body);
  if (identifier && !call.identifiers.empty()) return call.identifiers.front() != *identifier;
  return std::any_of(call.legs.begin(), call.legs.end(),
                     [&leg](const Leg& known) { return known.reference == leg.reference && known.released; });
}

void AddMalformed(Call& call, const Origin& origin, const DecodedMessage& message) {
  if (!message.IsComplete()) {
    const char* kind = message.verdict == Verdict::kVersionRefused ? "" : "malformed: ";
    call.malformed.push_back({origin, MessageTitle(message), kind + FaultText(message)});
  }
  for (const DecodedMessage& tunnelled : message.tunnelled) AddMalformed(call, origin, tunnelled);
}

void AddLines(const DecodedMessage& decoded, std::vector<MessageLine>& lines) {
  lines.push_back({MessageTitle(decoded), FaultText(decoded), !decoded.IsComplete()});
  for (const DecodedMessage& tunnelled : decoded.tunnelled) AddLines(tunnelled, lines);
}

void Keep(const Message& message, const DecodedMessage& decoded, Call& call) {
  CallMessage& kept = call.messages.emplace_back();
  kept.message = message;
  AddLines(decoded, kept.lines);
}

}  // namespace

std::vector<const Call*> CallTracker::OnMessage(const Message& message, const DecodedMessage& decoded, bool is_kept) {
  const Origin origin = message.origin.value_or(Origin());
  LetGoBefore(origin.microseconds);
  std::vector<Entry*> entries{&Assign(origin, decoded)};
  if (decoded.name == "infoRequestResponse") {
    for (Entry* reported : FindReported(decoded.Body())) AddOnce(entries, reported);
  }
  AddMalformed(entries.front()->call, origin, decoded);
  std::vector<const Call*> calls;
  for (Entry* entry : entries) {
    if (is_kept) Keep(message, decoded, entry->call);
    Touch(*entry, origin);
    calls.push_back(&entry->call);
  }
  return calls;
}

void CallTracker::OnMediaPacket(const Origin& origin, uint8_t payload_type) {
  Entry* entry = index_.Find(CallKey::Media(origin.destination));
  if (entry == nullptr) return;
  for (MediaAddress& media : entry->call.media) {
    if (media.address == origin.destination) ++media.packets[payload_type];
  }
}

void CallTracker::OnRefusedConnection(const Origin& origin) {
  LetGoBefore(origin.microseconds);
  const CallKey destination = CallKey::Destination(origin.source, origin.destination);
  Entry* entry = index_.Find(CallKey::H245Listener(origin.destination));
  const bool is_control = entry != nullptr;
  if (entry == nullptr) entry = index_.Find(destination);
  if (entry == nullptr) {
    entry = &Begin(Subject::kOther, origin);
    AddOnce(entry->call.caller.addresses, origin.source);
    AddOnce(entry->call.called.addresses, origin.destination);
    index_.Add(destination, *entry);
  }
  entry->call.refusedConnections.push_back(origin);
  if (!is_control) {
    entry->call.ends.push_back({EndKind::kRefused, origin.microseconds, origin.destination,
                                "connection to " + ToText(origin.destination) + " refused"});
  }
  Touch(*entry, origin);
}

void CallTracker::Close() {
  for (Entries& entries : by_state_) {
    while (!entries.empty()) LetGo(entries.front());
  }
}

CallTracker::Entry& CallTracker::Assign(const Origin& origin, const DecodedMessage& decoded) {
  switch (decoded.family) {
    case Family::kRas: return OnRas(origin, decoded);
    case Family::kQ931: return OnSignalling(origin, decoded);
    case Family::kH245: break;
  }
  return OnControl(origin, decoded);
}

CallTracker::Entry& CallTracker::OnRas(const Origin& origin, const DecodedMessage& message) {
  if (!IsAnswer(MeaningOf(message.name).role)) return OnRasRequest(origin, message);
  Entry* asked = FindAsked(origin, message);
  if (asked == nullptr && message.name == "infoRequestResponse") return OnRasRequest(origin, message);
  Entry& entry = asked != nullptr ? *asked : Begin(Subject::kOther, origin);
  AddRasAnswer(entry.call, origin, message);
  if (const auto destination = ToEndpoint(message.Body()["destCallSignalAddress"])) {
    index_.Add(CallKey::Destination(origin.destination, *destination), entry);
  }
  return entry;
}

// The entry of the request that this message answers.
CallTracker::Entry* CallTracker::FindAsked(const Origin& origin, const DecodedMessage& message) const {
  const uint16_t sequence = SequenceOf(message);
  Entry* entry = index_.Find(CallKey::Request(origin.destination, sequence));
  if (entry == nullptr) return nullptr;
  const RasTransaction* transaction = FindTransaction(entry->call, origin.destination, sequence);
  const std::string_view request = MeaningOf(message.name).request;
  const bool fits = transaction != nullptr && (request.empty() || transaction->request == request);
  return fits ? entry : nullptr;
}

CallTracker::Entry& CallTracker::OnRasRequest(const Origin& origin, const DecodedMessage& message) {
  const uint16_t sequence = SequenceOf(message);
  Entry* entry = index_.Find(CallKey::Request(origin.source, sequence));
  if (entry != nullptr && IsRepeated(*entry, origin, message)) {
    ++FindTransaction(entry->call, origin.source, sequence)->repeats;
    return *entry;
  }
  const Node fields = CallFieldsOf(message.Body());
  entry = FindByFields(origin, fields);
  if (entry == nullptr) entry = &Begin(IsAboutCall(message, fields) ? Subject::kCall : Subject::kOther, origin);
  AddRasRequest(entry->call, origin, message);
  IndexBody(*entry, fields);
  IndexRequest(*entry, origin, message);
  return *entry;
}

bool CallTracker::IsRepeated(Entry& entry, const Origin& origin, const DecodedMessage& message) const {
  const RasTransaction* known = FindTransaction(entry.call, origin.source, SequenceOf(message));
  if (known == nullptr || known->request != message.name) return false;
  if (origin.microseconds - known->requested > kRepeatTime) return false;
  const auto identifier = CallIdentifierOf(CallFieldsOf(message.Body()));
  return !identifier || entry.call.identifiers.empty() || entry.call.identifiers.front() == *identifier;
}

CallTracker::Entry* CallTracker::FindByIdentifier(Node body) const {
  const auto identifier = CallIdentifierOf(body);
  return identifier ? index_.Find(CallKey::Identifier(*identifier)) : nullptr;
}

// For older endpoints, which have no call identifiers: find the call by its reference, or by its conference.
CallTracker::Entry* CallTracker::FindByFields(const Origin& origin, Node body) const {
  if (CallIdentifierOf(body)) return FindByIdentifier(body);
  const uint16_t reference = CallReferenceOf(body).value_or(0);
  if (reference != 0) {
    for (const Endpoint& host : {origin.source, origin.destination}) {
      if (Entry* entry = index_.Find(CallKey::Reference(host, reference))) return entry;
    }
  }
  const auto conference = ToGuid(body["conferenceID"]);
  return conference ? index_.Find(CallKey::Conference(*conference)) : nullptr;
}

// All calls of an infoRequestResponse.
std::vector<CallTracker::Entry*> CallTracker::FindReported(Node body) const {
  std::vector<Entry*> entries;
  for (const Node reported : body["perCallInfo"]) {
    if (Entry* entry = FindByIdentifier(reported)) entries.push_back(entry);
  }
  return entries;
}

CallTracker::Entry& CallTracker::OnSignalling(const Origin& origin, const DecodedMessage& message) {
  const Leg leg = LegOf(origin, message);
  const Node body = message.Body();
  const CallKey key = CallKey::SignallingLeg(leg.caller, leg.called, leg.reference);
  Entry* entry = index_.Find(key);
  if (MessageTypeOf(message) == kSetup) {
    if (entry == nullptr || BeginsAnother(entry->call, leg, body)) entry = FindBySetup(origin, leg, body);
  } else if (entry == nullptr) {
    entry = FindByIdentifier(body);
  }
  if (entry == nullptr) entry = &Begin(Subject::kCall, origin);
  AddSignalling(entry->call, LegOf(entry->call, leg), origin, message);
  index_.Add(key, *entry);
  IndexBody(*entry, body);
  if (const auto listener = ToEndpoint(body["h245Address"])) index_.Add(CallKey::H245Listener(*listener), *entry);
  for (const DecodedMessage& tunnelled : message.tunnelled) AddControl(entry->call, origin, tunnelled);
  IndexMedia(*entry);
  return *entry;
}

// By the identifier; otherwise the call admitted under this reference and not set up yet.
CallTracker::Entry* CallTracker::FindBySetup(const Origin& origin, const Leg& leg, Node body) const {
  if (Entry* entry = FindByIdentifier(body)) return entry;
  Entry* admitted = index_.Find(CallKey::Reference(origin.source, leg.reference));
  return admitted != nullptr && admitted->call.legs.empty() ? admitted : nullptr;
}

CallTracker::Entry& CallTracker::OnControl(const Origin& origin, const DecodedMessage& message) {
  const CallKey connection = CallKey::Connection(origin.source, origin.destination);
  Entry* entry = index_.Find(connection);
  if (entry == nullptr || entry->state != CallState::kOpen) {
    for (const Endpoint& listener : {origin.destination, origin.source}) {
      if (Entry* announced = index_.Find(CallKey::H245Listener(listener))) entry = announced;
    }
  }
  if (entry == nullptr) entry = &Begin(Subject::kCall, origin);
  index_.Add(connection, *entry);
  AddControl(entry->call, origin, message);
  IndexMedia(*entry);
  return *entry;
}

CallTracker::Entry& CallTracker::Begin(Subject subject, const Origin& origin) {
  KeepBounds();
  Entries& open = by_state_[static_cast<size_t>(CallState::kOpen)];
  Entry& entry = open.emplace_back();
  entry.self = std::prev(open.end());
  entry.call.subject = subject;
  entry.call.first = origin.microseconds;
  entry.call.order = begun_++;
  if (subject == Subject::kCall) entry.call.number = ++calls_;
  ++entries_;
  return entry;
}

void CallTracker::IndexBody(Entry& entry, Node body) {
  if (const auto identifier = CallIdentifierOf(body)) {
    AddOnce(entry.call.identifiers, *identifier);
    // An identifier that contradicts the first one may belong to another call.
    const CallKey key = CallKey::Identifier(*identifier);
    if (index_.Find(key) == nullptr) index_.Add(key, entry);
  }
  if (const auto conference = ToGuid(body["conferenceID"])) {
    if (!entry.call.conference) entry.call.conference = conference;
    index_.Add(CallKey::Conference(*conference), entry);
  }
}

// The answer goes to the sender, or to the address that the request gives for replies.
void CallTracker::IndexRequest(Entry& entry, const Origin& origin, const DecodedMessage& message) {
  const Node body = message.Body();
  const uint16_t sequence = SequenceOf(message);
  index_.Add(CallKey::Request(origin.source, sequence), entry);
  for (const Node address : {body["replyAddress"], body["rasAddress"], body["rasAddress"].Chosen()}) {
    if (const auto endpoint = ToEndpoint(address)) index_.Add(CallKey::Request(*endpoint, sequence), entry);
  }
  const auto reference = CallReferenceOf(body).value_or(0);
  if (message.name == "admissionRequest" && reference != 0) {
    index_.Add(CallKey::Reference(origin.source, reference), entry);
  }
}

void CallTracker::IndexMedia(Entry& entry) {
  const auto& media = entry.call.media;
  for (; entry.indexed_media < media.size(); ++entry.indexed_media) {
    index_.Add(CallKey::Media(media[entry.indexed_media].address), entry);
  }
}

void CallTracker::Touch(Entry& entry, const Origin& origin) {
  entry.call.last = std::max(entry.call.last, origin.microseconds);
  entry.call.endpoints.insert({origin.source, origin.destination});
  Entries& from = by_state_[static_cast<size_t>(entry.state)];
  entry.state = ++entry.messages < kMostMessages ? StateOf(entry.call) : CallState::kFull;
  Entries& to = by_state_[static_cast<size_t>(entry.state)];
  to.splice(to.end(), from, entry.self);
}

void CallTracker::LetGoBefore(int64_t now) {
  Entries& full = by_state_[static_cast<size_t>(CallState::kFull)];
  while (!full.empty()) LetGo(full.front());
  for (const auto& [state, stays] :
       {std::pair(CallState::kOver, kStaysOver), std::pair(CallState::kReleased, kStaysReleased)}) {
    Entries& entries = by_state_[static_cast<size_t>(state)];
    while (!entries.empty() && now - entries.front().call.last > stays) LetGo(entries.front());
  }
}

void CallTracker::LetGo(Entry& entry) {
  index_.Remove(entry);
  listener_.OnCallEnded(entry.call);
  --entries_;
  by_state_[static_cast<size_t>(entry.state)].erase(entry.self);
}

void CallTracker::KeepBounds() {
  if (entries_ < kMostEntries) return;
  for (const CallState state : {CallState::kOver, CallState::kReleased, CallState::kOpen}) {
    Entries& entries = by_state_[static_cast<size_t>(state)];
    if (!entries.empty()) return LetGo(entries.front());
  }
}
