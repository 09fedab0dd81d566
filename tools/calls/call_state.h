// The progress of a call, which decides how long the tracker waits for more messages.
#pragma once

#include "calls/call.h"

enum class CallState : uint8_t {
  kOpen,
  kReleased,  // but the gatekeeper still counts it as admitted
  kOver,
  kFull,  // too many messages for one call
};

CallState StateOf(const Call& call);
