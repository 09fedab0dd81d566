// Names of the message families and of Q.931's message types.
#pragma once

#include <string>

#include "decode/decode.h"

const char* FamilyLabel(Family family);    // "RAS"
const char* FamilyKeyword(Family family);  // "ras"

// "Release Complete"; the number in hexadecimal where Q.931 has no name for it.
std::string MessageTypeName(unsigned type);

// What a reader calls the message: its alternative, for call signalling the message type before it.
std::string MessageTitle(Family family, const Decoded& decoded);

// "malformed, result -1" or "octets left over, or cut short, result 0", or empty when the message was decoded.
std::string Fault(Family family, const Decoded& decoded);
