// The carried messages, and one way to decode, walk and release a message of any family.
#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "exact_buffer.h"
#include "faults/record_digest.h"
#include "kelvra/kelvra.h"

namespace kelvra::test {

enum class Family { kRas, kQ931, kH245 };

struct Message {
  Family family;
  std::string name;
  std::vector<uint8_t> octets;   // of a RAS message without the spare octet after it
  std::string alternative = {};  // of a carried message
};

// Every message of tests/data but those of aligned-h245.jsonl, which were altered by hand.
const std::vector<Message>& Corpus();

// The registrations among them as of versions 2 and 3 of H.225.0: the version decides how a registration is read.
std::vector<Message> EarlierRegistrations();

class DecodedMessage {
 public:
  // Decodes from a heap block of the very size, into a record that held other values before.
  DecodedMessage(Family family, const std::vector<uint8_t>& octets);
  DecodedMessage(const DecodedMessage&) = delete;
  DecodedMessage& operator=(const DecodedMessage&) = delete;

  // What the decode returned. Of RAS it is the distance of the address from the buffer; -1 for refusal.
  int64_t Result() const { return result_; }
  // Whether the function said that the message was decoded. One of H.245 cannot say so.
  bool Accepted() const { return family_ == Family::kRas ? result_ >= 0 : result_ == 0; }

  void Release();

  // The blocks that the record reaches. The user information of a Q.931 message is walked whether it is marked as
  // present or not.
  BlockCollector Blocks();

  const h245::H245MessageRecord& H245() const { return std::get<h245::H245MessageRecord>(record_); }

 private:
  Family family_;
  ExactBuffer buffer_;
  std::variant<h225::RasMessageRecord, h225::Q931MessageRecord, h245::H245MessageRecord> record_;
  int64_t result_ = 0;
};

// The octets as they are handed over whole: a RAS message needs one spare octet behind it.
std::vector<uint8_t> WithSpare(Family family, const std::vector<uint8_t>& octets);

}  // namespace kelvra::test
