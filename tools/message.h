// What the inputs hand to the decoders.
#pragma once

#include <cstdint>
#include <memory>
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
  std::shared_ptr<const std::string> file{};  // which the message comes from; null: there is one only
};

// Where a message asks its receiver to open a TCP connection, and what such a connection carries.
struct Announced {
  Endpoint endpoint;
  Family family = Family::kH245;  // or kQ931
};

class MessageSink {
 public:
  virtual ~MessageSink() = default;
  // What follows comes from the file of this name; frames are counted anew.
  virtual void OnInput(const std::string& /*name*/) {}
  // Returns what the message announces.
  virtual std::vector<Announced> OnMessage(const Message& message) = 0;
  // Octets that should have held messages could not be told apart into such.
  virtual void OnLoss(const std::string& what) = 0;
  // A remark on the input as a whole, which is no loss.
  virtual void OnNotice(const std::string& /*what*/) {}

  // A connection to a port of call signalling or H.245 was refused: its SYN was answered by a RST. The origin is that
  // of the SYN's sender and receiver, at the frame of the RST.
  virtual void OnRefusedConnection(const Origin& /*origin*/) {}
  // A datagram that looks like RTP (RFC 3550, 5.1).
  virtual void OnMediaPacket(const Origin& /*origin*/, uint8_t /*payload_type*/, uint32_t /*ssrc*/) {}
};

// The input cannot be read, or read on; what() is for the user.
class InputError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
