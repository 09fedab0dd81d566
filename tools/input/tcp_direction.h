// One direction of a TCP connection that carries TPKT packets.
#pragma once

#include "input/packet.h"
#include "input/tcp_order.h"
#include "input/tpkt.h"
#include "message.h"

class TcpDirection {
 public:
  // `first` is the first segment seen of the direction, or of its opposite, whose acknowledgement shows where this
  // direction stands.
  TcpDirection(Family family, const TcpSegment& first, bool opposite, MessageSink& sink);

  void OnSegment(const TcpSegment& segment, const Origin& origin);
  // Delivers what waits for segments that were never captured.
  void Close();

  // Whether the segment belongs to another connection between the same ports.
  bool IsNewConnection(const TcpSegment& segment) const;
  size_t HeldOctets() const;

 private:
  // The opening came after a segment from the middle of the connection's first packet.
  bool IsLateOpening(const TcpSegment& segment) const;
  void Deliver();
  void Emit(std::vector<uint8_t>&& packet);
  void LoseStep();
  // Gives up on segments that others wait for.
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
  int64_t gap_since_ = 0;  // 0: no gap
  bool seeking_;           // until a segment starts as a packet does
  bool delivered_ = false;
  bool stopped_ = false;
};
