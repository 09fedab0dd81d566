// Text in UTF-8.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

void AppendLatin1(std::string& text, std::span<const uint8_t> characters);

// Surrogates that stand alone become U+FFFD.
void AppendUtf16(std::string& text, std::span<const uint16_t> units);

// A string of JSON with its quotation marks. Control characters, which could command a terminal, and line separators
// become \u escapes.
void AppendJsonString(std::string& json, std::string_view text);

// With the same characters as \u escapes.
void AppendPrintable(std::string& printable, std::string_view text);
std::string Printable(std::string_view text);
