// The few values of a message that a person looks for first.
#pragma once

#include <string>

#include "decode/decoded_message.h"

// Separated by two blanks; control characters are escaped.
std::string Details(const DecodedMessage& message);
