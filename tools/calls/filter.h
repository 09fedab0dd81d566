// Selects calls and messages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "calls/call.h"
#include "decode/decoded_message.h"

// A point in time, or a time of day that applies to every day.
struct TimeBound {
  int64_t microseconds = 0;
  bool isTimeOfDay = false;
};

// Parses "2024-01-31", "2024-01-31T23:59:59.5Z" with 'T' or a blank, "23:59" or "23:59:59", in UTC. Empty if invalid.
std::optional<TimeBound> ParseTimeBound(const std::string& text);

enum class Wanted : uint8_t { kNo, kNotYet, kYes };

// True if the message, or one that it carries, is incomplete.
bool IsFaulty(const DecodedMessage& decoded);

struct Filter {
  std::string call;  // a call number, or the start of an identifier
  std::string party;
  std::string message;
  std::optional<Family> family;
  std::optional<TimeBound> since;
  std::optional<TimeBound> until;
  bool faulty = false;

  bool IsEmpty() const { return !SelectsCalls() && message.empty() && !family && !since && !until && !faulty; }
  // True if the filter needs to know a message's calls.
  bool SelectsCalls() const { return !call.empty() || !party.empty(); }

  // Decides by the message alone, except for its faults.
  bool WantsMessage(const Message& candidate, const DecodedMessage& decoded) const;
  // For a refused connection: decides by time alone; false if the filter selects messages.
  bool WantsConnection(const Origin& origin) const;
  // Applies --call and --party. Later messages can still change an unknown result.
  Wanted WantsCall(const Call& candidate) const;

 private:
  bool WantsTime(int64_t microseconds) const;
};
