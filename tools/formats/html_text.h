// Text in HTML.
#pragma once

#include <string>
#include <string_view>

// Escapes what is special between tags; attributes would need more.
void AppendMarkup(std::string& html, std::string_view text);

// Also escapes the control characters, line feeds included.
void AppendEscaped(std::string& html, std::string_view text);
std::string Escaped(std::string_view text);
