// A digest of all octets of a record and its blocks except pointers, whether or not a member is walked or a list
// element reached. Equal decodes have equal digests on all targets with the same record layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kelvra/kelvra.h"

namespace kelvra::test {

class Digest {
 public:
  void Add(const void* octets, size_t count);
  void AddWord(uint64_t word);
  uint64_t Value() const { return value_; }

 private:
  uint64_t value_ = 0xCBF29CE484222325;
};

// The blocks of a record and the slots with their addresses.
class RecordBlocks {
 public:
  struct Block {
    const void* address;
    size_t size;
  };

  void Add(void* slot, const void* address, size_t size);

  const std::vector<Block>& Blocks() const { return blocks_; }
  // Sorted; a block in two slots appears twice.
  std::vector<const void*> Addresses() const;

  // Adds the record and all blocks, with null in place of each pointer.
  void AddTo(Digest& digest, const void* record, size_t size) const;

 private:
  std::vector<void*> slots_;
  std::vector<Block> blocks_;
};

// For a Q.931 message these are the blocks of the user information, whether or not it is marked as present.
RecordBlocks BlocksOf(h225::RasMessageRecord& record);
RecordBlocks BlocksOf(h225::Q931MessageRecord& record);
RecordBlocks BlocksOf(h225::H323UserInformation& record);
RecordBlocks BlocksOf(h225::TransportAddress& record);
RecordBlocks BlocksOf(h245::H245MessageRecord& record);

// A digest of the result, the record and what is left after the release.
template <class MessageFamily>
uint64_t DigestOf(const std::vector<uint8_t>& octets) {
  typename MessageFamily::Record record;
  Digest digest;
  digest.AddWord(static_cast<uint64_t>(MessageFamily::Decode(&record, octets.data(), octets.size())));
  BlocksOf(record).AddTo(digest, &record, sizeof record);
  MessageFamily::Release(&record);
  digest.AddWord(BlocksOf(record).Blocks().size());
  return digest.Value();
}

}  // namespace kelvra::test
