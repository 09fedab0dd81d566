// Which calls and messages are wanted.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "calls/call.h"
#include "decode/decoded_message.h"

// A time, or a time of day, which then counts for every day.
struct TimeBound {
  int64_t microseconds = 0;
  bool isTimeOfDay = false;
};

// "2024-01-31", "2024-01-31T23:59:59.5Z" with 'T' or a blank, "23:59" or "23:59:59"; in UTC. None where it is no time.
std::optional<TimeBound> ParseTimeBound(const std::string& text);

enum class Wanted : uint8_t { kNo, kNotYet, kYes };

// Whether the message, or one that it carries, is not complete.
bool IsFaulty(const DecodedMessage& decoded);

struct Filter {
  std::string call;  // the number of a call, or the beginning of its identifier
  std::string party;
  std::string message;
  std::optional<Family> family;
  std::optional<TimeBound> since;
  std::optional<TimeBound> until;
  bool faulty = false;

  bool IsEmpty() const { return !SelectsCalls() && message.empty() && !family && !since && !until && !faulty; }
  // Whether it takes a call to know.
  bool SelectsCalls() const { return !call.empty() || !party.empty(); }

  // By what the message says itself, but for its faults.
  bool WantsMessage(const Message& candidate, const DecodedMessage& decoded) const;
  // Of one that was refused: by the time alone, unless messages are asked for.
  bool WantsConnection(const Origin& origin) const;
  // By --call and --party; what is not known yet may become known by a later message.
  Wanted WantsCall(const Call& candidate) const;

 private:
  bool WantsTime(int64_t microseconds) const;
};
