// What a person calls a message, and what is wrong with it.
#pragma once

#include <string>

#include "decode/decoded_message.h"

const char* FamilyLabel(Family family);    // "RAS"
const char* FamilyKeyword(Family family);  // "ras"

// The alternative; of call signalling the message type before it: "Release Complete (releaseComplete)".
std::string MessageTitle(const DecodedMessage& message);

// "octet 126: additionalSourceAddresses[0].presentationIndicator: the message ends here", each fault after the other,
// or why the library refuses a complete message. Empty: there is nothing to say.
std::string FaultText(const DecodedMessage& message);
