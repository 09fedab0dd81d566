// Orders the segments of one direction of a TCP connection.
#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <vector>

// Sequence numbers wrap around.
inline int32_t SequenceDistance(uint32_t from, uint32_t to) { return static_cast<int32_t>(to - from); }

class TcpOrder {
 public:
  explicit TcpOrder(uint32_t next) : next_(next) {}

  // If octets arrive twice, the first copy counts.
  void Add(uint32_t sequence, std::span<const uint8_t> payload);
  // The octets that have become available in order since the last call.
  std::vector<uint8_t> TakeReady();
  // The sequence number of the next octet in order.
  uint32_t Next() const { return static_cast<uint32_t>(next_); }

  // Segments after a gap, by position; unlike a sequence number, a position does not wrap.
  using Waiting = std::map<int64_t, std::vector<uint8_t>>;
  const Waiting& AfterGap() const { return waiting_; }
  // Skips the octets before the position, which is in AfterGap() or before all of it.
  void SkipTo(int64_t position);
  // The position of a sequence number close to Next().
  int64_t PositionOf(uint32_t sequence) const { return next_ + SequenceDistance(Next(), sequence); }
  void DropWaiting();

  // The memory that waiting segments take.
  size_t HeldOctets() const { return held_; }

 private:
  void Deliver(int64_t position, std::span<const uint8_t> payload);
  void DeliverWaiting();

  int64_t next_;
  std::vector<uint8_t> ready_;
  Waiting waiting_;
  size_t held_ = 0;
};
