// A message as the viewer knows it: what the library's export makes of it, what was read of it, and what is wrong.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "decode/tree.h"
#include "message.h"

// What was read shows a message to be.
enum class Verdict : uint8_t {
  kComplete,
  kEndedEarly,
  kOctetsLeftOver,
  kClaimsTooMuch,   // a length past the end, or in fragments
  kVersionRefused,  // a registration of a version that the library does not know
  kLimitReached,
  kMalformed,  // an undefined index, a number too wide, a Q.931 frame without what it must hold
  kTooLong,    // for the exports
};

struct MessageFault {
  Verdict verdict = Verdict::kMalformed;
  std::string member;    // "additionalSourceAddresses[0].presentationIndicator": the path from the message's body
  uint64_t bit = 0;      // of the whole message
  std::string cause;     // for a person
  bool resumed = false;  // what follows the open type in which it lies was read
};

// Releases a record and its blocks.
struct RecordDeleter {
  void (*release)(void* record) = nullptr;
  void operator()(void* record) const { release(record); }
};

struct DecodedMessage {
  Family family = Family::kRas;
  // What the export returned; of RAS, whose result is an address, the octets up to it. None: the message is longer than
  // the exports take.
  bool ok = false;
  std::optional<int64_t> result;
  std::string_view name;  // "setup", "registrationRequest"; empty: no alternative was read

  Verdict verdict = Verdict::kComplete;
  std::vector<MessageFault> faults;  // in the order of the message
  uint32_t octetsLeftOver = 0;
  uint32_t senderVersion = 0;        // of the protocolIdentifier; 0: the message names none
  bool readAsVersion4 = false;       // it names a later one
  uint32_t spareOctetsRequired = 0;  // of a complete RAS message: how many the library wants; 0: none, or one as always
  std::vector<DecodedMessage> tunnelled;  // the H.245 messages of h245Control and parallelH245Control

  bool IsComplete() const { return verdict == Verdict::kComplete; }
  // Complete, and refused with the one spare octet that RAS messages are handed over with.
  bool IsRefusedForSpareOctet() const { return IsComplete() && !ok; }
  // The fault that the verdict names; null: none.
  const MessageFault* Fault() const;

  // What was read; its children are the members of the whole message, h323-UserInformation among those of Q.931.
  Node Root() const { return nodes.empty() ? Node() : Node(nodes.data()); }
  // The message itself: the body of a RasMessage, of h323-message-body or of the class of an H.245 message.
  Node Body() const;

  std::vector<NodeData> nodes;
  std::unique_ptr<void, RecordDeleter> record;  // which the nodes point into
};

// Decodes a message with the library's decoders. Of call signalling, `octets` starts with the TPKT header.
DecodedMessage DecodeMessage(Family family, std::span<const uint8_t> octets);

// The addresses at which the message asks for connections: of H.245 in call signalling, of call signalling in RAS.
std::vector<Announced> AnnouncedBy(const DecodedMessage& message);
