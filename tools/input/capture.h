// Reads pcap and pcapng captures.
#pragma once

#include <cstdint>
#include <memory>
#include <set>

#include "input/byte_source.h"
#include "message.h"

class CaptureFile;

struct CapturePorts {
  std::set<uint16_t> ras{1718, 1719};        // UDP
  std::set<uint16_t> call_signalling{1720};  // TCP
  std::set<uint16_t> h245;                   // TCP, in addition to announced addresses

  bool AreRas(uint16_t source, uint16_t destination) const { return ras.contains(source) || ras.contains(destination); }
};

// Reads several captures in sequence. Capture programs rotate files, so connections continue in the next file, unless
// its time shows that it is a different capture.
class CaptureReader {
 public:
  CaptureReader(const CapturePorts& ports, MessageSink& sink);
  ~CaptureReader();
  CaptureReader(const CaptureReader&) = delete;
  CaptureReader& operator=(const CaptureReader&) = delete;

  // Restarts the frame count. Throws InputError if the capture cannot be read on, also after messages.
  void Read(ByteSource& source);
  // The same in steps: the header, then one packet at a time until there are no more. The source must outlive the
  // reading.
  void Open(ByteSource& source);
  bool ReadPacket();
  // Delivers what is still waiting, and reports losses.
  void Close();

 private:
  class Distributor;
  std::unique_ptr<CaptureFile> file_;
  std::unique_ptr<Distributor> distributor_;
};
