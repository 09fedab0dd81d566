#include "input/tcp_direction.h"

#include <algorithm>
#include <utility>

namespace {

// RFC 1006 requires at least 7 octets, but an H.245 message may have just one.
constexpr size_t kShortestCallSignalling = 7;
constexpr size_t kShortestH245 = 5;

constexpr size_t kMostWaitingOctets = 0x20000;
constexpr size_t kMostWaitingSegments = 256;
constexpr int64_t kLongestWait = 60'000'000;  // microseconds
constexpr uint32_t kReorderingOctets = 0x10000;
constexpr int32_t kImplausibleJump = 0x1000000;

bool Opens(const TcpSegment& segment) { return segment.Has(TcpSegment::kSyn); }

// A SYN takes a sequence number before its payload (RFC 9293 3.4).
uint32_t PayloadStart(const TcpSegment& segment) { return segment.sequence + (Opens(segment) ? 1 : 0); }

// True if the payload starts inside a packet; the payload of a SYN never does.
bool IsMidPacket(const TcpSegment& segment, const TpktFramer& framer) {
  return !Opens(segment) && !framer.MayStart(segment.payload);
}

uint32_t StartOf(const TcpSegment& first, bool opposite, bool mid_packet) {
  if (opposite) return first.acknowledgement;
  // The start of the packet may still follow.
  return mid_packet ? first.sequence - kReorderingOctets : PayloadStart(first);
}

}  // namespace

TcpDirection::TcpDirection(Family family, const TcpSegment& first, bool opposite, MessageSink& sink)
    : family_(family),
      sink_(sink),
      framer_(family == Family::kH245 ? kShortestH245 : kShortestCallSignalling),
      joined_(opposite || !Opens(first)),
      start_(StartOf(first, opposite, IsMidPacket(first, framer_))),
      order_(start_),
      seeking_(!opposite && IsMidPacket(first, framer_)) {}

void TcpDirection::OnSegment(const TcpSegment& segment, const Origin& origin) {
  if (stopped_) return;
  origin_ = origin;
  if (IsLateOpening(segment)) {
    start_ = PayloadStart(segment);
    order_.SkipTo(order_.PositionOf(start_));
    joined_ = false;
    seeking_ = false;
  }
  order_.Add(PayloadStart(segment), segment.payload);
  Deliver();
  if (seeking_) ResumeAfterGap();
  if (GapIsOld()) PassGap();
}

bool TcpDirection::IsLateOpening(const TcpSegment& segment) const {
  return Opens(segment) && seeking_ && !order_.AfterGap().empty() && PayloadStart(segment) != start_ &&
         order_.PositionOf(PayloadStart(segment)) >= order_.PositionOf(order_.Next()) &&
         order_.PositionOf(PayloadStart(segment)) <= order_.AfterGap().begin()->first;
}

void TcpDirection::Deliver() {
  const auto ready = order_.TakeReady();
  if (seeking_ && !ready.empty()) seeking_ = !framer_.MayStart(ready);
  if (!seeking_) framer_.Add(ready);
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
  const auto& waiting = order_.AfterGap();
  if (stopped_ || waiting.empty()) {
    gap_since_ = 0;
    return false;
  }
  if (gap_since_ == 0) gap_since_ = origin_.microseconds;
  return waiting.size() > kMostWaitingSegments || order_.HeldOctets() > kMostWaitingOctets ||
         origin_.microseconds - gap_since_ > kLongestWait;
}

void TcpDirection::PassGap() {
  gap_since_ = 0;
  framer_.Clear();
  Complain(seeking_ ? "out of step: no segment starts with a TPKT header" : "segments are missing");
  if (!ResumeAfterGap()) Stop();
}

bool TcpDirection::ResumeAfterGap() {
  const auto& waiting = order_.AfterGap();
  const auto next = std::find_if(waiting.begin(), waiting.end(),
                                 [this](const auto& segment) { return framer_.MayStart(segment.second); });
  if (next == waiting.end()) return false;
  order_.SkipTo(next->first);
  Deliver();
  return true;
}

void TcpDirection::Close() {
  while (!stopped_ && !order_.AfterGap().empty()) PassGap();
  if (!stopped_ && framer_.Pending() > 0) Complain("ends within a message");
}

void TcpDirection::Stop() {
  stopped_ = true;
  order_.DropWaiting();
}

bool TcpDirection::IsNewConnection(const TcpSegment& segment) const {
  if (Opens(segment)) return PayloadStart(segment) != start_ && !IsLateOpening(segment);
  const int32_t jump = SequenceDistance(order_.Next(), segment.sequence);
  return !segment.payload.empty() && (jump > kImplausibleJump || jump < -kImplausibleJump);
}

size_t TcpDirection::HeldOctets() const { return stopped_ ? 0 : framer_.Pending() + order_.HeldOctets(); }

void TcpDirection::Complain(const std::string& what) {
  sink_.OnLoss("frame " + std::to_string(origin_.frame) + ", " + ToText(origin_.source) + " -> " +
                   ToText(origin_.destination) + ": " + what,
               origin_.file);
}
