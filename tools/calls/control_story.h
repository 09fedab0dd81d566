// Adds the facts of H.245 messages to a call, tunnelled or on their own connection.
#pragma once

#include "calls/call.h"
#include "decode/decoded_message.h"

void AddControl(Call& call, const Origin& origin, const DecodedMessage& message);
