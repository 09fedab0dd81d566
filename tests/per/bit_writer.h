// Composes aligned PER, most significant bit first, so that a test shows the meaning of its input.
#pragma once

#include <stdint.h>

#include <initializer_list>
#include <vector>

namespace kelvra::test {

class BitWriter {
 public:
  // The low `count` bits of `value`, 0 to 64.
  BitWriter& Bits(uint64_t value, uint32_t count) {
    for (uint32_t i = count; i-- > 0;) {
      if (used_ == 0) octets_.push_back(0);
      const uint32_t bit = static_cast<uint32_t>(value >> i) & 1;
      octets_.back() = static_cast<uint8_t>(octets_.back() | bit << (7 - used_));
      used_ = (used_ + 1) % 8;
    }
    return *this;
  }
  BitWriter& Bit(bool value) { return Bits(value ? 1 : 0, 1); }
  // Zero bits up to the next octet boundary.
  BitWriter& Align() {
    used_ = 0;
    return *this;
  }
  // Length determinant (X.691 10.9), aligned, 0 to 16383.
  BitWriter& Length(uint32_t value) {
    Align();
    return value < 128 ? Bits(value, 8) : Bits(0x8000U | value, 16);
  }
  // Normally small number (X.691 10.6); from 64 on, the form with a length.
  BitWriter& NormallySmall(uint32_t value) {
    if (value < 64) return Bits(value, 7);
    Bit(true);
    uint32_t octets = 1;
    while (octets < 4 && value >> (8 * octets) != 0) ++octets;
    return Length(octets).Bits(value, 8 * octets);
  }
  // Whole octets at the current position; aligns first.
  BitWriter& Octets(const std::vector<uint8_t>& octets) {
    Align();
    octets_.insert(octets_.end(), octets.begin(), octets.end());
    return *this;
  }
  BitWriter& Octets(std::initializer_list<uint8_t> octets) { return Octets(std::vector<uint8_t>(octets)); }
  // OCTET STRING or open type: length determinant and contents.
  BitWriter& OpenType(const std::vector<uint8_t>& value) {
    Length(static_cast<uint32_t>(value.size()));
    return Octets(value);
  }
  BitWriter& OpenType(std::initializer_list<uint8_t> value) { return OpenType(std::vector<uint8_t>(value)); }
  BitWriter& OpenType(const BitWriter& value) { return OpenType(value.octets_); }

  const std::vector<uint8_t>& Done() const { return octets_; }
  operator std::vector<uint8_t>() const { return octets_; }  // NOLINT(google-explicit-constructor)

 private:
  std::vector<uint8_t> octets_;
  uint32_t used_ = 0;  // bits used in the last octet; 0 if it is full
};

}  // namespace kelvra::test
