// Composes Q.931 frames with a TPKT header.
#pragma once

#include <vector>

#include "h225/decoding.h"

namespace kelvra::test {

// An H323-UserInformation whose body is `empty`.
inline BitWriter EmptyBodyInformation() {
  return BitWriter().Bits(0, 4).Bit(true).NormallySmall(1).OpenType(std::vector<uint8_t>());
}

class Q931Builder {
 public:
  Q931Builder() : octets_{3, 0, 0, 0, 0x08, 0x02, 0x92, 0x34, 0x05} {}

  Q931Builder& Octets(const std::vector<uint8_t>& octets) {
    octets_.insert(octets_.end(), octets.begin(), octets.end());
    return *this;
  }
  // An element with a one-octet length; `claimed` replaces the true length.
  Q931Builder& Element(uint8_t identifier, const std::vector<uint8_t>& contents, int claimed = -1) {
    octets_.push_back(identifier);
    octets_.push_back(static_cast<uint8_t>(claimed < 0 ? static_cast<int>(contents.size()) : claimed));
    return Octets(contents);
  }
  // The user-user element; `claimed` replaces the true length.
  Q931Builder& UserUser(const std::vector<uint8_t>& information, int claimed = -1) {
    const int length = claimed < 0 ? static_cast<int>(information.size()) + 1 : claimed;
    octets_.push_back(0x7E);
    octets_.push_back(static_cast<uint8_t>(length >> 8));
    octets_.push_back(static_cast<uint8_t>(length));
    octets_.push_back(0x05);
    return Octets(information);
  }
  Q931Builder& UserUser() { return UserUser(EmptyBodyInformation()); }

  const std::vector<uint8_t>& Done() const { return octets_; }

 private:
  std::vector<uint8_t> octets_;
};

}  // namespace kelvra::test
