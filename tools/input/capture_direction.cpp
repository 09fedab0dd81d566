#include "input/capture_direction.h"

#include <tins/ip_address.h>
#include <tins/rawpdu.h>

#include <algorithm>

namespace {

// RFC 1006 asks for 7 octets, but an H.245 message may be of one octet.
constexpr size_t kShortestCallSignalling = 7;
constexpr size_t kShortestH245 = 5;

constexpr size_t kMostWaitingOctets = 0x20000;
constexpr size_t kMostWaitingSegments = 256;
constexpr int64_t kLongestWait = 60'000'000;  // microseconds
constexpr uint32_t kReorderingOctets = 0x10000;
constexpr int32_t kImplausibleJump = 0x1000000;

bool Opens(const Tins::TCP& segment) { return (segment.flags() & Tins::TCP::SYN) != 0; }

// An opening takes a sequence number before its payload (RFC 793, 3.4).
uint32_t PayloadStart(const Tins::TCP& segment) { return segment.seq() + (Opens(segment) ? 1 : 0); }

// The payload starts in the middle of a packet, which that of an opening never does.
bool IsMidPacket(const Tins::TCP& segment, const TpktFramer& framer) {
  if (Opens(segment)) return false;
  const auto* payload = segment.find_pdu<Tins::RawPDU>();
  return payload != nullptr && !framer.MayStart(payload->payload());
}

uint32_t StartOf(const Tins::TCP& first, bool opposite, bool mid_packet) {
  if (opposite) return first.ack_seq();
  // The packet's start may follow yet.
  return mid_packet ? first.seq() - kReorderingOctets : PayloadStart(first);
}

// Sequence numbers wrap round.
int32_t Distance(uint32_t from, uint32_t to) { return static_cast<int32_t>(to - from); }

}  // namespace

TcpDirection::TcpDirection(Family family, const Tins::TCP& first, bool opposite, MessageSink& sink)
    : family_(family),
      sink_(sink),
      framer_(family == Family::kH245 ? kShortestH245 : kShortestCallSignalling),
      joined_(opposite || !Opens(first)),
      start_(StartOf(first, opposite, IsMidPacket(first, framer_))),
      flow_(Tins::IPv4Address(), 0, start_),
      seeking_(!opposite && IsMidPacket(first, framer_)) {}

void TcpDirection::OnSegment(Tins::TCP& segment, const Origin& origin) {
  if (stopped_) return;
  origin_ = origin;
  // The flow starts where the payload does, and takes each segment for payload alone.
  segment.seq(PayloadStart(segment));
  segment.set_flag(Tins::TCP::SYN, 0);
  flow_.process_packet(segment);
  Deliver();
  if (seeking_) ResumeBehindGap();
  if (GapIsOld()) PassGap();
}

void TcpDirection::Deliver() {
  auto& payload = flow_.payload();
  if (seeking_ && !payload.empty()) seeking_ = !framer_.MayStart(payload);
  if (!seeking_) framer_.Add(payload);
  payload = Tins::TCPIP::Flow::payload_type();  // clear() would keep the memory
  while (auto packet = framer_.Next()) Emit(std::move(*packet));
  if (framer_.OutOfStep()) LoseStep();
}

void TcpDirection::Emit(std::vector<uint8_t>&& packet) {
  delivered_ = true;
  if (packet.size() == kTpktHeaderOctets) return;
  if (family_ == Family::kH245) packet.erase(packet.begin(), packet.begin() + kTpktHeaderOctets);
  sink_.OnMessage({family_, std::move(packet), origin_});
}

void TcpDirection::LoseStep() {
  framer_.Clear();
  Complain("out of step: no TPKT header where one must be");
  seeking_ = joined_ && !delivered_;
  if (!seeking_) Stop();
}

bool TcpDirection::GapIsOld() {
  const auto& waiting = flow_.buffered_payload();
  if (stopped_ || waiting.empty()) {
    gap_since_ = 0;
    return false;
  }
  if (gap_since_ == 0) gap_since_ = origin_.microseconds;
  return waiting.size() > kMostWaitingSegments || flow_.total_buffered_bytes() > kMostWaitingOctets ||
         origin_.microseconds - gap_since_ > kLongestWait;
}

void TcpDirection::PassGap() {
  gap_since_ = 0;
  framer_.Clear();
  Complain(seeking_ ? "out of step: no segment starts with a TPKT header" : "segments are missing");
  if (!ResumeBehindGap()) Stop();
}

bool TcpDirection::ResumeBehindGap() {
  const auto& waiting = flow_.buffered_payload();
  const uint32_t now = flow_.sequence_number();
  auto next = waiting.end();
  for (auto i = waiting.begin(); i != waiting.end(); ++i) {
    const bool nearer = next == waiting.end() || Distance(now, i->first) < Distance(now, next->first);
    if (nearer && framer_.MayStart(i->second)) next = i;
  }
  if (next == waiting.end()) return false;
  // The flow forgets what it skips, this segment too, so that it is handed over again.
  Tins::TCP segment;
  segment.seq(next->first);
  segment.inner_pdu(Tins::RawPDU(next->second.begin(), next->second.end()));
  flow_.advance_sequence(next->first);
  flow_.process_packet(segment);
  Deliver();
  return true;
}

void TcpDirection::Close() {
  while (!stopped_ && !flow_.buffered_payload().empty()) PassGap();
  if (!stopped_ && framer_.Pending() > 0) Complain("ends within a message");
}

void TcpDirection::Stop() {
  stopped_ = true;
  flow_.buffered_payload().clear();
}

bool TcpDirection::IsNewConnection(const Tins::TCP& segment) const {
  if (Opens(segment)) return PayloadStart(segment) != start_;
  const int32_t jump = Distance(flow_.sequence_number(), segment.seq());
  return segment.find_pdu<Tins::RawPDU>() != nullptr && (jump > kImplausibleJump || jump < -kImplausibleJump);
}

size_t TcpDirection::HeldOctets() const { return stopped_ ? 0 : framer_.Pending() + flow_.total_buffered_bytes(); }

void TcpDirection::Complain(const std::string& what) {
  sink_.OnLoss("frame " + std::to_string(origin_.frame) + ", " + ToText(origin_.source) + " -> " +
               ToText(origin_.destination) + ": " + what);
}
