// The carried messages, and a uniform way to decode, walk and release a message of any family.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "exact_buffer.h"
#include "families.h"
#include "faults/record_digest.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {

struct Message {
  Family family;
  std::string name;
  std::vector<uint8_t> octets;   // for RAS without the spare octet
  std::string alternative = {};  // only for a carried message
};

// Every message of tests/data except those of aligned-h245.jsonl, which were edited by hand.
const std::vector<Message>& Corpus();

// The registrations in the corpus with versions 2 and 3 of H.225.0: the version decides how a registration is read.
std::vector<Message> EarlierRegistrations();

class DecodedMessage {
 public:
  // Decodes from a heap block of exactly this size, into a dirty record.
  DecodedMessage(Family family, const std::vector<uint8_t>& octets);
  DecodedMessage(const DecodedMessage&) = delete;
  DecodedMessage& operator=(const DecodedMessage&) = delete;

  // The result of the decode. For RAS: the distance from the buffer to the returned address, or -1 for refusal.
  int64_t Result() const { return result_; }
  // True if the export reports success. The H.245 export cannot.
  bool Accepted() const { return family_ == Family::kRas ? result_ >= 0 : result_ == 0; }

  void Release();

  // The blocks that the record reaches. The user information of a Q.931 message is walked whether or not it is marked
  // as present.
  RecordBlocks Blocks();

  const h245::H245MessageRecord& H245() const { return std::get<h245::H245MessageRecord>(record_); }

 private:
  Family family_;
  ExactBuffer buffer_;
  std::variant<h225::RasMessageRecord, h225::Q931MessageRecord, h245::H245MessageRecord> record_;
  int64_t result_ = 0;
};

// The octets as passed to the export: a RAS message needs one spare octet after it.
std::vector<uint8_t> WithSpare(Family family, const std::vector<uint8_t>& octets);

}  // namespace kelvra::test
