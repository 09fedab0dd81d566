#pragma once

#include "h245/messages/multiplex_entry.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeMultiplexEntrySend(MultiplexEntrySend& m, PerReader& r);
void DecodeMultiplexEntrySendAck(MultiplexEntrySendAck& m, PerReader& r);
void DecodeMultiplexEntrySendReject(MultiplexEntrySendReject& m, PerReader& r);
void DecodeMultiplexEntrySendRelease(MultiplexEntrySendRelease& m, PerReader& r);
// The acknowledgement and the release hold the same.
void DecodeRequestMultiplexEntry(RequestMultiplexEntry& m, PerReader& r);
void DecodeRequestMultiplexEntryReject(RequestMultiplexEntryReject& m, PerReader& r);

}  // namespace kelvra::h245
