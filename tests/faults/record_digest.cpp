#include "faults/record_digest.h"

#include <algorithm>
#include <cstring>

#include "kelvra/walk.h"

namespace kelvra::test {
namespace {

class BlockVisitor : public EmptyVisitor {
 public:
  explicit BlockVisitor(RecordBlocks& blocks) : blocks_(blocks) {}

  void ObjectIdentifier(const char*, const ObjectIdentifierValue& value) {
    Add(Slot<uint32_t>(&value.arcs), value.count);
  }
  void WideCharacters(const char*, const BMPStringValue& value) { Add(Slot<uint16_t>(&value.data), value.length); }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t count, OctetNotation notation) {
    Add(slot, StringOctets(count, notation));
  }
  template <class R>
  void Record(const char*, R& record) {
    R::Walk(record, *this);
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    Add(slot, 1);
    if (R* record = slot.Get()) R::Walk(*record, *this);
  }
  template <class L, class Show>
  void List(const char*, L list, Show show) {
    Add(list.Elements(), list.Size());
    for (auto& element : list) show(element);
  }

 private:
  template <class T>
  void Add(Slot<T> slot, uint32_t count) {
    if (slot.Get() != nullptr) blocks_.Add(slot.Address(), slot.Get(), count * sizeof(T));
  }

  RecordBlocks& blocks_;
};

template <class Record>
RecordBlocks Collect(Record& record) {
  RecordBlocks blocks;
  BlockVisitor visitor(blocks);
  Record::Walk(record, visitor);
  return blocks;
}

}  // namespace

void Digest::Add(const void* octets, size_t count) {
  const auto* next = static_cast<const uint8_t*>(octets);
  for (; count >= sizeof(uint64_t); count -= sizeof(uint64_t), next += sizeof(uint64_t)) {
    uint64_t word = 0;
    std::memcpy(&word, next, sizeof word);
    AddWord(word);
  }
  uint64_t rest = count;
  std::memcpy(reinterpret_cast<uint8_t*>(&rest) + 1, next, count);
  AddWord(rest);
}

void Digest::AddWord(uint64_t word) {
  value_ = (value_ ^ word) * 0x9E3779B97F4A7C15;
  value_ ^= value_ >> 29;
}

void RecordBlocks::Add(void* slot, const void* address, size_t size) {
  slots_.push_back(slot);
  blocks_.push_back({address, size});
}

void RecordBlocks::AddTo(Digest& digest, const void* record, size_t size) const {
  for (void* slot : slots_) std::memset(slot, 0, sizeof(void*));
  digest.Add(record, size);
  for (const Block& block : blocks_) digest.Add(block.address, block.size);
  for (size_t i = 0; i < slots_.size(); ++i) std::memcpy(slots_[i], &blocks_[i].address, sizeof(void*));
}

std::vector<const void*> RecordBlocks::Addresses() const {
  std::vector<const void*> addresses;
  for (const Block& block : blocks_) addresses.push_back(block.address);
  std::sort(addresses.begin(), addresses.end());
  return addresses;
}

RecordBlocks BlocksOf(h225::RasMessageRecord& record) { return Collect(record); }
RecordBlocks BlocksOf(h225::Q931MessageRecord& record) { return Collect(record.userInformation); }
RecordBlocks BlocksOf(h225::H323UserInformation& record) { return Collect(record); }
RecordBlocks BlocksOf(h225::TransportAddress& record) { return Collect(record); }
RecordBlocks BlocksOf(h245::H245MessageRecord& record) { return Collect(record); }

}  // namespace kelvra::test
