// The few values of a message that a person looks for first.
#pragma once

#include <string>

#include "decode/decode.h"

// Separated by two blanks; control characters are escaped.
std::string Details(Family family, const Decoded& decoded);
