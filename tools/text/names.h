// The names of numbers in Q.931 and Q.850.
#pragma once

#include <string>
#include <string_view>

// "Release Complete"; "Type 0x3F" if Q.931 has no name.
std::string MessageTypeName(unsigned type);

// The name of a cause without its extension bit: "user busy"; empty if Q.850 has none.
std::string_view CauseName(unsigned cause);
