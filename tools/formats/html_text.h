// Text in HTML.
#pragma once

#include <string>
#include <string_view>

// Escapes everything special to HTML, also inside attributes.
std::string Escaped(std::string_view text);
