// The output formats for messages.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "decode/decoded_message.h"

enum class Format : uint8_t { kSummary, kTree, kJson, kCallTable, kCalls, kLadder, kHtml, kStatistics };

enum class TimeStyle : uint8_t {
  kUtc,
  kLocal,
  kRelative,  // to the first message
};

struct FormatOptions {
  TimeStyle times = TimeStyle::kUtc;
  bool showsOctets = false;  // for the tree: the position of each member, and the message in hexadecimal
  bool isColored = false;
};

class Formatter {
 public:
  virtual ~Formatter() = default;
  // Appends whole lines.
  virtual void Print(const Message& message, const DecodedMessage& decoded, std::string& text) = 0;
  // Other events of a capture.
  virtual void OnMediaPacket(const Origin& /*origin*/, uint8_t /*payload_type*/) {}
  virtual void OnRefusedConnection(const Origin& /*origin*/) {}
  // Called after the last message.
  virtual void Finish(std::string& /*text*/) {}
};

std::unique_ptr<Formatter> MakeSummary(const FormatOptions& options);
std::unique_ptr<Formatter> MakeTree(const FormatOptions& options);
std::unique_ptr<Formatter> MakeJson();
