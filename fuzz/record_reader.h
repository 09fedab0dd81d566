// Reads a record as far as its counts and pointers say, so that a sanitizer sees a block that is smaller
// than its count, or is gone.
#pragma once

#include <stdint.h>

#include "record/walk.h"

namespace kelvra::fuzz {

class RecordReader {
 public:
  // How many blocks the record reaches.
  uint32_t Blocks() const { return blocks_; }
  // Depends on every octet that was read, so that no read can be left out.
  uint32_t Sum() const { return sum_; }

  void Number(const char*, int64_t value) { sum_ += static_cast<uint32_t>(value); }
  void Boolean(const char*, uint32_t value) { sum_ += value; }
  void EnumeratedValue(uint32_t value, const char*) { sum_ += value; }
  void Null(const char*) {}
  void UnknownExtension(uint32_t index) { sum_ += index; }
  void UnknownRoot(uint32_t index) { sum_ += index; }

  template <class Value>
  void ObjectIdentifier(const char* name, Value& value) {
    Numbers(name, KELVRA_COUNTED_LIST(value.count, value.arcs));
  }
  template <class Value>
  void Characters16(const char* name, Value& value) {
    Numbers(name, KELVRA_COUNTED_LIST(value.length, value.data));
  }
  void Octets(const char* name, Slot<uint8_t> slot, uint32_t count, OctetNotation notation) {
    const uint8_t* octets = slot.Get();
    if (octets == nullptr) return;
    ++blocks_;
    const bool bits = notation == OctetNotation::kBits || notation == OctetNotation::kFixedBits;
    Embedded(name, octets, bits ? (count + 7) / 8 : count, notation);
  }
  void Embedded(const char*, const uint8_t* octets, uint32_t count, OctetNotation) {
    for (uint32_t i = 0; i < count; ++i) sum_ += octets[i];
  }

  template <class R>
  void Record(const char*, R& record) {
    R::Walk(record, *this);
  }
  template <class R>
  void Pointer(const char* name, Slot<R> slot) {
    R* record = slot.Get();
    if (record == nullptr) return;
    ++blocks_;
    Record(name, *record);
  }
  template <class L>
  void List(const char* name, L list) {
    CountBlock(list);
    for (auto& element : list) Record(name, element);
  }
  template <class L>
  void Numbers(const char*, L list) {
    CountBlock(list);
    for (const auto number : list) sum_ += static_cast<uint32_t>(number);
  }
  template <class L>
  void ObjectIdentifiers(const char* name, L list) {
    CountBlock(list);
    for (auto& element : list) ObjectIdentifier(name, element);
  }
  template <class L>
  void OctetStrings(const char* name, L list, OctetNotation notation) {
    CountBlock(list);
    for (auto& element : list) Octets(name, KELVRA_SLOT(element.data), element.length, notation);
  }
  template <class L>
  void FixedOctetStrings(const char* name, L list, uint32_t size) {
    CountBlock(list);
    for (auto& element : list) Octets(name, KELVRA_SLOT(element.data), size, OctetNotation::kOctets);
  }

 private:
  template <class L>
  void CountBlock(const L& list) {
    if (list.begin() != nullptr) ++blocks_;
  }

  uint32_t blocks_ = 0;
  uint32_t sum_ = 0;
};

}  // namespace kelvra::fuzz
