// Locates the information elements of a call-signalling message.
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
    uint32_t position = 0;  // of the identifier, from the start of the message
    uint32_t contents = 0;  // the first octet after the length
    uint32_t length = 0;    // as announced
  };

  // `octets` starts at the TPKT header.
  explicit Q931Elements(std::span<const uint8_t> octets);

  std::optional<BitRange> Find(std::string_view member) const override;

  // The first user-user element, including its protocol discriminator.
  std::optional<Element> UserUser() const { return first_[kUserUser]; }
  // The element that announces more octets than there are; always the last.
  std::optional<Element> CutOff() const { return cutOff_; }
  bool IsLast(const Element& element) const { return element.position == last_; }
  // The length in the TPKT header; empty if the header itself is cut short.
  std::optional<uint32_t> AnnouncedOctets() const;

 private:
  static constexpr uint8_t kUserUser = 0x7E;

  std::span<const uint8_t> octets_;
  std::array<std::optional<Element>, 128> first_;  // indexed by identifier
  std::optional<Element> cutOff_;
  uint32_t last_ = 0;
};
