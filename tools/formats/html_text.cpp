#include "formats/html_text.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "text/utf8.h"

namespace {

constexpr auto kEntities = [] {
  std::array<std::string_view, 256> entities;
  entities['&'] = "&amp;";
  entities['<'] = "&lt;";
  entities['>'] = "&gt;";
  return entities;
}();

// Empty if the character stands for itself.
std::string_view EntityOf(char character) { return kEntities[static_cast<uint8_t>(character)]; }

}  // namespace

void AppendMarkup(std::string& html, std::string_view text) {
  const auto is_special = [](char character) { return !EntityOf(character).empty(); };
  for (auto next = text.begin(); next != text.end();) {
    const auto special = std::find_if(next, text.end(), is_special);
    html.append(next, special);
    if (special == text.end()) return;
    html += EntityOf(*special);
    next = special + 1;
  }
}

void AppendEscaped(std::string& html, std::string_view text) { AppendMarkup(html, Printable(text)); }

std::string Escaped(std::string_view text) {
  std::string escaped;
  AppendEscaped(escaped, text);
  return escaped;
}
