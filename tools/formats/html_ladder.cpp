#include "formats/html_ladder.h"

#include "calls/words.h"
#include "formats/html_text.h"
#include "text/concat.h"

namespace {

constexpr size_t kLeft = 170;
constexpr size_t kSpacing = 280;
constexpr size_t kTop = 30;
constexpr size_t kRowHeight = 32;
constexpr size_t kHead = 8;

size_t Place(size_t column) { return kLeft + column * kSpacing; }

// What stands before a label: an arrow, unless both ends are in one column. The row is at y = 0.
void AppendArrow(size_t source, size_t destination, std::string& html) {
  if (source == destination) {
    Append(html, {"<text class=\"within\" x=\"", std::to_string(Place(source) + kHead), "\" y=\"-5\">"});
    return;
  }
  const std::string from = std::to_string(Place(source));
  const std::string to = std::to_string(Place(destination));
  const std::string back =
      std::to_string(source < destination ? Place(destination) - kHead : Place(destination) + kHead);
  const std::string middle = std::to_string((Place(source) + Place(destination)) / 2);
  Append(html, {"<line x1=\"", from, "\" x2=\"", to, "\"/><polygon points=\"", to, ",0 ", back, ",-4 ", back,
                ",4\"/><text x=\"", middle, "\" y=\"-5\">"});
}

void AppendRow(const Call& call, const LadderEvent& event, const LadderColumns& columns, size_t y, std::string& html) {
  const bool is_message = event.message != nullptr;
  const char* kind = event.isMalformed || !is_message ? " class=\"fault\"" : "";
  const std::string link = is_message ? Concat({"a href=\"#", MessageAnchor(call, *event.message), "\""}) : "g";
  // The rectangle, of kRowHeight, makes the whole row clickable.
  Append(html, {"<", link, kind, " transform=\"translate(0,", std::to_string(y),
                ")\"><rect y=\"-16\" width=\"100%\" height=\"32\"/><text class=\"time\" x=\"90\">",
                Since(call, event.origin->microseconds), "</text>"});
  AppendArrow(columns.IndexOf(event.origin->source), columns.IndexOf(event.origin->destination), html);
  if (event.isTunnelled) html += "+ ";
  AppendEscaped(html, event.label);
  Append(html, {event.isMalformed ? " !" : "", "</text></", is_message ? "a" : "g", ">\n"});
}

}  // namespace

std::string MessageAnchor(const Call& call, const CallMessage& message) {
  return Concat({"m", std::to_string(call.order), "-", std::to_string(&message - call.messages.data())});
}

void AppendSvgLadder(const Call& call, const std::vector<LadderEvent>& events, std::string& html) {
  const LadderColumns columns(events);
  const size_t width = Place(columns.Names().size());
  const size_t height = kTop + (events.size() + 1) * kRowHeight;
  Append(html, {"<div class=\"ladder\"><svg role=\"group\" aria-label=\"ladder diagram\" width=\"",
                std::to_string(width), "\" height=\"", std::to_string(height), "\">\n"});
  const std::string top = std::to_string(kTop);
  const std::string bottom = std::to_string(height);
  for (size_t i = 0; i < columns.Names().size(); ++i) {
    const std::string x = std::to_string(Place(i));
    Append(html, {"<text x=\"", x, "\" y=\"18\">", columns.Names()[i], "</text><line class=\"life\" x1=\"", x,
                  "\" y1=\"", top, "\" x2=\"", x, "\" y2=\"", bottom, "\"/>\n"});
  }
  size_t y = kTop;
  for (const LadderEvent& event : events) AppendRow(call, event, columns, y += kRowHeight, html);
  html += "</svg></div>\n";
}
