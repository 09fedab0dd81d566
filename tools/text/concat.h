// Joining text. GCC 12 warns at -O3 about overlaps it imagines in a literal plus a std::string.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

inline std::string Concat(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}
