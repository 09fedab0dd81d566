// Groups messages, media packets and refused connections into calls.
#pragma once

#include <array>
#include <list>
#include <vector>

#include "calls/call.h"
#include "calls/call_index.h"
#include "calls/call_state.h"
#include "decode/decoded_message.h"

class CallListener {
 public:
  virtual ~CallListener() = default;
  // The call is complete; the tracker forgets it after this.
  virtual void OnCallEnded(const Call& call) = 0;
};

class CallTracker {
 public:
  explicit CallTracker(CallListener& listener) : listener_(listener) {}

  // Returns the calls, or entries outside calls, that the message belongs to: usually one. They keep it if `is_kept`.
  std::vector<const Call*> OnMessage(const Message& message, const DecodedMessage& decoded, bool is_kept);
  void OnMediaPacket(const Origin& origin, uint8_t payload_type);
  void OnRefusedConnection(const Origin& origin);
  // Ends every call.
  void Close();

 private:
  struct Entry;
  using Entries = std::list<Entry>;
  struct Entry {
    Call call;
    CallState state = CallState::kOpen;
    std::vector<CallKey> keys;
    size_t messages = 0;
    size_t indexed_media = 0;
    Entries::iterator self;
  };

  Entry& Assign(const Origin& origin, const DecodedMessage& decoded);
  Entry& OnRas(const Origin& origin, const DecodedMessage& message);
  Entry& OnRasRequest(const Origin& origin, const DecodedMessage& message);
  Entry& OnSignalling(const Origin& origin, const DecodedMessage& message);
  Entry& OnControl(const Origin& origin, const DecodedMessage& message);

  Entry* FindAsked(const Origin& origin, const DecodedMessage& message) const;
  bool IsRepeated(Entry& entry, const Origin& origin, const DecodedMessage& message) const;
  Entry* FindByFields(const Origin& origin, Node body) const;
  Entry* FindByIdentifier(Node body) const;
  Entry* FindBySetup(const Origin& origin, const Leg& leg, Node body) const;
  std::vector<Entry*> FindReported(Node body) const;

  Entry& Begin(Subject subject, const Origin& origin);
  void IndexBody(Entry& entry, Node body);
  void IndexRequest(Entry& entry, const Origin& origin, const DecodedMessage& message);
  void IndexMedia(Entry& entry);
  // Marks the entry as alive.
  void Touch(Entry& entry, const Origin& origin);
  void LetGoBefore(int64_t now);
  void LetGo(Entry& entry);
  void KeepBounds();

  CallListener& listener_;
  uint64_t begun_ = 0;
  uint64_t calls_ = 0;
  size_t entries_ = 0;
  std::array<Entries, 4> by_state_;  // least recently used first
  CallIndex<Entry> index_;
};
