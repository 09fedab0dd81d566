// Captures as pcap and pcapng files hold them.
#pragma once

#include <cstdint>
#include <set>

#include "input/byte_source.h"
#include "message.h"

struct CapturePorts {
  std::set<uint16_t> ras;              // UDP
  std::set<uint16_t> call_signalling;  // TCP
  std::set<uint16_t> h245;             // TCP, beside the addresses that are announced

  bool AreRas(uint16_t source, uint16_t destination) const { return ras.contains(source) || ras.contains(destination); }
};

// Throws InputError, also after messages, when the capture cannot be read on.
void ReadCapture(ByteSource& source, const CapturePorts& ports, MessageSink& sink);
