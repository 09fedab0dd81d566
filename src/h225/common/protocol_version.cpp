#include "h225/common/protocol_version.h"

#include <atomic>

#include "per/primitives.h"

namespace kelvra::h225 {
namespace {

constexpr uint32_t kProtocolIdentifierArcs = 6;  // itu-t recommendation h 2250 version N

std::atomic<int32_t> processMode{kNoVersionMode};

// The version that the identifier names, 1 to 4; 0 when it names none of these.
int32_t VersionOf(const ObjectIdentifierValue& identifier) {
  if (identifier.count != kProtocolIdentifierArcs || identifier.arcs == nullptr) return 0;
  const uint32_t version = identifier.arcs[kProtocolIdentifierArcs - 1];
  return version <= 4 ? static_cast<int32_t>(version) : 0;
}

int32_t ReadVersion(ObjectIdentifierValue& protocolIdentifier, PerReader& reader) {
  PerReadObjectIdentifier(protocolIdentifier, reader);
  const int32_t version = VersionOf(protocolIdentifier);
  if (version != 0) processMode.store(version < 3 ? kVersion2Mode : version - 2, std::memory_order_relaxed);
  return version;
}

}  // namespace

int32_t ProtocolVersionMode() { return processMode.load(std::memory_order_relaxed); }

void ReadProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader) {
  ReadVersion(protocolIdentifier, reader);
}

Status ReadRegistrationProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader) {
  reader.senderVersion = ReadVersion(protocolIdentifier, reader);
  if (reader.senderVersion != 0) return kDecoded;
  PerMoveToEnd(reader, PerCause::kUnknownVersion);
  return kUnsupportedVersion;
}

}  // namespace kelvra::h225
