// The cursor over one message, read most significant bit first (X.691, aligned variant).
//
// Reads are inline where the octets they may touch are there; at the edges of the message each goes
// through one function that is not, and which alone decides what happens there.
#pragma once

#include <stdint.h>

namespace kelvra {

// How deep recursive types (GenericParameter, DataType under itself, ...) are followed. A message
// that nests deeper is malformed.
inline constexpr uint32_t kMaximumDepth = 32;

// What the blocks of one message may claim in all: so many octets for each of its own beside the first
// megabyte, up to the maximum. A block past that is refused as if the heap had refused it. The maximum is
// what can be obtained, cleared and given back in a few milliseconds; what calls exchange stays far below
// it, though lawful messages could be made that do not.
inline constexpr uint32_t kMaximumMessageMemory = 8U << 20;
inline constexpr uint32_t kLeastMessageMemory = 1U << 20;
inline constexpr uint32_t kMessageMemoryForEachOctet = 2048;

// How many octets of one message may be read, or looked at, a second time: those that leaving an open
// type moves the reader back over, and those that were counted but not read. Past it the reader moves to its
// end and stays there.
//
// Conforming messages have some read again where a GSM-UIM holds a `tmsi`, which is read as digits, so that what
// follows is read out of place, and where more than kOpenTypeLevels open types lie in each other. The longest
// registration of such aliases has 65,506 octets read again.
inline constexpr uint32_t kMaximumRereading = 128U << 10;

inline constexpr uint32_t kOpenTypeLevels = 10;

// The open types being decoded, innermost at `index`. An eleventh level takes the slot of the first.
struct OpenTypeRing {
  uint32_t index;
  uint32_t lengths[kOpenTypeLevels];
  const uint8_t* starts[kOpenTypeLevels];
};

// Of a type that no record has, so that the compiler knows a reader's offset to survive a store to a record.
using BitOffset = unsigned long;

// Why a read failed, for those who ask afterwards; no decode does.
enum class PerCause : uint8_t {
  kNone,
  kEndOfMessage,      // the bits are not there
  kLengthPastEnd,     // a length announces more than there is
  kFragmentedLength,  // a length comes in fragments
  kNumberTooWide,     // a number of more than 32 bits, or a length past its bound
  kUndefinedIndex,    // an index past the alternatives of a CHOICE
  kRefusedBlock,      // the heap refused a block
  kTooMuchMemory,     // the message claims more memory than it may
  kTooDeep,           // types nest deeper than they may
  kTooMuchRereading,  // the message has more read again than it may
  kUnknownVersion,    // a registration names a version that is not known
};

// There is no error flag: a read that fails moves `position` to `end`, and from then on every read
// yields 0. An open type's length can carry `position` beyond `end`, which counts as exhausted.
struct PerReader {
  static constexpr bool kObserves = false;

  const uint8_t* position;  // the octet that holds the next unread bit
  BitOffset bitOffset;      // bits of that octet already consumed, 0 to 7
  const uint8_t* end;

  const uint8_t* readable;  // end of the caller's octets; those from here to `end` read as zero

  // The nearer of both: octets before it can be read without looking further.
  const uint8_t* octetLimit;

  // State that belongs to the decoding of this one message.
  OpenTypeRing openTypes;
  int32_t extensionPresentCount;  // unknown additions to skip, as the last bitmap left it
  PerCause cause;                 // of the first failure
  int32_t senderVersion;          // the version that the message names, where it decides which additions follow
  uint32_t depth;                 // recursive types entered
  uint32_t allowance;             // octets that blocks may still claim
  uint32_t reread;                // octets read or looked at a second time so far
  const uint8_t* stoppedAt;       // at the end only: the octet boundary it had read to before it moved; null: the end
};

// Over `length` octets at `buffer`, with fresh decoding state.
void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length);
// The same where the caller's buffer holds `available` octets from there on, fewer or more than `length`.
void PerReaderInit(PerReader& reader, const uint8_t* buffer, uint32_t length, uint32_t available);

// Over a message of RAS or H.245, of whose length the low 16 bits count.
inline PerReader PerReaderOver(const uint8_t* buffer, uint32_t length) {
  PerReader reader;
  PerReaderInit(reader, buffer, static_cast<uint16_t>(length));
  return reader;
}

// `pointer` plus `count`, held at the last address instead of wrapping round.
inline const uint8_t* PerAdvance(const uint8_t* pointer, uint32_t count) {
  const auto address = reinterpret_cast<uintptr_t>(pointer);
  // An address past the buffer is only compared, which the arithmetic of pointers does not allow for.
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  return reinterpret_cast<const uint8_t*>(count > UINTPTR_MAX - address ? UINTPTR_MAX : address + count);
}

