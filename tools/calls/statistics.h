// Counts messages by kind and fault, and the answers to RAS requests.
#pragma once

#include <map>
#include <string>

#include "calls/call.h"
#include "decode/decoded_message.h"

struct Responses {
  uint64_t requests = 0;
  uint64_t unanswered = 0;
  uint64_t repeats = 0;
  uint64_t rejected = 0;
  uint64_t answers = 0;  // only to requests that were seen
  int64_t least = 0;     // microseconds
  int64_t most = 0;
  int64_t total = 0;

  int64_t Mean() const { return answers == 0 ? 0 : total / static_cast<int64_t>(answers); }
};

struct Statistics {
  uint64_t messages = 0;
  uint64_t calls = 0;
  std::map<Family, std::map<std::string, uint64_t>> byKind;
  std::map<std::string, uint64_t> faults;      // count by cause
  std::map<std::string, Responses> responses;  // by name of the request

  void Add(const DecodedMessage& message);
  void Add(const Call& call);
};
