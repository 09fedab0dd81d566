// The cursor over one message, read most significant bit first (X.691, aligned variant).
//
// Reads are inline if all octets they may touch are present. At the edges of the message each goes through one
// out-of-line function, which alone decides what happens there.
#pragma once

#include <stdint.h>

namespace kelvra {

// The nesting limit of recursive types (GenericParameter, DataType in itself, ...). A message that nests deeper is
// malformed.
inline constexpr uint32_t kMaximumDepth = 32;

// The memory that the blocks of one message may claim: 1 MiB plus kMessageMemoryForEachOctet per message octet, up to
// the maximum. A block past that is refused as if by the heap. The maximum can be allocated, cleared and freed in a few
// milliseconds; messages of real calls stay far below it, though conforming messages that exceed it can be constructed.
inline constexpr uint32_t kMaximumMessageMemory = 8U << 20;
inline constexpr uint32_t kLeastMessageMemory = 1U << 20;
inline constexpr uint32_t kMessageMemoryForEachOctet = 2048;

// How many octets of one message may be reread: those that the reader moves back over when it leaves an open type, and
// those that were counted but not read. Past this limit the reader moves to its end and stays there.
//
// In conforming messages two things cause rereading: a `tmsi` in a GSM-UIM, which is read as digits, so that what
// follows is misaligned; and more than kOpenTypeLevels nested open types. The longest registration with such aliases
// rereads 65,506 octets.
inline constexpr uint32_t kMaximumRereading = 128U << 10;

inline constexpr uint32_t kOpenTypeLevels = 10;

// The open types being decoded, innermost at `index`. An eleventh level takes the slot of the first.
struct OpenTypeRing {
  uint32_t index;
  uint32_t lengths[kOpenTypeLevels];
  const uint8_t* starts[kOpenTypeLevels];
};

// A type that no record uses: the compiler then knows that stores to a record do not change a reader's offset.
using BitOffset = unsigned long;

// Why a read failed, for diagnosis only; no decode depends on it.
enum class PerCause : uint8_t {
  kNone,
  kEndOfMessage,      // the bits are missing
  kLengthPastEnd,     // a length announces more than is left
  kFragmentedLength,  // a length is fragmented
  kNumberTooWide,     // a number of more than 32 bits, or a length past its bound
  kUndefinedIndex,    // an index past the alternatives of a CHOICE
  kRefusedBlock,      // the heap refused a block
  kTooMuchMemory,     // the message claims more memory than allowed
  kTooDeep,           // types nest too deep
  kTooMuchRereading,  // more octets are reread than allowed
  kUnknownVersion,    // a registration names an unknown version
  kEndOfOpenType,     // the bits lie past the open type; only an observed decode stops there
};

// There is no error flag: a failed read moves `position` to `end`, and every later read yields 0. An open type's length
// can carry `position` beyond `end`, which counts as exhausted.
struct PerReader {
  static constexpr bool kObserves = false;

  const uint8_t* position;  // the octet that holds the next unread bit
  BitOffset bitOffset;      // bits of that octet already consumed, 0 to 7
  const uint8_t* end;

  const uint8_t* readable;  // end of the caller's octets; those from here to `end` read as zero

  // The nearer of `end` and `readable`: octets before it can be read without another check.
  const uint8_t* octetLimit;

  // State of this message's decode.
  OpenTypeRing openTypes;
  int32_t extensionPresentCount;  // unknown additions to skip, from the last bitmap
  PerCause cause;                 // of the first failure
  int32_t senderVersion;          // the version that the message names, if it decides which additions follow
  uint32_t depth;                 // recursive types entered
  uint32_t allowance;             // octets that blocks may still claim
  uint32_t reread;                // octets reread so far
  const uint8_t* stoppedAt;       // at the end only: the octet boundary reached before the move there; null: the end
};

// Sets up a reader of `length` octets at `buffer`, with fresh decoding state.
void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length);
// The same for a caller's buffer that holds `available` octets from `buffer`, fewer or more than `length`.
void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length, uint32_t available);

