// The names that Q.931 and Q.850 give to numbers.
#pragma once

#include <string>
#include <string_view>

// "Release Complete"; "Type 0x3F" where Q.931 has no name for it.
std::string MessageTypeName(unsigned type);

// Of a cause without its extension bit: "user busy"; empty where Q.850 has none.
std::string_view CauseName(unsigned cause);
