#include "per/reader.h"

#include <bit>

#include "codec/memory.h"
#include "codec/trace.h"

namespace kelvra {
namespace {

// The lines by which the refusals of the reader are told apart.
enum RefusalLine : int32_t { kSkipAtEnd = 85, kSkipPastEnd = 101, kReadPastEnd = 127, kReadTooWide = 134 };

void TraceRefusal(RefusalLine line) { CodecTrace(kTraceDecoder, kTraceError, kReasonDecode, kSourceReader, line); }

uint32_t ReadableOctets(const PerReader& reader) {
  return reader.position >= reader.readable ? 0 : static_cast<uint32_t>(reader.readable - reader.position);
}

// The 64 bits from the position's octet on; a value and its bit offset never span more than five octets.
uint64_t LoadWindow(const PerReader& reader) {
  const uint32_t readable = ReadableOctets(reader);
  uint64_t window = 0;
  if (readable >= sizeof window) {
    CodecCopy(&window, reader.position, sizeof window);
    if constexpr (std::endian::native == std::endian::little) window = __builtin_bswap64(window);
    return window;
  }
  for (uint32_t i = 0; i < readable; ++i) window |= uint64_t{reader.position[i]} << (56 - 8 * i);
  return window;
}

}  // namespace

const uint8_t* PerAdvance(const uint8_t* pointer, uint32_t count) {
  const auto address = reinterpret_cast<uintptr_t>(pointer);
  // An address behind the buffer is only compared, which the arithmetic of pointers does not allow for.
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  return reinterpret_cast<const uint8_t*>(count > UINTPTR_MAX - address ? UINTPTR_MAX : address + count);
}

void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length) {
  reader = {};
  reader.position = buffer;
  reader.end = PerAdvance(buffer, length);
  reader.readable = reader.end;
}

uint8_t PerPeekOctet(const PerReader& reader, uint32_t index) {
  return index < ReadableOctets(reader) ? reader.position[index] : uint8_t{0};
}

uint32_t PerReadBits(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader)) return 0;
  if (uint64_t{PerOctetsLeft(reader)} * 8 < uint64_t{reader.bitOffset} + count) {
    TraceRefusal(kReadPastEnd);
    PerMoveToEnd(reader);
    return 0;
  }
  if (count > 32) {
    TraceRefusal(kReadTooWide);
    PerMoveToEnd(reader);
    return 0;
  }
  if (count == 0) return 0;
  const uint64_t window = LoadWindow(reader) << reader.bitOffset;
  PerSkipBits(reader, count);
  return static_cast<uint32_t>(window >> (64 - count));
}

void PerSkipBits(PerReader& reader, uint32_t count) {
  if (PerAtEnd(reader)) {
    TraceRefusal(kSkipAtEnd);
    return;
  }
  const uint64_t total = uint64_t{reader.bitOffset} + count;
  if (total / 8 > PerOctetsLeft(reader)) {
    PerMoveToEnd(reader);
    TraceRefusal(kSkipPastEnd);
    return;
  }
  reader.position = PerAdvance(reader.position, static_cast<uint32_t>(total / 8));
  reader.bitOffset = static_cast<uint32_t>(total % 8);
}

void PerAlign(PerReader& reader) {
  if (!PerAtEnd(reader) && reader.bitOffset != 0) PerSkipBits(reader, 8 - reader.bitOffset);
}

}  // namespace kelvra
