#include "formats/html_text.h"

#include <algorithm>

#include "text/utf8.h"

namespace {

std::string_view EntityOf(char character) {
  switch (character) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    default: return "&#39;";
  }
}

}  // namespace

void AppendMarkupEscaped(std::string& html, std::string_view text) {
  while (true) {
    const size_t plain = std::min(text.find_first_of("&<>\"'"), text.size());
    html += text.substr(0, plain);
    if (plain == text.size()) return;
    html += EntityOf(text[plain]);
    text.remove_prefix(plain + 1);
  }
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  AppendMarkupEscaped(escaped, Printable(text));
  return escaped;
}
