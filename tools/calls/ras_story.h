// Adds the facts of RAS messages to a call.
#pragma once

#include "calls/call.h"
#include "decode/decoded_message.h"

// The latest transaction with this requester host and sequence number; null if there is none.
RasTransaction* FindTransaction(Call& call, const Endpoint& requester, uint16_t sequence);

// Adds a new request, not a repeated one.
void AddRasRequest(Call& call, const Origin& origin, const DecodedMessage& message);
// Also works if the request was not seen.
void AddRasAnswer(Call& call, const Origin& origin, const DecodedMessage& message);

uint16_t SequenceOf(const DecodedMessage& message);
