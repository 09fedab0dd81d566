#include "per/reader.h"

#include "codec/trace.h"

namespace kelvra {
namespace {

// The trace lines that distinguish the reader's refusals.
enum RefusalLine : int32_t { kSkipAtEnd = 85, kSkipPastEnd = 101, kReadPastEnd = 127, kReadTooWide = 134 };

[[gnu::cold]] void TraceRefusal(RefusalLine line) {
  CodecTrace(kTraceDecoder, kTraceError, kReasonDecode, kSourceReader, line);
}

uint32_t AllowanceOf(uint32_t octets) {
  const uint64_t allowance = kLeastMessageMemory + uint64_t{octets} * kMessageMemoryForEachOctet;
  return allowance < kMaximumMessageMemory ? static_cast<uint32_t>(allowance) : kMaximumMessageMemory;
}

void SetEnd(PerReader& reader, const uint8_t* end) {
  reader.end = end;
  reader.octetLimit = end < reader.readable ? end : reader.readable;
}

}  // namespace

void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length) {
  PerReaderInit(reader, buffer, length, length);
}

void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length, uint32_t available) {
  reader = {};
  reader.position = buffer;
  reader.readable = PerAdvance(buffer, available);
  SetEnd(reader, PerAdvance(buffer, length));
  reader.allowance = AllowanceOf(PerOctetsInside(reader));
}

PerBounds::PerBounds(PerReader& reader, uint32_t length)
    : reader_(reader), outerEnd_(reader.end), after_(PerAdvance(reader.position, length)) {
  SetEnd(reader, after_);
}

PerBounds::~PerBounds() {
  SetEnd(reader_, outerEnd_);
  PerMoveTo(reader_, after_);
  reader_.stoppedAt = nullptr;
  if (reader_.reread > kMaximumRereading) PerMoveToEnd(reader_, PerCause::kTooMuchRereading);
}

bool PerCountRereading(PerReader& reader, uint32_t octets) {
  reader.reread = reader.reread + octets > kMaximumRereading ? kMaximumRereading + 1 : reader.reread + octets;
  if (reader.reread <= kMaximumRereading) return true;
  PerMoveToEnd(reader, PerCause::kTooMuchRereading);
  return false;
}

void PerMoveBack(PerReader& reader, const uint8_t* octet) {
  const uint8_t* read = PerBoundary(reader);
  if (PerAtEnd(reader)) read = reader.stoppedAt != nullptr ? reader.stoppedAt : reader.end;
  if (!PerCountRereading(reader, octet < read ? static_cast<uint32_t>(read - octet) : 0)) return;
  PerMoveTo(reader, octet);
  if (!PerAtEnd(reader)) reader.stoppedAt = nullptr;
}

uint8_t PerPeekOctet(const PerReader& reader, uint32_t index) {
  return index < PerReadableOctets(reader) ? reader.position[index] : uint8_t{0};
}

uint32_t PerReadBitsAtEdge(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader)) {
    if (count != 0) PerNoteCause(reader, PerCause::kEndOfMessage);
    return 0;
  }
  if (uint64_t{PerOctetsLeft(reader)} * 8 < uint64_t{reader.bitOffset} + count) {
    TraceRefusal(kReadPastEnd);
    PerMoveToEnd(reader, PerCause::kEndOfMessage);
    return 0;
  }
  if (count > 32) {
    TraceRefusal(kReadTooWide);
    PerMoveToEnd(reader, PerCause::kNumberTooWide);
    return 0;
  }
  if (count == 0) return 0;
  const uint32_t total = static_cast<uint32_t>(reader.bitOffset) + count;
  const uint32_t octets = (total + 7) / 8;  // five at most
  const uint32_t readable = PerReadableOctets(reader);
  uint64_t window = 0;
  for (uint32_t i = 0; i < octets; ++i) window = window << 8 | (i < readable ? reader.position[i] : 0U);
  reader.position += total / 8;
  reader.bitOffset = total % 8;
  const uint32_t value = static_cast<uint32_t>(window >> (octets * 8 - total));
  return value & (UINT32_MAX >> (32 - count));
}

PerFlags PerReadFlagsAtEdge(PerReader& reader, uint32_t count) {
  uint32_t bits = 0;
  for (uint32_t i = 0; i < count; ++i) bits |= PerReadBit(reader) << (31 - i);
  return PerFlags(bits);
}

void PerSkipBits(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader)) {
    TraceRefusal(kSkipAtEnd);
    return;
  }
  const uint64_t total = uint64_t{reader.bitOffset} + count;
  if (total / 8 > PerOctetsLeft(reader)) {
    PerMoveToEnd(reader, PerCause::kEndOfMessage);
    TraceRefusal(kSkipPastEnd);
    return;
  }
  reader.position = PerAdvance(reader.position, static_cast<uint32_t>(total / 8));
  reader.bitOffset = static_cast<BitOffset>(total % 8);
}

}  // namespace kelvra
