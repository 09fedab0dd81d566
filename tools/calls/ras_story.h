// What RAS messages add to the facts of a call.
#pragma once

#include "calls/call.h"
#include "decode/decoded_message.h"

// The latest transaction of this requester's host and sequence number; null: there is none.
RasTransaction* FindTransaction(Call& call, const Endpoint& requester, uint16_t sequence);

// Of a request that is not repeated.
void AddRasRequest(Call& call, const Origin& origin, const DecodedMessage& message);
// Also where the request was not seen.
void AddRasAnswer(Call& call, const Origin& origin, const DecodedMessage& message);

uint16_t SequenceOf(const DecodedMessage& message);
