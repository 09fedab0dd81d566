// One direction of a TCP connection that carries TPKT packets.
#pragma once

#include "input/packet.h"
#include "input/tcp_order.h"
#include "input/tpkt.h"
#include "message.h"

class TcpDirection {
 public:
  // `first` is the first segment seen of this direction, or of the opposite one, whose acknowledgement shows the
  // position of this one.
  TcpDirection(Family family, const TcpSegment& first, bool opposite, MessageSink& sink);

  void OnSegment(const TcpSegment& segment, const Origin& origin);
  // Delivers what waits for segments that were never captured.
  void Close();

  // True if the segment belongs to a new connection between the same ports.
  bool IsNewConnection(const TcpSegment& segment) const;
  size_t HeldOctets() const;

 private:
  // True if the SYN arrived after a segment from inside the connection's first packet.
  bool IsLateOpening(const TcpSegment& segment) const;
  void Deliver();
  void Emit(std::vector<uint8_t>&& packet);
  void LoseStep();
  // Skips segments that others wait for.
  void PassGap();
  bool GapIsOld();
  bool ResumeAfterGap();
  void Stop();
  void Complain(const std::string& what);

  Family family_;
  MessageSink& sink_;
  TpktFramer framer_;
  bool joined_;  // its beginning was not captured
  uint32_t start_;
  TcpOrder order_;
  Origin origin_;
  int64_t gap_since_ = 0;  // 0 without a gap
  bool seeking_;           // looking for a segment that starts like a packet
  bool delivered_ = false;
  bool stopped_ = false;
};
