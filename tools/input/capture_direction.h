// One direction of a TCP connection that carries TPKT packets.
#pragma once

#include <tins/tcp.h>
#include <tins/tcp_ip/flow.h>

#include "input/tpkt.h"
#include "message.h"

class TcpDirection {
 public:
  // `first` is the first segment seen of the direction, or of its opposite, which then tells by its
  // acknowledgement where this direction stands.
  TcpDirection(Family family, const Tins::TCP& first, bool opposite, MessageSink& sink);

  // Takes the segment's payload away.
  void OnSegment(Tins::TCP& segment, const Origin& origin);
  // Delivers what waits for segments that were never captured.
  void Close();

  // Whether the segment belongs to another connection between the same ports.
  bool IsNewConnection(const Tins::TCP& segment) const;
  size_t HeldOctets() const;

 private:
  void Deliver();
  void Emit(std::vector<uint8_t>&& packet);
  void LoseStep();
  // Gives up on segments that others wait for.
  void PassGap();
  bool GapIsOld();
  bool ResumeBehindGap();
  void Stop();
  void Complain(const std::string& what);

  Family family_;
  MessageSink& sink_;
  TpktFramer framer_;
  bool joined_;  // its beginning was not captured
  uint32_t start_;
  Tins::TCPIP::Flow flow_;
  Origin origin_;
  int64_t gap_since_ = 0;  // 0: no gap
  bool seeking_;           // until a segment starts as a packet does
  bool delivered_ = false;
  bool stopped_ = false;
};
