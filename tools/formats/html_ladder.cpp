#include "formats/html_ladder.h"

#include <initializer_list>

#include "calls/words.h"
#include "formats/html_text.h"
#include "text/concat.h"

namespace {

constexpr size_t kLeft = 170;
constexpr size_t kSpacing = 280;
constexpr size_t kTop = 30;
constexpr size_t kRowHeight = 32;
constexpr size_t kHead = 8;

void AppendLine(size_t x1, size_t y1, size_t x2, size_t y2, std::string_view attributes, std::string& html) {
  Append(html, {"<line x1=\"", std::to_string(x1), "\" y1=\"", std::to_string(y1), "\" x2=\"", std::to_string(x2),
                "\" y2=\"", std::to_string(y2), "\"", attributes, "/>"});
}

void AppendText(size_t x, size_t y, std::string_view anchor, std::initializer_list<std::string_view> parts,
                std::string& html) {
  Append(html, {"<text x=\"", std::to_string(x), "\" y=\"", std::to_string(y), "\" text-anchor=\"", anchor, "\">"});
  for (const std::string_view part : parts) AppendEscaped(html, part);
  html += "</text>";
}

void AppendHead(size_t x, size_t y, bool points_right, std::string& html) {
  const std::string back = std::to_string(points_right ? x - kHead : x + kHead);
  Append(html, {"<polygon points=\"", std::to_string(x), ",", std::to_string(y), " ", back, ",",
                std::to_string(y - kHead / 2), " ", back, ",", std::to_string(y + kHead / 2), "\"/>"});
}

// If both ends are in one column, only the label.
void AppendArrow(size_t source, size_t destination, size_t y, std::initializer_list<std::string_view> label,
                 std::string& html) {
  const size_t from = kLeft + source * kSpacing;
  const size_t to = kLeft + destination * kSpacing;
  if (from == to) return AppendText(from + kHead, y - 5, "start", label, html);
  AppendLine(from, y, to, y, "", html);
  AppendHead(to, y, from < to, html);
  AppendText((from + to) / 2, y - 5, "middle", label, html);
}

// Makes the whole row clickable.
void AppendGround(size_t y, size_t width, std::string& html) {
  Append(html, {"<rect y=\"", std::to_string(y - kRowHeight / 2), "\" width=\"", std::to_string(width), "\" height=\"",
                std::to_string(kRowHeight), "\" fill=\"transparent\"/>"});
}

}  // namespace

std::string MessageAnchor(const Call& call, const CallMessage& message) {
  return Concat({"m", std::to_string(call.order), "-", std::to_string(&message - call.messages.data())});
}

void AppendSvgLadder(const Call& call, const std::vector<LadderEvent>& events, std::string& html) {
  const LadderColumns columns(events);
  const size_t width = kLeft + columns.Names().size() * kSpacing;
  const size_t height = kTop + (events.size() + 1) * kRowHeight;
  Append(html, {"<div class=\"ladder\"><svg role=\"group\" aria-label=\"ladder diagram\" width=\"",
                std::to_string(width), "\" height=\"", std::to_string(height), "\">\n"});
  for (size_t i = 0; i < columns.Names().size(); ++i) {
    const size_t x = kLeft + i * kSpacing;
    AppendText(x, kTop - 12, "middle", {columns.Names()[i]}, html);
    AppendLine(x, kTop, x, height, " class=\"life\"", html);
    html += '\n';
  }
  size_t y = kTop;
  for (const LadderEvent& event : events) {
    y += kRowHeight;
    const bool is_message = event.message != nullptr;
    const char* kind = event.isMalformed || !is_message ? " class=\"fault\"" : "";
    if (is_message) {
      Append(html, {"<a href=\"#", MessageAnchor(call, *event.message), "\"", kind, ">"});
    } else {
      Append(html, {"<g", kind, ">"});
    }
    AppendGround(y, width, html);
    AppendText(kLeft - 80, y, "end", {Since(call, event.origin.microseconds)}, html);
    AppendArrow(columns.IndexOf(event.origin.source), columns.IndexOf(event.origin.destination), y,
                {event.isTunnelled ? "+ " : "", event.label, event.isMalformed ? " !" : ""}, html);
    html += is_message ? "</a>\n" : "</g>\n";
  }
  html += "</svg></div>\n";
}
