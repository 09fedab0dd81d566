// Converts a message from hexadecimal digits, as found in a log.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

inline std::vector<uint8_t> OctetsOf(const std::string& digits) {
  std::vector<uint8_t> octets;
  for (size_t i = 0; i + 1 < digits.size(); i += 2) {
    octets.push_back(static_cast<uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
  }
  return octets;
}
