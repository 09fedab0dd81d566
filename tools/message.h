// What the inputs hand to the decoders.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "text/endpoint.h"

enum class Family : uint8_t { kRas, kQ931, kH245 };

// Where in a capture a message was completed.
struct Origin {
  uint64_t frame = 0;        // from 1
  int64_t microseconds = 0;  // since 1970-01-01 UTC
  Endpoint source;
  Endpoint destination;
};

struct Message {
  Family family = Family::kRas;
  std::vector<uint8_t> octets;  // of call signalling, with the TPKT header
  std::optional<Origin> origin;
};

class MessageSink {
 public:
  virtual ~MessageSink() = default;
  // Returns the addresses which the message announces for H.245 connections.
  virtual std::vector<Endpoint> OnMessage(const Message& message) = 0;
  // Octets that should have held messages could not be told apart into such.
  virtual void OnLoss(const std::string& what) = 0;
};

// The input cannot be read, or read on; what() is for the user.
class InputError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
