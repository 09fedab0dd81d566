#include "json_visitor.h"

#include "hex.h"
#include "utf8.h"

namespace {

using kelvra::OctetNotation;

std::string Digits(std::span<const uint8_t> codes) {
  static const char digits[] = "#*,0123456789???";
  std::string text;
  for (const uint8_t code : codes) text += digits[code & 15];
  return text;
}

std::string BitsToHex(const uint8_t* octets, uint32_t bits) {
  return ToHex({octets, bits / 8 + (bits % 8 != 0 ? 1U : 0U)});
}

}  // namespace

Json OctetsToJson(const uint8_t* octets, uint32_t count, OctetNotation notation) {
  if (octets == nullptr) count = 0;
  switch (notation) {
    case OctetNotation::kCharacters: return FromLatin1({octets, count});
    case OctetNotation::kDigits: return Digits({octets, count});
    case OctetNotation::kBits: return {{"value", BitsToHex(octets, count)}, {"length", count}};
    case OctetNotation::kFixedBits: return BitsToHex(octets, count);
    case OctetNotation::kOctets: break;
  }
  return ToHex({octets, count});
}

Json ToJson(const kelvra::ObjectIdentifierValue& value) {
  std::string text;
  const uint32_t* arcs = value.arcs;
  for (uint32_t i = 0; arcs != nullptr && i < value.count; ++i) {
    if (i > 0) text += '.';
    text += std::to_string(arcs[i]);
  }
  return text;
}

void JsonVisitor::Characters16(const char* name, kelvra::BMPStringValue& value) {
  const uint16_t* units = value.data;
  Put(name, FromUtf16({units, units != nullptr ? value.length : 0}));
}
