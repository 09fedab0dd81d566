// Times a decode with its release for messages of 1 KiB to 64 KiB, in shapes that could make time grow faster than
// size. Prints family, shape, octets and nanoseconds.
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <limits>
#include <memory>

#include "codec_run.h"
#include "per/bit_writer.h"

namespace kelvra::bench {
namespace {

using test::BitWriter;
using Octets = std::vector<uint8_t>;

enum class Shape : uint8_t { kLists, kStrings, kAdditions, kNesting };

constexpr const char* kShapeNames[] = {"lists", "strings", "additions", "nesting"};

constexpr uint32_t kLevels = 24;          // of nesting
constexpr size_t kLargest = 65536 - 256;  // leaves room around the grown part
constexpr size_t kMostElements = 250;     // of a list whose count the record keeps in 8 bits

// As many elements from `write` as fit in `octets`, `kMostElements` at most.
template <class Write>
BitWriter ListOf(size_t octets, Write write) {
  BitWriter element;
  write(element);
  const size_t count = std::clamp<size_t>(octets / element.Done().size(), 1, kMostElements);
  BitWriter list;
  list.Length(static_cast<uint32_t>(count));
  for (size_t i = 0; i < count; ++i) write(list);
  return list;
}

// --- GenericData of H.225.0 ---

void WriteStandardIdentifier(BitWriter& writer) { writer.Bits(0, 4).Align().Bits(0x4D, 16); }

// The identifier, then the number of parameters.
void BeginGenericData(BitWriter& writer, uint32_t parameters) {
  writer.Bits(0b01, 2);
  WriteStandardIdentifier(writer);
  writer.Align().Bits(parameters - 1, 16);
}

void WriteRawParameter(BitWriter& writer, size_t octets) {
  writer.Bits(0b01, 2);
  WriteStandardIdentifier(writer);
  writer.Bits(0b00000, 5).OpenType(Octets(octets, 0x2A));
}

void WriteNestedGenericData(BitWriter& writer, uint32_t levels) {
  BeginGenericData(writer, 1);
  if (levels == 1) return WriteRawParameter(writer, 4);
  writer.Bits(0b01, 2);
  WriteStandardIdentifier(writer);
  writer.Bits(0b01011, 5).Bits(0, 4);
  WriteNestedGenericData(writer, levels - 1);
}

// A list of GenericData that grows in its elements.
BitWriter GenericDataOf(Shape shape, size_t octets) {
  const size_t each = octets / 64;
  return ListOf(octets, [&](BitWriter& writer) {
    switch (shape) {
      case Shape::kLists: {
        const auto parameters = static_cast<uint32_t>(std::max<size_t>(each / 9, 1));
        BeginGenericData(writer, parameters);
        for (uint32_t i = 0; i < parameters; ++i) WriteRawParameter(writer, 2);
        return;
      }
      case Shape::kNesting: return WriteNestedGenericData(writer, kLevels);
      default: BeginGenericData(writer, 1); return WriteRawParameter(writer, each);
    }
  });
}

// Additions: the first `known` are absent, the others unknown with two octets each.
void WriteUnknownAdditions(BitWriter& writer, uint32_t known, size_t octets) {
  const auto unknown = static_cast<uint32_t>(octets * 8 / 25);
  writer.NormallySmall(known + unknown - 1).Bits(0, known);
  for (uint32_t i = 0; i < unknown; ++i) writer.Bit(true);
  for (uint32_t i = 0; i < unknown; ++i) writer.OpenType({0xAA, 0xBB});
}

// --- Messages ---

Octets RasMessage(Shape shape, size_t octets) {
  BitWriter message;
  message.Bits(0b000000, 6).Bits(0b10000, 5).Align().Bits(1, 16);  // gatekeeperRequest, extended
  message.OpenType({0x00, 0x08, 0x91, 0x4A, 0x00, 0x04}).Bits(0, 4).Octets({192, 0, 2, 1}).Bits(1719, 16).Bits(0, 9);
  if (shape == Shape::kAdditions) {
    WriteUnknownAdditions(message, 12, octets);
  } else {
    message.NormallySmall(9).Bits(1, 10);  // genericData alone
    // An open type holds no more, and its octets need not be inside it: for the last addition, the decoder's position
    // afterwards does not matter.
    const Octets genericData = GenericDataOf(shape, octets);
    message.Length(static_cast<uint32_t>(std::min<size_t>(genericData.size(), 16383))).Octets(genericData);
  }
  return message.Align().Bits(0, 8);
}

Octets Q931Message(Shape shape, size_t octets) {
  BitWriter pdu;
  pdu.Bits(0, 2).Bits(0b10, 2).Bit(true).NormallySmall(1).OpenType(Octets());  // extended, its body `empty`
  if (shape == Shape::kAdditions) {
    WriteUnknownAdditions(pdu, 12, octets);
  } else {
    pdu.NormallySmall(8).Bits(1, 9);  // genericData alone
    const Octets genericData = GenericDataOf(shape, octets);
    pdu.Length(static_cast<uint32_t>(std::min<size_t>(genericData.size(), 16383))).Octets(genericData);
  }
  const Octets& information = pdu.Done();
  BitWriter frame;
  frame.Octets({3, 0, 0, 0, 0x08, 0x02, 0x92, 0x34, 0x05});
  frame.Bits(0x7E, 8).Bits(information.size() + 1, 16).Bits(0x05, 8).Octets(information);
  return frame;
}

// A GenericParameter up to its value.
void BeginParameter(BitWriter& writer, uint32_t value) { writer.Bits(0, 5).Bits(1, 7).Bits(value, 4); }

// A list of GenericParameters that grows in its elements.
BitWriter ParametersOf(Shape shape, size_t octets) {
  const size_t each = octets / 64;
  return ListOf(octets, [&](BitWriter& writer) {
    switch (shape) {
      case Shape::kLists: {
        const auto parameters = static_cast<uint32_t>(std::clamp<size_t>(each / 4, 1, kMostElements));
        BeginParameter(writer, 7);
        writer.Length(parameters);
        for (uint32_t i = 0; i < parameters; ++i) {
          BeginParameter(writer, 2);
          writer.Align().Bits(0x1234, 16);
        }
        return;
      }
      case Shape::kNesting:
        for (uint32_t level = 1; level < kLevels; ++level) {
          BeginParameter(writer, 7);
          writer.Length(1);
        }
        BeginParameter(writer, 2);
        writer.Align().Bits(0x1234, 16);
        return;
      default: BeginParameter(writer, 6); writer.OpenType(Octets(each, 0x2A));
    }
  });
}

Octets H245Message(Shape shape, size_t octets) {
  constexpr uint32_t kAdditions = 200;  // the bitmap's length is kept in 8 bits
  const bool additions = shape == Shape::kAdditions;
  BitWriter message;
  message.Bits(0b000, 3).Bits(0b00011, 5).Bit(additions).Bit(false).Align().Bits(0x63, 16).Bits(0, 2);
  if (additions) {
    message.Bits(0b0001, 4);  // nullData
  } else {
    BitWriter capability;
    capability.Bits(0b001000, 6).Bits(0, 3).OpenType({0x2A, 3});  // collapsing alone
    const Octets parameters = ParametersOf(shape, octets);
    capability.Octets(parameters);
    const Octets& value = capability.Done();
    message.Bits(0b0011, 4).Bit(true).NormallySmall(6);  // genericAudioCapability
    message.Length(static_cast<uint32_t>(std::min<size_t>(value.size(), 16383))).Octets(value);
  }
  // An open type longer than its length comes last, so nothing follows it in the message.
  if (!additions) return message;
  BitWriter forward;
  forward.Bits(0, 11).Align().Bits(1, 8);
  message.Bit(true).NormallySmall(0).OpenType(forward);
  message.NormallySmall(kAdditions + 9).Bits(0, 10);
  for (uint32_t i = 0; i < kAdditions; ++i) message.Bit(true);
  for (uint32_t i = 0; i < kAdditions; ++i) message.OpenType(Octets(octets / kAdditions - 2, 0xAA));
  return message;
}

Message GrownMessage(Family family, Shape shape, size_t octets) {
  switch (family) {
    case Family::kRas: return {family, RasMessage(shape, octets), {}};
    case Family::kQ931: return {family, Q931Message(shape, octets), {}};
    case Family::kH245: return {family, H245Message(shape, octets), {}};
  }
  return {};
}

// The fastest of many rounds.
double Nanoseconds(const Message& message) {
  using Clock = std::chrono::steady_clock;
  constexpr int kRounds = 1000;
  const auto record = std::make_unique<AnyRecord>();
  double fastest = std::numeric_limits<double>::max();
  for (int round = 0; round < kRounds; ++round) {
    const Clock::time_point start = Clock::now();
    Decode(*record, message);
    Release(*record, message);
    fastest = std::min(fastest, std::chrono::duration<double, std::nano>(Clock::now() - start).count());
  }
  return fastest;
}

}  // namespace
}  // namespace kelvra::bench

int main() {
  using namespace kelvra::bench;
  // Otherwise the C library returns the memory of each large message to the system and requests it again, and the
  // benchmark would time that.
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
  mallopt(M_MMAP_THRESHOLD, 1 << 30);
  for (const Family family : {Family::kRas, Family::kQ931, Family::kH245}) {
    for (const Shape shape : {Shape::kLists, Shape::kStrings, Shape::kAdditions, Shape::kNesting}) {
      size_t before = 0;
      for (size_t octets = kLargest / 64; octets <= kLargest; octets *= 2) {
        const Message message = GrownMessage(family, shape, octets);
        if (message.octets.size() < before * 3 / 2) break;  // the lists are full
        before = message.octets.size();
        std::printf("%s\t%s\t%zu\t%.0f\n", kFamilyNames[static_cast<size_t>(family)],
                    kShapeNames[static_cast<size_t>(shape)], message.octets.size(), Nanoseconds(message));
      }
    }
  }
  return 0;
}