// A reader of a RAS or H.245 message; only the low 16 bits of the length are used.
inline PerReader PerReaderOver(const uint8_t* buffer, uint32_t length) {
  PerReader reader;
  PerReaderInit(reader, buffer, static_cast<uint16_t>(length));
  return reader;
}

// `pointer` plus `count`, limited to the last address instead of wrapping.
inline const uint8_t* PerAdvance(const uint8_t* pointer, uint32_t count) {
  const auto address = reinterpret_cast<uintptr_t>(pointer);
  // An address past the buffer is only compared, but pointer arithmetic does not allow it.
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  return reinterpret_cast<const uint8_t*>(count > UINTPTR_MAX - address ? UINTPTR_MAX : address + count);
}

inline bool PerAtEnd(const PerReader& reader) { return reader.position >= reader.end; }

// Octets from the position to the end, including a partly consumed one.
inline uint32_t PerOctetsLeft(const PerReader& reader) {
  return PerAtEnd(reader) ? 0
                          : static_cast<uint32_t>(reinterpret_cast<uintptr_t>(reader.end) -
                                                  reinterpret_cast<uintptr_t>(reader.position));
}

// Octets from the position that can be read.
inline uint32_t PerOctetsInside(const PerReader& reader) {
  return reader.position >= reader.octetLimit ? 0 : static_cast<uint32_t>(reader.octetLimit - reader.position);
}

// Octets of the caller's buffer from the position, including those past the end.
inline uint32_t PerReadableOctets(const PerReader& reader) {
  return reader.position >= reader.readable ? 0 : static_cast<uint32_t>(reader.readable - reader.position);
}

// The next octet boundary from the position and `offset`, the reader's own; the position itself if it is one.
inline const uint8_t* PerBoundary(const PerReader& reader, BitOffset offset) {
  return reader.position + (offset + 7) / 8;
}
inline const uint8_t* PerBoundary(const PerReader& reader) { return PerBoundary(reader, reader.bitOffset); }

// Notes why a read failed, unless one has failed before.
inline void PerNoteCause(PerReader& reader, PerCause cause) {
  if (reader.cause == PerCause::kNone) reader.cause = cause;
}

inline void PerMoveToEnd(PerReader& reader, PerCause cause) {
  PerNoteCause(reader, cause);
  if (!PerAtEnd(reader)) reader.stoppedAt = PerBoundary(reader);
  reader.position = reader.end;
  reader.bitOffset = 0;
}

// Counts reread octets. Once there are too many, moves the reader to its end for good and returns false.
bool PerCountRereading(PerReader& reader, uint32_t octets);

// Moves the reader back to `octet`, the end of an open type.
[[gnu::noinline]] void PerMoveBack(PerReader& reader, const uint8_t* octet);

// The octet at `position` plus `index`, zero outside the caller's buffer.
uint8_t PerPeekOctet(const PerReader& reader, uint32_t index);

// Advances by `count` bits; past the end the reader stops there.
void PerSkipBits(PerReader& reader, uint32_t count);

// PerReadBits at any position.
[[gnu::noinline]] uint32_t PerReadBitsAtEdge(PerReader& reader, uint32_t count);

// --- Octets that can be read without another check ---

// Whether there are `count` of them from the position, which may be anywhere.
inline bool PerHasOctets(const PerReader& reader, int32_t count) {
  return reader.octetLimit - reader.position >= count;
}

// The big-endian numbers in the octets at `octets`.
inline uint32_t PerLoad16(const uint8_t* octets) { return uint32_t{octets[0]} << 8 | octets[1]; }
inline uint32_t PerLoad32(const uint8_t* octets) { return PerLoad16(octets) << 16 | PerLoad16(octets + 2); }

// How many octets PerTakeBits loads for `count` bits, enough for any offset.
[[gnu::always_inline]] inline int32_t PerOctetsTaken(uint32_t count) {
  if (!__builtin_constant_p(count)) return 5;
  return count <= 9 ? 2 : count <= 25 ? 4 : 5;
}

