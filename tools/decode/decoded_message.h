// A message as the viewer sees it: the result of the library's export, what was read, and the faults.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "decode/tree.h"
#include "message.h"

// What the decode found.
enum class Verdict : uint8_t {
  kComplete,
  kEndedEarly,
  kOctetsLeftOver,
  kClaimsTooMuch,   // a length that goes past the end, or is fragmented
  kVersionRefused,  // a registration with a protocol version unknown to the library
  kLimitReached,
  // An undefined index, a number out of range, a value past the open type around it, or a Q.931 frame without a
  // required part.
  kMalformed,
  kTooLong,    // for the exports
};

struct MessageFault {
  Verdict verdict = Verdict::kMalformed;
  std::string member;    // "additionalSourceAddresses[0].presentationIndicator": the path from the body of the message
  uint64_t bit = 0;      // from the start of the message
  std::string cause;     // for display
  bool resumed = false;  // the decoder went on after the enclosing open type
};

// Releases a record and its blocks.
struct RecordDeleter {
  void (*release)(void* record) = nullptr;
  void operator()(void* record) const { release(record); }
};

struct DecodedMessage {
  Family family = Family::kRas;
  // The result of the export; for RAS, which returns an address, the offset of that address. Empty if the message is
  // too long for the exports.
  bool ok = false;
  std::optional<int64_t> result;
  std::string_view name;  // "setup", "registrationRequest"; empty if no alternative was read

  Verdict verdict = Verdict::kComplete;
  std::vector<MessageFault> faults;  // in the order of the message
  uint32_t octetsLeftOver = 0;
  uint32_t senderVersion = 0;             // from the protocolIdentifier; 0 if there is none
  bool readAsVersion4 = false;            // the sender's version is later
  uint32_t spareOctetsRequired = 0;       // of a complete RAS message, if the library needs more than one; otherwise 0
  std::vector<DecodedMessage> tunnelled;  // from h245Control and parallelH245Control

  bool IsComplete() const { return verdict == Verdict::kComplete; }
  // True if the message is complete but needs more than the one spare octet that RAS messages are passed with.
  bool IsRefusedForSpareOctet() const { return IsComplete() && !ok; }
  // The fault behind the verdict; null if there is none.
  const MessageFault* Fault() const;

  // What was read. Its children are the members of the message; for Q.931 one of these is h323-UserInformation.
  Node Root() const { return nodes.empty() ? Node() : Node(nodes.data()); }
  // The body of the message: of a RasMessage, of h323-message-body, or of the class of an H.245 message.
  Node Body() const;

  std::vector<NodeData> nodes;
  std::unique_ptr<void, RecordDeleter> record;  // the nodes point into it
};

// Decodes a message with the library. For call signalling, `octets` starts at the TPKT header.
DecodedMessage DecodeMessage(Family family, std::span<const uint8_t> octets);

// The addresses that the message asks its receiver to connect to: H.245 in call signalling, call signalling in RAS.
std::vector<Announced> AnnouncedBy(const DecodedMessage& message);
