// Captures as pcap and pcapng files hold them.
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
  std::set<uint16_t> h245;                   // TCP, besides the addresses that are announced

  bool AreRas(uint16_t source, uint16_t destination) const { return ras.contains(source) || ras.contains(destination); }
};

// Captures one after the other. Programs begin a new file from time to time, so connections go on in the next, unless
// its time shows that it is another capture.
class CaptureReader {
 public:
  CaptureReader(const CapturePorts& ports, MessageSink& sink);
  ~CaptureReader();
  CaptureReader(const CaptureReader&) = delete;
  CaptureReader& operator=(const CaptureReader&) = delete;

  // Frames are counted anew. Throws InputError, also after messages, when the capture cannot be read on.
  void Read(ByteSource& source);
  // The same in steps: the header, and then packet by packet until there is none. The source lives as long.
  void Open(ByteSource& source);
  bool ReadPacket();
  // Delivers what waits for more, and reports what was lost.
  void Close();

 private:
  class Distributor;
  std::unique_ptr<CaptureFile> file_;
  std::unique_ptr<Distributor> distributor_;
};
