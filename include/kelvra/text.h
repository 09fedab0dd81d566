// Text of decoded values, for C++ programs: characters, digits, object identifiers, addresses, aliases and names.
//
// All text is UTF-8 and not escaped: it may hold control characters from the sender, including NUL. Every function
// accepts any record that a decode filled, even after a refused message or a release: a null pointer is an empty value
// whatever its count, and nothing is read past a count. A function returns an empty string if there is nothing to show.
// The functions allocate, and may throw std::bad_alloc.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include <string>

#include "alternative.h"
#include "h225/common/addresses.h"
#include "h245/common/transport_address.h"
#include "values.h"
#include "walk.h"

namespace kelvra {

// --- Lists ---

// The elements of a list in a record, for a range-based loop:
//
//   for (const h225::AliasAddress& alias : ElementsOf(request.terminalAlias, request.terminalAliasCount)) ...
//
// The range is empty if the pointer is null. It is valid until the record is released.
template <class T>
class ElementRange {
 public:
  ElementRange(T* first, uint32_t count) : first_(first), count_(first == nullptr ? 0 : count) {}
  T* begin() const { return first_; }
  T* end() const { return first_ == nullptr ? nullptr : first_ + count_; }
  uint32_t size() const { return count_; }
  bool empty() const { return count_ == 0; }

