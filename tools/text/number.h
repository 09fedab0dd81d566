// Numbers as decimal text.
#pragma once

#include <charconv>
#include <cstdint>
#include <iterator>
#include <string>

inline void AppendNumber(std::string& text, int64_t value) {
  char digits[24];
  text.append(digits, std::to_chars(std::begin(digits), std::end(digits), value).ptr);
}
