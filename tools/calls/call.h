// What is known of a call: facts out of its messages, its media and its connections, side by side.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "message.h"

using Guid = std::array<uint8_t, 16>;

struct Party {
  std::vector<std::string> aliases;  // and numbers, each once
  std::vector<Endpoint> addresses;   // each once
};

// A RAS request with its answer.
struct RasTransaction {
  std::string request;  // its name; empty: only the answer was seen
  Endpoint requester;
  Endpoint responder;
  uint16_t sequence = 0;
  int64_t requested = 0;
  unsigned repeats = 0;  // of the request
  bool expectsAnswer = false;
  bool inProgress = false;  // a requestInProgress came
  std::string detail;       // the reason that the request gives
  std::string answer;       // its name; empty: none was seen
  int64_t answered = 0;
  std::string answerDetail;  // the reason of a reject, or the call model
  bool isRejected = false;

  bool IsUnanswered() const { return expectsAnswer && answer.empty(); }
  // From the first request to the answer; none where one of them is missing.
  std::optional<int64_t> ResponseTime() const;
};

// One call reference on one connection. A call that a gatekeeper routes has several.
struct Leg {
  Endpoint caller;
  Endpoint called;
  uint16_t reference = 0;
  std::optional<int64_t> setup;
  std::optional<int64_t> alerting;
  std::optional<int64_t> connected;
  std::optional<int64_t> released;

  std::optional<int64_t> AlertingTime() const;  // from Setup to Alerting
  std::optional<int64_t> SetupTime() const;     // from Setup to Connect
  std::optional<int64_t> Duration() const;      // from Connect to the release
};

// A call-signalling message in a few words.
struct Step {
  Origin origin;
  std::string text;  // "Release Complete, cause 17 (user busy)"
};

enum class EndKind : uint8_t { kRejected, kRefused, kReleased, kDisengaged, kEndSession };

// What ended the call, or a part of it.
struct End {
  EndKind kind = EndKind::kReleased;
  int64_t time = 0;
  Endpoint by;
  std::string why;  // "cause 17 (user busy)"
};

struct FastStart {
  std::vector<std::string> proposed;  // codec and direction of each channel
  std::vector<std::string> accepted;
  std::string acceptedIn;  // the message
  std::string refusedIn;
};

// What one side says it can receive and send.
struct Capabilities {
  Endpoint sender;
  std::string text;
};

struct Channel {
  Endpoint from;  // of the media
  Endpoint to;
  Endpoint opener;
  int64_t number = 0;
  bool isFastStart = false;
  std::string codec;
  std::string reverseCodec;     // of a bidirectional channel
  std::vector<Endpoint> media;  // announced for it by either side
  std::vector<Endpoint> control;
  int64_t opened = 0;
  std::optional<int64_t> acknowledged;
  std::optional<int64_t> rejected;
  std::string rejectReason;
  std::optional<int64_t> closed;
};

// An announced media address and the RTP packets that went there.
struct MediaAddress {
  Endpoint address;
  bool isReceiver = false;              // its side announced it to receive there
  std::map<uint8_t, uint64_t> packets;  // by payload type
};

struct MalformedMessage {
  Origin origin;
  std::string title;
  std::string fault;  // "malformed: octet 126: additionalSourceAddresses[0]: ..."
};

enum class Subject : uint8_t {
  kCall,
  kOther,  // a RAS transaction or a refused connection outside calls
};

struct Call {
  Subject subject = Subject::kCall;
  uint64_t order = 0;   // from 0, in the order in which calls and what stands outside them begin
  uint64_t number = 0;  // of calls, from 1 in their order; 0 outside calls
  int64_t first = 0;    // the time of its first message
  int64_t last = 0;
  std::vector<Guid> identifiers;  // the first one is that of the call; others contradict it
  std::optional<Guid> conference;
  Party caller;  // outside calls: who requests
  Party called;
  std::vector<Endpoint> endpoints;  // of all messages, each once
  std::vector<RasTransaction> transactions;
  std::vector<Leg> legs;
  std::vector<Step> signalling;
  std::vector<End> ends;
  FastStart fastStart;
  std::vector<Capabilities> capabilities;
  std::vector<Channel> channels;
  std::vector<MediaAddress> media;
  std::vector<Origin> refusedConnections;
  std::vector<MalformedMessage> malformed;
  std::vector<std::string> remarks;  // contradictions and H.245 requests that were rejected
  std::vector<Message> messages;     // where they are kept

  // The leg that began the call; null: there is none.
  const Leg* FirstLeg() const { return legs.empty() ? nullptr : &legs.front(); }
};

// Announced once or more, it is there once.
void AddMediaAddress(Call& call, const Endpoint& address, bool is_receiver);

template <class Value>
void AddOnce(std::vector<Value>& values, const Value& value) {
  for (const Value& known : values) {
    if (known == value) return;
  }
  values.push_back(value);
}

// Whether they are the same but for the port.
inline bool SameHost(const Endpoint& a, const Endpoint& b) { return a.v6 == b.v6 && a.address == b.address; }
