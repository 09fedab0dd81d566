// Finds calls by the keys that their messages, connections and media share.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "calls/call.h"

struct CallKey {
  enum class Kind : uint8_t {
    kIdentifier,    // callIdentifier
    kConference,    // conferenceID
    kReference,     // the RAS call reference and the host
    kLeg,           // the call-signalling call reference and the connection
    kH245Listener,  // an h245Address
    kConnection,    // an H.245 connection
    kDestination,   // from a host to the destCallSignalAddress of its admission
    kMedia,         // a media address
    kRequest,       // a RAS sequence number and its sender
  };

  Kind kind;
  uint16_t number = 0;
  Endpoint first;
  Endpoint second;

  bool operator==(const CallKey&) const = default;

  static CallKey Identifier(const Guid& guid);
  static CallKey Conference(const Guid& guid);
  static CallKey Reference(const Endpoint& host, uint16_t reference);
  static CallKey SignallingLeg(const Endpoint& caller, const Endpoint& called, uint16_t reference);
  static CallKey H245Listener(const Endpoint& endpoint);
  static CallKey Connection(const Endpoint& one, const Endpoint& other);
  static CallKey Destination(const Endpoint& host, const Endpoint& destination);
  static CallKey Media(const Endpoint& endpoint);
  static CallKey Request(const Endpoint& requester, uint16_t sequence);
};

struct CallKeyHash {
  size_t operator()(const CallKey& key) const;
};

// A key announced again belongs to the latest call.
template <class Entry>
class CallIndex {
 public:
  Entry* Find(const CallKey& key) const {
    const auto found = entries_.find(key);
    return found == entries_.end() ? nullptr : found->second;
  }
  // Also records the keys in the entry.
  void Add(const CallKey& key, Entry& entry) {
    Entry*& place = entries_[key];
    if (place == &entry) return;
    place = &entry;
    entry.keys.push_back(key);
  }
  void Remove(Entry& entry) {
    for (const CallKey& key : entry.keys) {
      const auto found = entries_.find(key);
      if (found != entries_.end() && found->second == &entry) entries_.erase(found);
    }
  }

 private:
  std::unordered_map<CallKey, Entry*, CallKeyHash> entries_;
};
