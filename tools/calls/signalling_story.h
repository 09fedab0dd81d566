// Adds the facts of call-signalling messages to a call.
#pragma once

#include "calls/call.h"
#include "decode/decoded_message.h"

// Message types of Q.931, table 4-2.
constexpr int64_t kAlerting = 0x01;
constexpr int64_t kSetup = 0x05;
constexpr int64_t kConnect = 0x07;
constexpr int64_t kDisconnect = 0x45;
constexpr int64_t kReleaseComplete = 0x5A;

int64_t MessageTypeOf(const DecodedMessage& message);
// True if the sender allocated the call reference, as the caller does.
bool IsFromCaller(const DecodedMessage& message);

void AddSignalling(Call& call, Leg& leg, const Origin& origin, const DecodedMessage& message);
