// Everything known about one call: facts from its messages, its media and its connections.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "message.h"

using Guid = std::array<uint8_t, 16>;

struct Party {
  std::vector<std::string> aliases;  // each alias or number once
  std::vector<Endpoint> addresses;   // each once
};

// A RAS request and its answer.
struct RasTransaction {
  std::string request;  // empty if only the answer was seen
  Endpoint requester;
  Endpoint responder;
  uint16_t sequence = 0;
  int64_t requested = 0;
  unsigned repeats = 0;  // how often the request was repeated
  bool expectsAnswer = false;
  bool inProgress = false;  // a requestInProgress was received
  std::string detail;       // the reason in the request
  std::string answer;       // empty if no answer was seen
  int64_t answered = 0;
  std::string answerDetail;  // the reject reason, or the call model
  bool isRejected = false;

  bool IsUnanswered() const { return expectsAnswer && answer.empty(); }
  // From the first request to the answer; empty if either is missing.
  std::optional<int64_t> ResponseTime() const;
};

// One call reference on one connection. A gatekeeper-routed call has several.
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

// One line about a call-signalling message.
struct Step {
  Origin origin;
  std::string text;  // "Release Complete, cause 17 (user busy)"
};

enum class EndKind : uint8_t { kRejected, kRefused, kReleased, kDisengaged, kEndSession };

// What ended the call or a part of it.
struct End {
  EndKind kind = EndKind::kReleased;
  int64_t time = 0;
  Endpoint by;
  std::string why;  // "cause 17 (user busy)"
};

struct FastStart {
  std::vector<std::string> proposed;  // codec and direction of each channel
  std::vector<std::string> accepted;
  std::string acceptedIn;  // the message that accepted them
  std::string refusedIn;
};

// What one side can receive and send.
struct Capabilities {
  Endpoint sender;
  std::string text;
};

struct Channel {
  Endpoint from;  // of the media stream
  Endpoint to;
  Endpoint opener;
  int64_t number = 0;
  bool isFastStart = false;
  std::string codec;
  std::string reverseCodec;     // if the channel is bidirectional
  std::vector<Endpoint> media;  // announced for the channel by either side
  std::vector<Endpoint> control;
  int64_t opened = 0;
  std::optional<int64_t> acknowledged;
  std::optional<int64_t> rejected;
  std::string rejectReason;
  std::optional<int64_t> closed;
};

// An announced media address and the RTP packets sent to it.
struct MediaAddress {
  Endpoint address;
  bool isReceiver = false;              // announced by its own side, to receive there
  std::map<uint8_t, uint64_t> packets;  // by payload type
};

// A message, or one that it tunnels, in a ladder.
struct MessageLine {
  std::string title;  // "Setup (setup)"
  std::string fault;  // why it is incomplete, or why the library refuses it
  bool isMalformed = false;
};

struct CallMessage {
  Message message;
  std::vector<MessageLine> lines;  // its own, then those of the messages that it tunnels
};

struct MalformedMessage {
  Origin origin;
  std::string title;
  std::string fault;  // "malformed: octet 126: additionalSourceAddresses[0]: ..."
};

enum class Subject : uint8_t {
  kCall,
  kOther,  // a RAS transaction or a refused connection that belongs to no call
};

struct Call {
  Subject subject = Subject::kCall;
  uint64_t order = 0;   // from 0, by first message, calls and other entries alike
  uint64_t number = 0;  // from 1, calls only; 0 for other entries
  int64_t first = 0;    // time of the first message
  int64_t last = 0;
  std::vector<Guid> identifiers;  // the first identifies the call; others contradict it
  std::optional<Guid> conference;
  Party caller;  // of other entries: the requester
  Party called;
  std::set<Endpoint> endpoints;  // of all messages
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
  std::vector<std::string> remarks;   // contradictions and rejected H.245 requests
  std::vector<CallMessage> messages;  // those that are kept

  // The leg that began the call; null if there is none.
  const Leg* FirstLeg() const { return legs.empty() ? nullptr : &legs.front(); }
};

// Adds the address unless the call already has it.
void AddMediaAddress(Call& call, const Endpoint& address, bool is_receiver);

template <class Value>
void AddOnce(std::vector<Value>& values, const Value& value) {
  for (const Value& known : values) {
    if (known == value) return;
  }
  values.push_back(value);
}

// True if the addresses are equal apart from the port.
inline bool SameHost(const Endpoint& a, const Endpoint& b) { return a.v6 == b.v6 && a.address == b.address; }