// The next 1 to 32 bits from `offset`, the reader's own. `taken` octets can be read: the value of PerOctetsTaken at the
// check. Another call may return a different value, depending on whether the compiler knows `count` there.
[[gnu::always_inline]] inline uint32_t PerTakeBits(PerReader& reader, BitOffset offset, uint32_t count, int32_t taken) {
  const uint8_t* octets = reader.position;
  uint32_t bits = taken == 2 ? PerLoad16(octets) << 16 : PerLoad32(octets);
  bits <<= offset;
  if (taken == 5) bits |= uint32_t{octets[4]} >> (8 - offset);
  reader.position = octets + (offset + count) / 8;
  reader.bitOffset = (offset + count) % 8;
  return bits >> (32 - count);
}

// The next bit, at `offset`, the reader's own.
inline bool PerPeekBit(const PerReader& reader, BitOffset offset) {
  return (uint32_t{*reader.position} << offset & 0x80) != 0;
}

inline void PerMoveTo(PerReader& reader, const uint8_t* octet) {
  reader.position = octet;
  reader.bitOffset = 0;
}

// --- Reading ---
//
// Load the offset before the bounds check: the compiler then keeps it in a register from read to read instead of
// reloading what it just stored.

// The next `count` bits (0 to 32); 0, and the reader at its end, if there are fewer.
[[gnu::always_inline]] inline uint32_t PerReadBits(PerReader& reader, uint32_t count) {
  const int32_t taken = PerOctetsTaken(count);
  const BitOffset offset = reader.bitOffset;
  if (count - 1 < 32 && PerHasOctets(reader, taken)) [[likely]]
    return PerTakeBits(reader, offset, count, taken);
  return PerReadBitsAtEdge(reader, count);
}

[[gnu::always_inline]] inline uint32_t PerReadBit(PerReader& reader) {
  const uint8_t* octet = reader.position;
  const BitOffset offset = reader.bitOffset;
  if (octet >= reader.octetLimit) [[unlikely]]
    return PerReadBitsAtEdge(reader, 1);
  reader.position = octet + (offset + 1) / 8;
  reader.bitOffset = (offset + 1) % 8;
  return uint32_t{*octet} << offset >> 7 & 1;
}

// Consecutive flags (an extension bit, presence bits, BOOLEANs), read at once and returned in order.
class PerFlags {
 public:
  // The first flag is the top bit.
  explicit PerFlags(uint32_t bits) : bits_(bits) {}

  uint32_t Next() {
    const uint32_t flag = bits_ >> 31;
    bits_ <<= 1;
    return flag;
  }
  // How many of the remaining flags are set.
  int32_t CountLeft() const { return __builtin_popcount(bits_); }

 private:
  uint32_t bits_;
};

// PerReadFlags at any position.
[[gnu::noinline]] PerFlags PerReadFlagsAtEdge(PerReader& reader, uint32_t count);

// The next `count` flags, 1 to 32 and at most `most`. Flags past the end of the message are 0, as if read one by one.
[[gnu::always_inline]] inline PerFlags PerReadFlags(PerReader& reader, uint32_t count, uint32_t most) {
  const int32_t taken = PerOctetsTaken(most);
  const BitOffset offset = reader.bitOffset;
  if (PerHasOctets(reader, taken)) [[likely]]
    return PerFlags(PerTakeBits(reader, offset, count, taken) << (32 - count));
  return PerReadFlagsAtEdge(reader, count);
}

[[gnu::always_inline]] inline PerFlags PerReadFlags(PerReader& reader, uint32_t count) {
  return PerReadFlags(reader, count, count);
}

// Bounds the reader to the next `length` octets while it lives. Afterwards the reader resumes past them, whatever was
// consumed.
class PerBounds {
 public:
  PerBounds(PerReader& reader, uint32_t length);
  ~PerBounds();
  PerBounds(const PerBounds&) = delete;
  PerBounds& operator=(const PerBounds&) = delete;

 private:
  PerReader& reader_;
  const uint8_t* outerEnd_;
  const uint8_t* after_;
};

// Advances to the next octet boundary.
inline void PerAlign(PerReader& reader) {
  if (!PerAtEnd(reader)) PerMoveTo(reader, PerBoundary(reader));
}

}  // namespace kelvra
