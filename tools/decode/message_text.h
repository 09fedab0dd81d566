// The title of a message and the text of its faults.
#pragma once

#include <string>

#include "decode/decoded_message.h"

const char* FamilyLabel(Family family);    // "RAS"
const char* FamilyKeyword(Family family);  // "ras"

// The alternative; for call signalling after the message type: "Release Complete (releaseComplete)".
std::string MessageTitle(const DecodedMessage& message);

// "octet 126: additionalSourceAddresses[0].presentationIndicator: the message ends here", all faults in order; or why
// the library refuses a complete message. Empty if neither applies.
std::string FaultText(const DecodedMessage& message);
