#include "text/utf8.h"

#include <algorithm>
#include <array>

#include "kelvra/text.h"

namespace {

void AppendEscape(std::string& text, unsigned unit) {
  static const char digits[] = "0123456789abcdef";
  text += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += digits[unit >> shift & 15];
}

// Invisible characters that break lines or change the direction of the surrounding text.
bool ShapesLines(unsigned unit) {
  return unit == 0x61C || unit == 0x200E || unit == 0x200F || (unit >= 0x2028 && unit <= 0x202E) ||
         (unit >= 0x2066 && unit <= 0x2069);
}

// The control or line-shaping character at the start of the text, and its octets; or none.
struct Control {
  unsigned unit = 0;
  size_t octets = 0;
};

Control LeadingControl(std::string_view text) {
  const auto octet = [text](size_t i) { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U; };
  if (octet(0) < 0x20 || octet(0) == 0x7F) return {octet(0), 1};
  if (octet(0) == 0xC2 && octet(1) >= 0x80 && octet(1) < 0xA0) return {octet(1), 2};
  if (octet(0) >> 5 == 6) {
    const unsigned unit = (octet(0) & 0x1F) << 6 | (octet(1) & 0x3F);
    if (ShapesLines(unit)) return {unit, 2};
  }
  if (octet(0) >> 4 == 14) {
    const unsigned unit = (octet(0) & 0x0F) << 12 | (octet(1) & 0x3F) << 6 | (octet(2) & 0x3F);
    if (ShapesLines(unit)) return {unit, 3};
  }
  return {};
}

// The characters that may be a control or start one, and those that JSON escapes.
constexpr auto kNeedsLook = [] {
  std::array<bool, 256> needs_look{};
  std::fill_n(needs_look.begin(), 0x20, true);
  for (const unsigned octet : {0x22U, 0x5CU, 0x7FU, 0xC2U, 0xD8U, 0xE2U}) needs_look[octet] = true;
  return needs_look;
}();

bool NeedsLook(char character) { return kNeedsLook[static_cast<unsigned char>(character)]; }

// Appends the text with its controls escaped. `appendShort` sees each candidate first and may append its own escape.
template <class AppendShort>
void AppendEscaped(std::string& escaped, std::string_view text, AppendShort appendShort) {
  while (!text.empty()) {
    // The octets before the next candidate.
    size_t plain = 0;
    while (plain < text.size() && !NeedsLook(text[plain])) ++plain;
    escaped += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) return;
    const Control control = LeadingControl(text);
    size_t done = 1;
    if (!appendShort(escaped, text.front())) {
      if (control.octets > 0) {
        AppendEscape(escaped, control.unit);
        done = control.octets;
      } else {
        escaped += text.front();
      }
    }
    text.remove_prefix(done);
  }
}

}  // namespace

void AppendLatin1(std::string& text, std::span<const uint8_t> characters) {
  text += kelvra::Latin1Text(characters.data(), static_cast<uint32_t>(characters.size()));
}

void AppendUtf16(std::string& text, std::span<const uint16_t> units) {
  text += kelvra::Utf16Text(units.data(), static_cast<uint32_t>(units.size()));
}

void AppendJsonString(std::string& json, std::string_view text) {
  static constexpr std::string_view kShort = "\"\\\b\f\n\r\t";
  static constexpr std::string_view kLetters = "\"\\bfnrt";
  json += '"';
  AppendEscaped(json, text, [](std::string& escaped, char character) {
    const size_t at = kShort.find(character);
    if (at == std::string_view::npos) return false;
    escaped += '\\';
    escaped += kLetters[at];
    return true;
  });
  json += '"';
}

void AppendPrintable(std::string& printable, std::string_view text) {
  AppendEscaped(printable, text, [](std::string&, char) { return false; });
}

std::string Printable(std::string_view text) {
  std::string printable;
  AppendPrintable(printable, text);
  return printable;
}
