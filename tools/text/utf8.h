// Text in UTF-8.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

std::string FromLatin1(std::span<const uint8_t> characters);

// Surrogates that stand alone become U+FFFD.
std::string FromUtf16(std::span<const uint16_t> units);

// What stands between the quotation marks of a string of JSON.
void AppendEscaped(std::string& json, std::string_view text);

// With control characters, which could command a terminal, and line separators as \u escapes.
std::string Printable(std::string_view text);
