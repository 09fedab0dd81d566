// The TCP connections of a capture that carry call signalling or H.245.
#pragma once

#include <deque>
#include <list>
#include <map>
#include <optional>
#include <utility>

#include "input/capture.h"
#include "input/tcp_direction.h"

// Passes messages on and remembers the addresses that they announce.
class AnnouncedAddresses : public MessageSink {
 public:
  explicit AnnouncedAddresses(MessageSink& sink) : sink_(sink) {}

  std::vector<Announced> OnMessage(const Message& message) override;
  void OnLoss(const std::string& what, const FileName& file) override { sink_.OnLoss(what, file); }

  struct Use {
    Family family = Family::kH245;
    uint64_t segments = 0;  // with payload
    bool recognised = false;
  };
  // How connections with this address were announced and used; null if it was not announced.
  Use* Find(const Endpoint& endpoint);
  // Reports the addresses that received segments but no message.
  void Close();

 private:
  MessageSink& sink_;
  std::map<Endpoint, Use> known_;
  std::deque<Endpoint> oldest_first_;
};

class TcpStreams {
 public:
  TcpStreams(const CapturePorts& ports, MessageSink& sink) : ports_(ports), sink_(sink), addresses_(sink) {}

  // Passes on a message from elsewhere and remembers the addresses that it announces.
  void OnMessage(const Message& message) { addresses_.OnMessage(message); }
  // Returns true if the connection carries signalling.
  bool OnSegment(const TcpSegment& segment, const Origin& origin);
  // Ends all open connections.
  void CloseAll();
  // The same, and reports on announced addresses.
  void Close();

 private:
  using Key = std::pair<Endpoint, Endpoint>;  // source, destination
  struct Entry {
    Key key;
    TcpDirection direction;
    size_t held;
    bool awaits_answer;  // this side sent the SYN
  };
  using Entries = std::list<Entry>;

  std::optional<Family> FamilyOf(const Origin& origin);
  void CountSegment(const TcpSegment& segment, const Origin& origin);
  void OnAnswer(const TcpSegment& segment, const Origin& origin);
  void Join(const Key& key, Family family, const TcpSegment& segment, bool opposite);
  void Remove(Entries::iterator entry);
  void KeepBounds();

  const CapturePorts& ports_;
  MessageSink& sink_;
  AnnouncedAddresses addresses_;
  Entries entries_;  // least recently used first
  std::map<Key, Entries::iterator> index_;
  size_t held_ = 0;  // in octets, for all entries
};
