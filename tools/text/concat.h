// Joining text. GCC 12 warns at -O3 about overlaps it imagines in a literal plus a std::string.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

inline void Append(std::string& text, std::initializer_list<std::string_view> parts) {
  for (const std::string_view part : parts) text += part;
}

inline std::string Concat(std::initializer_list<std::string_view> parts) {
  size_t size = 0;
  for (const std::string_view part : parts) size += part.size();
  std::string text;
  text.reserve(size);
  Append(text, parts);
  return text;
}
