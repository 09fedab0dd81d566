#include "text/hex.h"

#include <stdexcept>

namespace {

int DigitValue(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return -1;
}

bool IsSeparator(char character) {
  return character == ':' || character == ' ' || (character >= '\t' && character <= '\r');
}

}  // namespace

std::string ToHex(std::span<const uint8_t> octets) {
  std::string text;
  AppendHex(text, octets);
  return text;
}

void AppendHex(std::string& text, std::span<const uint8_t> octets) {
  const size_t before = text.size();
  text.resize(before + 2 * octets.size());
  char* next = text.data() + before;
  for (const uint8_t octet : octets) next = WriteHex(next, octet);
}

char* WriteHex(char* place, uint8_t octet) {
  static const char digits[] = "0123456789ABCDEF";
  *place++ = digits[octet >> 4];
  *place++ = digits[octet & 15];
  return place;
}

std::vector<uint8_t> FromHex(std::string_view text) {
  std::vector<uint8_t> octets;
  octets.reserve(text.size() / 2);
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsSeparator(text[i])) continue;
    const int high = DigitValue(text[i]);
    if (high < 0) throw std::invalid_argument("not hexadecimal");
    const int low = ++i < text.size() ? DigitValue(text[i]) : -1;
    if (low < 0) throw std::invalid_argument("not two hexadecimal digits for each octet");
    octets.push_back(static_cast<uint8_t>(high << 4 | low));
  }
  return octets;
}

bool IsHexText(char character) { return DigitValue(character) >= 0 || IsSeparator(character); }
