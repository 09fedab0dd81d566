// The information elements of a call-signalling message, found by their places.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "decode/tree_builder.h"

class Q931Elements : public FramePlaces {
 public:
  struct Element {
    uint32_t position = 0;  // of the identifier, in the message
    uint32_t contents = 0;  // of the first octet after the length
    uint32_t length = 0;    // of the contents, as announced
  };

  // `octets` start with the TPKT header.
  explicit Q931Elements(std::span<const uint8_t> octets);

  std::optional<BitRange> Find(std::string_view member) const override;

  // The user-user element with its protocol discriminator, the first one as for all.
  std::optional<Element> UserUser() const { return first_[kUserUser]; }
  // The element that announces more than there is; no other follows it.
  std::optional<Element> CutOff() const { return cutOff_; }
  bool IsLast(const Element& element) const { return element.position == last_; }
  // The length in the TPKT header; none: that is cut itself.
  std::optional<uint32_t> AnnouncedOctets() const;

 private:
  static constexpr uint8_t kUserUser = 0x7E;

  std::span<const uint8_t> octets_;
  std::array<std::optional<Element>, 128> first_;  // by identifier
  std::optional<Element> cutOff_;
  uint32_t last_ = 0;
};
