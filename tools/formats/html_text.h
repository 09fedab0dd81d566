// Text within HTML.
#pragma once

#include <string>
#include <string_view>

// With nothing in it that HTML would take for its own, within attributes too.
std::string Escaped(std::string_view text);
