// What H.245 messages add to the facts of a call, on a connection of their own or tunnelled.
#pragma once

#include "calls/call.h"
#include "decode/decoded_message.h"

void AddControl(Call& call, const Origin& origin, const DecodedMessage& message);
