// What the inputs pass to the decoders.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "text/endpoint.h"

enum class Family : uint8_t { kRas, kQ931, kH245 };

// Shared, because every message of a file has it.
using FileName = std::shared_ptr<const std::string>;

// Where in a capture a message was completed.
struct Origin {
  uint64_t frame = 0;        // from 1
  int64_t microseconds = 0;  // since 1970-01-01 UTC
  Endpoint source;
  Endpoint destination;
  FileName file{};  // the capture
};

struct Message {
  Family family = Family::kRas;
  std::vector<uint8_t> octets;  // for call signalling, with the TPKT header
  std::optional<Origin> origin;
  FileName file{};  // null if there is only one
};

// An address to which a message asks its receiver to open a TCP connection, and what that connection carries.
struct Announced {
  Endpoint endpoint;
  Family family = Family::kH245;  // or kQ931
};

class MessageSink {
 public:
  virtual ~MessageSink() = default;
  // The following messages come from the file of this name; the frame count restarts.
  virtual void OnInput(const std::string& /*name*/) {}
  // Returns the addresses that the message announces.
  virtual std::vector<Announced> OnMessage(const Message& message) = 0;
  // Octets that should hold messages could not be split into any. `file` is null if more than one file can lack them.
  virtual void OnLoss(const std::string& what, const FileName& file) = 0;
  // A remark about the whole input; not a loss.
  virtual void OnNotice(const std::string& /*what*/) {}

  // A connection to a call-signalling or H.245 port was refused: a RST answered its SYN. The origin has the source and
  // destination of the SYN and the frame of the RST.
  virtual void OnRefusedConnection(const Origin& /*origin*/) {}
  // A datagram that looks like RTP (RFC 3550, 5.1).
  virtual void OnMediaPacket(const Origin& /*origin*/, uint8_t /*payload_type*/, uint32_t /*ssrc*/) {}
};

// The input cannot be opened or read on; what() is meant for the user.
class InputError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};
