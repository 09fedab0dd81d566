// Messages through the library's exports.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "message.h"
#include "text/json.h"

struct Decoded {
  bool ok = false;
  // What the export returned; for RAS, whose result is an address, the octets up to it. Nothing
  // when the message is longer than the exports take.
  std::optional<int64_t> result;
  std::string name;               // the alternative, empty when none was decoded
  std::string json = "{}";        // the message as text
  Json message = Json::object();  // the same as a tree, where one was asked for
};

enum class Form : uint8_t { kText, kTree };

// A tree costs several times what the text does.
Decoded Decode(Family family, std::span<const uint8_t> octets, Form form = Form::kTree);

// The H.245 messages that a call-signalling message carries, decoded.
std::vector<Decoded> DecodeTunnelled(const Json& message);
