#include <string>

#include "input/capture.h"
#include "input/capture_file.h"
#include "input/octet_view.h"
#include "input/packet.h"
#include "input/tcp_streams.h"

namespace {

constexpr size_t kRtpHeaderOctets = 12;

// RFC 3550 5.1. RTCP would have these payload types (RFC 5761 4).
bool LooksLikeRtp(std::span<const uint8_t> datagram) {
  if (datagram.size() < kRtpHeaderOctets || datagram[0] >> 6 != 2) return false;
  const int payload_type = datagram[1] & 0x7F;
  return payload_type < 72 || payload_type > 76;
}

}  // namespace

class CaptureReader::Distributor {
 public:
  Distributor(const CapturePorts& ports, MessageSink& sink)
      : ports_(ports), sink_(sink), streams_(ports, sink), packets_(ports) {}

  void StartFile(const std::string& name) {
    origin_.frame = 0;
    origin_.file = std::make_shared<const std::string>(name);
  }
  void OnPacket(const CapturedPacket& packet) {
    // A file that starts earlier does not continue the previous one.
    if (origin_.frame == 0 && packet.microseconds < origin_.microseconds) streams_.CloseAll();
    origin_.frame += 1;
    origin_.microseconds = packet.microseconds;
    const bool may_be_signalling = Take(packets_.Read(packet.link_type, packet.octets));
    if (may_be_signalling && packet.octets.size() < packet.length) ++cut_off_;
  }
  void Close() {
    streams_.Close();
    ReportLoss("packets that lack a fragment: ", packets_.Fragments().Incomplete());
    ReportLoss("frames cut off by the capture: ", cut_off_);
  }

 private:
  void ReportLoss(const char* what, uint64_t count) {
    if (count > 0) sink_.OnLoss(what + std::to_string(count), nullptr);
  }

  // Returns false if the packet cannot hold signalling.
  bool Take(PacketContent content) {
    switch (content) {
      case PacketContent::kOther: return false;
      case PacketContent::kCutOff:
      case PacketContent::kFragment: return true;
      case PacketContent::kTcp:
      case PacketContent::kUdp: break;
    }
    origin_.source = packets_.Source();
    origin_.destination = packets_.Destination();
    if (content == PacketContent::kTcp) return streams_.OnSegment(packets_.Segment(), origin_);
    return OnDatagram(packets_.Datagram());
  }

  bool OnDatagram(std::span<const uint8_t> datagram) {
    if (!ports_.AreRas(origin_.source.port, origin_.destination.port)) {
      if (LooksLikeRtp(datagram)) sink_.OnMediaPacket(origin_, datagram[1] & 0x7F, NetworkNumber32(datagram, 8));
      return false;
    }
    if (!datagram.empty()) streams_.OnMessage({Family::kRas, {datagram.begin(), datagram.end()}, origin_});
    return true;
  }

  const CapturePorts& ports_;
  MessageSink& sink_;
  TcpStreams streams_;
  PacketReader packets_;
  uint64_t cut_off_ = 0;
  Origin origin_;
};

CaptureReader::CaptureReader(const CapturePorts& ports, MessageSink& sink)
    : distributor_(std::make_unique<Distributor>(ports, sink)) {}

CaptureReader::~CaptureReader() = default;

void CaptureReader::Read(ByteSource& source) {
  Open(source);
  while (ReadPacket()) {
  }
}

void CaptureReader::Open(ByteSource& source) {
  distributor_->StartFile(source.Name());
  file_ = std::make_unique<CaptureFile>(source);
}

bool CaptureReader::ReadPacket() {
  CapturedPacket packet;
  if (!file_->Next(packet)) return false;
  distributor_->OnPacket(packet);
  return true;
}

void CaptureReader::Close() { distributor_->Close(); }
