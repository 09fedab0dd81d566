#include "h245/decode.h"
#include "h245/messages/maintenance_loop_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeMaintenanceLoopType(MaintenanceLoopType& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 1: m.mediaLoop = PerReadNumber<uint16_t>(r, 1, 65535); return;
    case 2: m.logicalChannelLoop = PerReadNumber<uint16_t>(r, 1, 65535); return;
    default: return;
  }
}

}  // namespace

void DecodeMaintenanceLoop(MaintenanceLoop& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeMaintenanceLoopType(m.type, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMaintenanceLoopReject(MaintenanceLoopReject& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeMaintenanceLoopType(m.type, r);
  DecodeNullChoice(m.cause, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
