#include "formats/html_text.h"

#include "text/utf8.h"

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char character : Printable(text)) {
    switch (character) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      case '\'': escaped += "&#39;"; break;
      default: escaped += character;
    }
  }
  return escaped;
}
