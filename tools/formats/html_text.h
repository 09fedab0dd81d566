// Text in HTML.
#pragma once

#include <string>
#include <string_view>

// Escapes everything special to HTML, also inside attributes.
void AppendMarkupEscaped(std::string& html, std::string_view text);

// Also escapes the control characters, line feeds included.
std::string Escaped(std::string_view text);
