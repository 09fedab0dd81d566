#include "formats/html_text.h"

#include <algorithm>

#include "text/utf8.h"

// Finding one character at a time is many times faster than looking at each.
void AppendMarkup(std::string& html, std::string_view text) {
  size_t ampersand = text.find('&');
  size_t bracket = text.find('<');
  for (size_t done = 0;;) {
    const size_t special = std::min(ampersand, bracket);
    html += text.substr(done, special - done);
    if (special == std::string_view::npos) return;
    done = special + 1;
    if (special == ampersand) {
      html += "&amp;";
      ampersand = text.find('&', done);
    } else {
      html += "&lt;";
      bracket = text.find('<', done);
    }
  }
}

void AppendEscaped(std::string& html, std::string_view text) { AppendMarkup(html, Printable(text)); }

std::string Escaped(std::string_view text) {
  std::string escaped;
  AppendEscaped(escaped, text);
  return escaped;
}