inline bool PerAtEnd(const PerReader& reader) { return reader.position >= reader.end; }

// Whole octets from the position on, the one that is partly consumed included.
inline uint32_t PerOctetsLeft(const PerReader& reader) {
  return PerAtEnd(reader) ? 0
                          : static_cast<uint32_t>(reinterpret_cast<uintptr_t>(reader.end) -
                                                  reinterpret_cast<uintptr_t>(reader.position));
}

// Octets that can be read from the position on.
inline uint32_t PerOctetsInside(const PerReader& reader) {
  return reader.position >= reader.octetLimit ? 0 : static_cast<uint32_t>(reader.octetLimit - reader.position);
}

// Octets of the caller's buffer from the position on, those past the end included.
inline uint32_t PerReadableOctets(const PerReader& reader) {
  return reader.position >= reader.readable ? 0 : static_cast<uint32_t>(reader.readable - reader.position);
}

// The next octet boundary after the position and `offset`, the reader's own; the position itself where it is one.
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

// Counts octets that are read or looked at a second time. Returns false, and the reader is at its end for
// good, once they are too many.
bool PerCountRereading(PerReader& reader, uint32_t octets);

// Moves the reader back to `octet`, which an open type ends at.
[[gnu::noinline]] void PerMoveBack(PerReader& reader, const uint8_t* octet);

// The octet at `position` plus `index`, zero outside the caller's buffer.
uint8_t PerPeekOctet(const PerReader& reader, uint32_t index);

// Advances by `count` bits; past the end the reader stops there.
void PerSkipBits(PerReader& reader, uint32_t count);

// PerReadBits wherever the reader stands.
[[gnu::noinline]] uint32_t PerReadBitsAtEdge(PerReader& reader, uint32_t count);

// --- Where octets can be read without looking further ---

// Whether there are `count` of them from the position on, which may stand anywhere.
inline bool PerHasOctets(const PerReader& reader, int32_t count) {
  return reader.octetLimit - reader.position >= count;
}

// The big-endian numbers in the octets at `octets`.
inline uint32_t PerLoad16(const uint8_t* octets) { return uint32_t{octets[0]} << 8 | octets[1]; }
inline uint32_t PerLoad32(const uint8_t* octets) { return PerLoad16(octets) << 16 | PerLoad16(octets + 2); }

// How many octets PerTakeBits loads for `count` bits: as many as these span from any offset.
[[gnu::always_inline]] inline int32_t PerOctetsTaken(uint32_t count) {
  if (!__builtin_constant_p(count)) return 5;
  return count <= 9 ? 2 : count <= 25 ? 4 : 5;
}

// The next 1 to 32 bits from `offset` on, the reader's own, for which `taken` octets can be read: what
// PerOctetsTaken said when that was asked. It may answer otherwise the next time, as far as the compiler
// knows the count.
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
// The offset is loaded before it is looked whether the octets are there: then the compiler keeps it in a register
// from one read to the next, where each would wait for what the one before it stored.

// The next `count` bits (0 to 32), or 0 and the reader at its end when there are not as many.
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

// Flags that follow one another in the encoding (an extension bit, presence bits, BOOLEANs), read at once and
// handed out in their order.
class PerFlags {
 public:
  // The first flag is the uppermost bit.
  explicit PerFlags(uint32_t bits) : bits_(bits) {}

  uint32_t Next() {
    const uint32_t flag = bits_ >> 31;
    bits_ <<= 1;
    return flag;
  }
  // How many of those that were not handed out are set.
  int32_t CountLeft() const { return __builtin_popcount(bits_); }

 private:
  uint32_t bits_;
};

// PerReadFlags wherever the reader stands.
[[gnu::noinline]] PerFlags PerReadFlagsAtEdge(PerReader& reader, uint32_t count);

// The next `count` flags, 1 to 32 and at most `most`. Those that the message does not reach are 0, as if read
// one by one.
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

// Bounds the reader to the next `length` octets while it lives. Afterwards the reader stands past them,
// whatever was consumed.
class PerBounds {
 public:
  PerBounds(PerReader& reader, uint32_t length);
  ~PerBounds();
  PerBounds(const PerBounds&) = delete;
  PerBounds& operator=(const PerBounds&) = delete;

 private:
  PerReader& reader_;
  const uint8_t* outerEnd_;
  const uint8_t* behind_;
};

// Advances to the next octet boundary.
inline void PerAlign(PerReader& reader) {
  if (!PerAtEnd(reader)) PerMoveTo(reader, PerBoundary(reader));
}

}  // namespace kelvra
