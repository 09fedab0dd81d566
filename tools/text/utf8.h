// UTF-8 text.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

void AppendLatin1(std::string& text, std::span<const uint8_t> characters);

// A lone surrogate becomes U+FFFD.
void AppendUtf16(std::string& text, std::span<const uint16_t> units);

// A JSON string with its quotation marks. Line separators and control characters, which could command a terminal,
// become \u escapes.
void AppendJsonString(std::string& json, std::string_view text);

// Escapes the same characters as \u.
void AppendPrintable(std::string& printable, std::string_view text);
std::string Printable(std::string_view text);