 private:
  T* first_;
  uint32_t count_;
};
template <class T>
ElementRange<T> ElementsOf(T* first, uint32_t count) {
  return {first, count};
}

// --- Characters ---

namespace detail {

inline void AppendUtf8(std::string& text, uint32_t point) {
  const auto tail = [&text, point](unsigned shift) { text += static_cast<char>(0x80 | (point >> shift & 0x3F)); };
  if (point < 0x80) {
    text += static_cast<char>(point);
  } else if (point < 0x800) {
    text += static_cast<char>(0xC0 | point >> 6);
    tail(0);
  } else if (point < 0x10000) {
    text += static_cast<char>(0xE0 | point >> 12);
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | point >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

inline bool IsHighSurrogate(uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
inline bool IsLowSurrogate(uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace detail

// `count` UTF-16 code units in host order. An unpaired surrogate becomes U+FFFD. At most three octets per unit.
inline std::string Utf16Text(const uint16_t* units, uint32_t count) {
  constexpr uint32_t kReplacement = 0xFFFD;
  std::string text;
  if (units == nullptr) return text;
  for (uint32_t i = 0; i < count; ++i) {
    const uint32_t unit = units[i];
    if (detail::IsHighSurrogate(unit) && i + 1 < count && detail::IsLowSurrogate(units[i + 1])) {
      detail::AppendUtf8(text, 0x10000 + ((unit - 0xD800) << 10) + (units[++i] - 0xDC00U));
    } else {
      detail::AppendUtf8(text, detail::IsHighSurrogate(unit) || detail::IsLowSurrogate(unit) ? kReplacement : unit);
    }
  }
  return text;
}

// `count` 8-bit characters, such as those of an IA5String; values from 128 are read as Latin-1. At most two octets per
// character.
inline std::string Latin1Text(const uint8_t* characters, uint32_t count) {
  std::string text;
  for (const uint8_t character : ElementsOf(characters, count)) detail::AppendUtf8(text, character);
  return text;
}

// A BMPString, such as an h323-ID or a gatekeeperIdentifier.
inline std::string TextOf(const BMPStringValue& value) { return Utf16Text(value.data, value.length); }

// A string of 8-bit characters (IA5String, GeneralString, NumericString ...), such as a url-ID.
inline std::string CharactersOf(const OctetStringValue& value) { return Latin1Text(value.data, value.length); }

// Dialled digits (NumberDigits: dialedDigits, the digits of a PartyNumber). A record keeps one code per octet, an index
// into "#*,0123456789". Any other octet becomes '?'. One octet per digit.
inline std::string DigitsOf(const OctetStringValue& value) {
  static constexpr char kDigits[] = "#*,0123456789";
  std::string text;
  for (const uint8_t code : ElementsOf(value.data, value.length))
    text += code < sizeof kDigits - 1 ? kDigits[code] : '?';
  return text;
}

// An object identifier as dotted text, "0.0.8.2250.0.4". At most 11 octets per arc.
inline std::string TextOf(const ObjectIdentifierValue& value) {
  std::string text;
  for (const uint32_t arc : ElementsOf(value.arcs, value.count)) {
    if (!text.empty()) text += '.';
    text += std::to_string(arc);
  }
  return text;
}

// --- Addresses ---

// An IPv4 address of 4 octets in network order, "192.0.2.1". Empty if the pointer is null.
inline std::string Ipv4Text(const uint8_t* octets) {
  std::string text;
  for (const uint8_t octet : ElementsOf(octets, 4)) {
    if (!text.empty()) text += '.';
    text += std::to_string(octet);
  }
  return text;
}

// An IPv6 address of 16 octets in network order, "2001:db8::1" (RFC 5952). Empty if the pointer is null.
inline std::string Ipv6Text(const uint8_t* octets) {
  constexpr uint32_t kGroups = 8;
  if (octets == nullptr) return {};
  const auto group = [octets](size_t i) { return static_cast<uint32_t>(octets[2 * i] << 8 | octets[2 * i + 1]); };
  // The first of the longest runs of zero groups; a single group is not shortened (4.2.2).
  uint32_t start = kGroups;
  uint32_t longest = 1;
  for (uint32_t i = 0, run = 0; i < kGroups; ++i) {
    run = group(i) == 0 ? run + 1 : 0;
    if (run > longest) {
      longest = run;
      start = i + 1 - run;
    }
  }
  std::string text;
  for (uint32_t i = 0; i < kGroups;) {
    if (i == start) {
      text += "::";
      i += longest;
      continue;
    }
    if (!text.empty() && text.back() != ':') text += ':';
    bool started = false;
    for (int shift = 12; shift >= 0; shift -= 4) {
      const uint32_t digit = group(i) >> shift & 15;
      started = started || digit != 0 || shift == 0;
      if (started) text += "0123456789abcdef"[digit];
    }
    ++i;
  }
  return text;
}

namespace detail {

inline std::string EndpointText(const std::string& address, bool brackets, uint16_t port) {
  if (address.empty()) return {};
  return (brackets ? "[" + address + "]:" : address + ":") + std::to_string(port);
}
inline std::string Ipv4Endpoint(const OctetStringValue& ip, uint16_t port) {
  return EndpointText(ip.length == 4 ? Ipv4Text(ip.data) : std::string(), false, port);
}
inline std::string Ipv6Endpoint(const OctetStringValue& ip, uint16_t port) {
  return EndpointText(ip.length == 16 ? Ipv6Text(ip.data) : std::string(), true, port);
}

}  // namespace detail

// An IP address with its port: "192.0.2.1:1720", "[2001:db8::1]:1720". For a source route, the destination address.
// Empty for any other kind of address.
inline std::string TextOf(const h225::TransportAddress& address) {
  using h225::TransportAddress;
  switch (AlternativeOf(address)) {
    case TransportAddress::kIpAddress: return detail::Ipv4Endpoint(address.ipAddress.ip, address.ipAddress.port);
    case TransportAddress::kIpSourceRoute:
      return detail::Ipv4Endpoint(address.ipSourceRoute.ip, address.ipSourceRoute.port);
    case TransportAddress::kIp6Address: return detail::Ipv6Endpoint(address.ip6Address.ip, address.ip6Address.port);
    default: return {};
  }
}
inline std::string TextOf(const h245::UnicastAddress& address) {
  using h245::UnicastAddress;
  switch (AlternativeOf(address)) {
    case UnicastAddress::kIPAddress: {
      const auto& ip = address.iPAddress;
      return detail::EndpointText(ip.networkLength == 4 ? Ipv4Text(ip.network) : std::string(), false,
                                  ip.tsapIdentifier);
    }
    // The lengths of these stay zero.
    case UnicastAddress::kIP6Address:
      return detail::EndpointText(Ipv6Text(address.iP6Address.network.data), true, address.iP6Address.tsapIdentifier);
    case UnicastAddress::kIPSourceRouteAddress:
      return detail::EndpointText(Ipv4Text(address.iPSourceRouteAddress.network.data), false,
                                  address.iPSourceRouteAddress.tsapIdentifier);
    default: return {};
  }
}
inline std::string TextOf(const h245::MulticastAddress& address) {
  using h245::MulticastAddress;
  switch (AlternativeOf(address)) {
    case MulticastAddress::kIPAddress:
      return detail::Ipv4Endpoint(address.iPAddress.network, address.iPAddress.tsapIdentifier);
    case MulticastAddress::kIP6Address:
      return detail::Ipv6Endpoint(address.iP6Address.network, address.iP6Address.tsapIdentifier);
    default: return {};
  }
}
inline std::string TextOf(const h245::TransportAddress& address) {
  switch (AlternativeOf(address)) {
    case h245::TransportAddress::kUnicastAddress: return TextOf(address.unicastAddress);
    case h245::TransportAddress::kMulticastAddress: return TextOf(address.multicastAddress);
    default: return {};
  }
}

// --- Aliases ---

// The digits of a party number.
inline std::string TextOf(const h225::PartyNumber& number) {
  using h225::PartyNumber;
  switch (AlternativeOf(number)) {
    case PartyNumber::kE164Number: return DigitsOf(number.e164Number.publicNumberDigits);
    case PartyNumber::kDataPartyNumber: return DigitsOf(number.dataPartyNumber);
    case PartyNumber::kTelexPartyNumber: return DigitsOf(number.telexPartyNumber);
    case PartyNumber::kPrivateNumber: return DigitsOf(number.privateNumber.privateNumberDigits);
    case PartyNumber::kNationalStandardPartyNumber: return DigitsOf(number.nationalStandardPartyNumber);
    default: return {};
  }
}

// An alias as a user writes it. Empty for a mobileUIM.
inline std::string TextOf(const h225::AliasAddress& alias) {
  using h225::AliasAddress;
  switch (AlternativeOf(alias)) {
    case AliasAddress::kDialedDigits: return DigitsOf(alias.dialedDigits);
    case AliasAddress::kH323ID: return TextOf(alias.h323ID);
    case AliasAddress::kUrlID: return CharactersOf(alias.urlID);
    case AliasAddress::kTransportID: return TextOf(alias.transportID);
    case AliasAddress::kEmailID: return CharactersOf(alias.emailID);
    case AliasAddress::kPartyNumber: return TextOf(alias.partyNumber);
    default: return {};
  }
}

// --- Names ---

namespace detail {

// Keeps the name that a walk reports.
struct NameVisitor {
  const char* name = nullptr;
  void Number(const char* shown, int64_t) { name = shown; }
  void Boolean(const char* shown, uint32_t) { name = shown; }
  void EnumeratedValue(uint32_t, const char* identifier) { name = identifier; }
  void Null(const char* shown) { name = shown; }
  void UnknownExtension(uint32_t) {}
  void UnknownRoot(uint32_t) {}
  void ObjectIdentifier(const char* shown, const ObjectIdentifierValue&) { name = shown; }
  void WideCharacters(const char* shown, const BMPStringValue&) { name = shown; }
  void Octets(const char* shown, Slot<uint8_t>, uint32_t, OctetNotation) { name = shown; }
  template <class R>
  void Record(const char* shown, R&) {
    name = shown;
  }
  template <class R>
  void Pointer(const char* shown, Slot<R>) {
    name = shown;
  }
  template <class L, class Show>
  void List(const char* shown, L, Show) {
    name = shown;
  }
};

}  // namespace detail

// The ASN.1 identifier of the chosen alternative of a CHOICE, or of the value of an ENUMERATED: "gatekeeperConfirm".
// Null if the library does not know it. The text is static.
template <class Record>
const char* NameOf(const Record& record) {
  detail::NameVisitor visitor;
  Record::Walk(const_cast<Record&>(record), visitor);  // the visitor changes nothing
  return visitor.name;
}

}  // namespace kelvra
