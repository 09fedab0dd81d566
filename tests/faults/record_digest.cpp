#include "faults/record_digest.h"

#include <algorithm>
#include <cstring>

namespace kelvra::test {
namespace {

template <class Record>
BlockCollector Collect(Record& record) {
  BlockCollector blocks;
  Record::Walk(record, blocks);
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

void BlockCollector::AddTo(Digest& digest, const void* record, size_t size) const {
  for (void* slot : slots_) std::memset(slot, 0, sizeof(void*));
  digest.Add(record, size);
  for (const FoundBlock& block : blocks_) digest.Add(block.address, block.size);
  for (size_t i = 0; i < slots_.size(); ++i) std::memcpy(slots_[i], &blocks_[i].address, sizeof(void*));
}

std::vector<const void*> BlockCollector::Addresses() const {
  std::vector<const void*> addresses;
  for (const FoundBlock& block : blocks_) addresses.push_back(block.address);
  std::sort(addresses.begin(), addresses.end());
  return addresses;
}

BlockCollector BlocksOf(h225::RasMessageRecord& record) { return Collect(record); }
BlockCollector BlocksOf(h225::Q931MessageRecord& record) { return Collect(record.userInformation); }
BlockCollector BlocksOf(h245::H245MessageRecord& record) { return Collect(record); }

}  // namespace kelvra::test
