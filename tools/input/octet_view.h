// Numbers in network order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

inline uint16_t NetworkNumber16(std::span<const uint8_t> octets, size_t at) {
  return static_cast<uint16_t>(octets[at] << 8 | octets[at + 1]);
}

inline uint32_t NetworkNumber32(std::span<const uint8_t> octets, size_t at) {
  return uint32_t{NetworkNumber16(octets, at)} << 16 | NetworkNumber16(octets, at + 2);
}
