// The TCP connections of a capture that carry call signalling or H.245.
#pragma once

#include <deque>
#include <list>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "input/capture.h"
#include "input/capture_direction.h"

// Passes messages on and keeps the addresses that they announce.
class AnnouncedAddresses : public MessageSink {
 public:
  explicit AnnouncedAddresses(MessageSink& sink) : sink_(sink) {}

  std::vector<Announced> OnMessage(const Message& message) override;
  void OnLoss(const std::string& what) override { sink_.OnLoss(what); }
  // What a connection with this address carries, as far as messages announced it.
  std::optional<Family> FamilyOf(const Endpoint& endpoint) const;

 private:
  MessageSink& sink_;
  std::map<Endpoint, Family> known_;
  std::deque<Endpoint> oldest_first_;
};

class TcpStreams {
 public:
  TcpStreams(const CapturePorts& ports, MessageSink& sink) : ports_(ports), addresses_(sink) {}

  // Returns whether the connection carries signalling.
  bool OnSegment(Tins::TCP& segment, const Origin& origin);
  void Close();

 private:
  using Key = std::pair<Endpoint, Endpoint>;  // source, destination
  struct Entry {
    Key key;
    TcpDirection direction;
    size_t held;
  };
  using Entries = std::list<Entry>;

  std::optional<Family> FamilyOf(const Origin& origin) const;
  void Join(const Key& key, Family family, const Tins::TCP& segment, bool opposite);
  void Remove(Entries::iterator entry);
  void KeepBounds();

  const CapturePorts& ports_;
  AnnouncedAddresses addresses_;
  Entries entries_;  // least recently used first
  std::map<Key, Entries::iterator> index_;
  size_t held_ = 0;  // octets, of all entries
};
