// Hexadecimal text.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Upper-case, nothing between the octets.
std::string ToHex(std::span<const uint8_t> octets);
void AppendHex(std::string& text, std::span<const uint8_t> octets);

// Accepts blanks and colons between the octets. Throws std::invalid_argument, whose what() says
// what is wrong.
std::vector<uint8_t> FromHex(std::string_view text);

// Whether a character may stand in what FromHex accepts.
bool IsHexText(char character);
