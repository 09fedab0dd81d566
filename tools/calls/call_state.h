// How far a call has come, which decides how long messages for it are waited for.
#pragma once

#include "calls/call.h"

enum class CallState : uint8_t {
  kOpen,
  kReleased,  // but a gatekeeper still counts it as admitted
  kOver,
};

CallState StateOf(const Call& call);
