// Collects the blocks that a record reaches, and the slots that a refused block left empty. The walk is a
// template over every record, so all else that it does is in functions.
#pragma once

#include <cstdint>
#include <map>
#include <type_traits>
#include <vector>

#include "api/kelvra.h"
#include "record/walk.h"

namespace kelvra::test {

enum class BlockKind { kString, kList, kListInsideH245 };

class OwnershipVisitor {
 public:
  void Number(const char*, int64_t) {}
  void Boolean(const char*, uint32_t) {}
  void EnumeratedValue(uint32_t, const char*) {}
  void Null(const char*) {}
  void Embedded(const char*, const uint8_t*, uint32_t, OctetNotation) {}
  void UnknownExtension(uint32_t) {}
  void UnknownRoot(uint32_t) {}

  void ObjectIdentifier(const char*, const ObjectIdentifierValue& value) { See(value.arcs, value.count); }
  void Characters16(const char*, const BMPStringValue& value) { See(value.data, value.length); }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t count, OctetNotation) { See(slot.Get(), count); }

  template <class R>
  void Record(const char*, R& record) {
    Enter(record);
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    // Whether the record was there at all does not show beside the pointer.
    R* record = slot.Get();
    if (record == nullptr) return;
    SeeList(record, 1);
    Enter(*record);
  }
  template <class L>
  void List(const char*, L list) {
    SeeList(list.begin(), list.Size());
    for (auto& element : list) Enter(element);
  }
  template <class L>
  void OctetStrings(const char*, L list, OctetNotation) {
    SeeList(list.begin(), list.Size());
    for (auto& value : list) See(value.data, value.length);
  }
  template <class L>
  void FixedOctetStrings(const char*, L list, uint32_t) {
    SeeList(list.begin(), list.Size());
    for (auto& value : list) See(value.data, 0);
  }
  template <class L>
  void ObjectIdentifiers(const char*, L list) {
    SeeList(list.begin(), list.Size());
    for (auto& value : list) See(value.arcs, value.count);
  }
  template <class L>
  void Numbers(const char*, L list) {
    SeeList(list.begin(), list.Size());
  }

  // Sorted; a block that two slots share appears twice.
  std::vector<const void*> Blocks() const;
  // What the slot that holds the block is for.
  std::map<const void*, BlockKind> Kinds() const;
  // Slots without a block beside a count that is not zero.
  uint32_t EmptyStrings() const { return emptyStrings_; }
  uint32_t EmptyLists() const { return emptyLists_; }  // of H.225.0 records

 private:
  struct Block {
    const void* address;
    BlockKind kind;
  };

  // The H.245 types that H.225.0 records hold. Their decoders go on where a block was refused.
  template <class R>
  static constexpr bool kBelongsToH245 =
      std::is_same_v<R, h245::OpenLogicalChannel> || std::is_same_v<R, h245::DataProtocolCapability> ||
      std::is_same_v<R, h245::T38FaxProfile>;

  template <class R>
  void Enter(R& record) {
    constexpr uint32_t kLevel = kBelongsToH245<std::remove_const_t<R>> ? 1 : 0;
    insideH245_ += kLevel;
    R::Walk(record, *this);
    insideH245_ -= kLevel;
  }
  void See(const void* block, uint32_t count);
  void SeeList(const void* block, uint32_t count);

  std::vector<Block> blocks_;
  uint32_t insideH245_ = 0;
  uint32_t emptyStrings_ = 0;
  uint32_t emptyLists_ = 0;
};

}  // namespace kelvra::test
