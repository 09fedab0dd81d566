// Messages as text: hexadecimal digits, and lines of tests/data.
#pragma once

#include <stdint.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kelvra::test {

// Decodes lower-case hexadecimal digits.
inline std::vector<uint8_t> Hex(std::string_view digits) {
  const auto nibble = [](char digit) { return static_cast<uint32_t>(digit <= '9' ? digit - '0' : digit - 'a' + 10); };
  std::vector<uint8_t> octets;
  for (size_t i = 0; i + 1 < digits.size(); i += 2) {
    octets.push_back(static_cast<uint8_t>(nibble(digits[i]) << 4 | nibble(digits[i + 1])));
  }
  return octets;
}

// The value of a string member in a line of JSON; these strings have no escapes.
inline std::string StringMember(const std::string& line, const std::string& name) {
  const std::string start = "\"" + name + "\": \"";
  const size_t at = line.find(start);
  if (at == std::string::npos) throw std::runtime_error("no member " + name);
  const size_t first = at + start.size();
  return line.substr(first, line.find('"', first) - first);
}

}  // namespace kelvra::test
