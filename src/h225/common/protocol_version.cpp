#include "h225/common/protocol_version.h"

#include <atomic>

#include "per/primitives.h"

namespace kelvra::h225 {
namespace {

constexpr uint32_t kProtocolIdentifierArcs = 6;  // itu-t recommendation h 2250 version N

std::atomic<int32_t> mode{3};

// The version arc, or 0 for an identifier of another shape.
uint32_t VersionOf(const ObjectIdentifierValue& identifier) {
  return identifier.count == kProtocolIdentifierArcs && identifier.arcs != nullptr
             ? identifier.arcs[kProtocolIdentifierArcs - 1]
             : 0;
}

}  // namespace

int32_t ProtocolVersionMode() { return mode.load(std::memory_order_relaxed); }

void ReadProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader) {
  PerReadObjectIdentifier(protocolIdentifier, reader);
  const uint32_t version = VersionOf(protocolIdentifier);
  if (version < 1 || version > 4) return;
  mode.store(version <= 2 ? 0 : static_cast<int32_t>(version) - 2, std::memory_order_relaxed);
}

}  // namespace kelvra::h225
