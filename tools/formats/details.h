// The few values of a message that a reader looks for first.
#pragma once

#include <string>

#include "decode/decoded_message.h"

// Separated by two spaces; control characters are escaped.
std::string Details(const DecodedMessage& message);
