#include "h225/common/protocol_version.h"

#include <atomic>

#include "per/primitives.h"

namespace kelvra::h225 {
namespace {

constexpr uint32_t kProtocolIdentifierArcs = 6;  // itu-t recommendation h 2250 version N

std::atomic<int32_t> processMode{kNoVersionMode};

int32_t ModeOf(const ObjectIdentifierValue& identifier) {
  if (identifier.count != kProtocolIdentifierArcs || identifier.arcs == nullptr) return kNoVersionMode;
  switch (identifier.arcs[kProtocolIdentifierArcs - 1]) {
    case 1:
    case 2: return kVersion2Mode;
    case 3: return kVersion3Mode;
    case 4: return kVersion4Mode;
    default: return kNoVersionMode;
  }
}

int32_t ReadMode(ObjectIdentifierValue& protocolIdentifier, PerReader& reader) {
  PerReadObjectIdentifier(protocolIdentifier, reader);
  const int32_t mode = ModeOf(protocolIdentifier);
  if (mode != kNoVersionMode) processMode.store(mode, std::memory_order_relaxed);
  return mode;
}

}  // namespace

int32_t ProtocolVersionMode() { return processMode.load(std::memory_order_relaxed); }

void ReadProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader) {
  ReadMode(protocolIdentifier, reader);
}

Status ReadRegistrationProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader, int32_t& mode) {
  mode = ReadMode(protocolIdentifier, reader);
  if (mode != kNoVersionMode) return kDecoded;
  PerMoveToEnd(reader);
  return kUnsupportedVersion;
}

}  // namespace kelvra::h225
