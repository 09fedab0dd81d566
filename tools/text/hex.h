// Hexadecimal text.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// In upper case, without separators.
std::string ToHex(std::span<const uint8_t> octets);
void AppendHex(std::string& text, std::span<const uint8_t> octets);
// Writes two digits and returns the place after them.
char* WriteHex(char* place, uint8_t octet);

// Accepts blanks and colons between the octets. Throws std::invalid_argument, whose what() names the fault.
std::vector<uint8_t> FromHex(std::string_view text);

// True for the characters that FromHex accepts.
bool IsHexText(char character);
