#include "json_visitor.h"

#include <span>
#include <string>

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

Json OctetsToJson(const uint8_t* octets, uint32_t count, OctetNotation notation) {
  switch (notation) {
    case OctetNotation::kCharacters: return FromLatin1({octets, count});
    case OctetNotation::kDigits: return Digits({octets, count});
    case OctetNotation::kBits: return {{"value", BitsToHex(octets, count)}, {"length", count}};
    case OctetNotation::kFixedBits: return BitsToHex(octets, count);
    case OctetNotation::kOctets: break;
  }
  return ToHex({octets, count});
}

}  // namespace

JsonVisitor::JsonVisitor(Json& json) : open_{&json} { json = Json::object(); }

void JsonVisitor::Number(const char* name, int64_t value) { At(name) = value; }
void JsonVisitor::Boolean(const char* name, uint32_t value) { At(name) = value != 0; }
void JsonVisitor::EnumeratedValue(uint32_t value, const char* identifier) {
  *open_.back() = identifier != nullptr ? Json(identifier) : Json(value);
}
void JsonVisitor::Null(const char* name) { At(name) = nullptr; }
void JsonVisitor::UnknownExtension(uint32_t index) { Null(("extension-" + std::to_string(index)).c_str()); }
void JsonVisitor::UnknownRoot(uint32_t index) { Null(("unknown-" + std::to_string(index)).c_str()); }

void JsonVisitor::ObjectIdentifier(const char* name, const kelvra::ObjectIdentifierValue& value) {
  std::string text;
  const uint32_t* arcs = value.arcs;
  for (uint32_t i = 0; arcs != nullptr && i < value.count; ++i) {
    if (i > 0) text += '.';
    text += std::to_string(arcs[i]);
  }
  At(name) = text;
}

void JsonVisitor::Characters16(const char* name, const kelvra::BMPStringValue& value) {
  const uint16_t* units = value.data;
  At(name) = FromUtf16({units, units != nullptr ? value.length : 0});
}

void JsonVisitor::Embedded(const char* name, const uint8_t* octets, uint32_t count, OctetNotation notation) {
  At(name) = OctetsToJson(octets, octets != nullptr ? count : 0, notation);
}

Json& JsonVisitor::At(const char* name) {
  Json& open = *open_.back();
  if (name == kElement) return open.emplace_back();
  return *name == '\0' ? open : open[name];
}

void JsonVisitor::OpenObject(const char* name) {
  Json& object = At(name);
  object = Json::object();
  open_.push_back(&object);
}

void JsonVisitor::OpenArray(const char* name) {
  Json& array = At(name);
  array = Json::array();
  open_.push_back(&array);
}

void JsonVisitor::Close() { open_.pop_back(); }
