#include "formats/html_text.h"

#include "text/utf8.h"

namespace {

// Empty if the character stands for itself.
std::string_view EntityOf(char character) {
  switch (character) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    case '\'': return "&#39;";
    default: return {};
  }
}

}  // namespace

void AppendMarkupEscaped(std::string& html, std::string_view text) {
  size_t appended = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const std::string_view entity = EntityOf(text[i]);
    if (entity.empty()) continue;
    html += text.substr(appended, i - appended);
    html += entity;
    appended = i + 1;
  }
  html += text.substr(appended);
}

std::string Escaped(std::string_view text) {
  std::string escaped;
  AppendMarkupEscaped(escaped, Printable(text));
  return escaped;
}
