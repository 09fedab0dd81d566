#include "formats/html_ladder.h"

#include <algorithm>

#include "calls/words.h"
#include "formats/html_text.h"
#include "text/concat.h"

namespace {

constexpr size_t kLeft = 170;
constexpr size_t kSpacing = 280;
constexpr size_t kTop = 30;
constexpr size_t kRowHeight = 32;
constexpr size_t kHead = 8;

std::string Line(size_t x1, size_t y1, size_t x2, size_t y2, std::string_view attributes) {
  return Concat({"<line x1=\"", std::to_string(x1), "\" y1=\"", std::to_string(y1), "\" x2=\"", std::to_string(x2),
                 "\" y2=\"", std::to_string(y2), "\"", attributes, "/>"});
}

std::string Text(size_t x, size_t y, std::string_view anchor, std::string_view text) {
  return Concat({"<text x=\"", std::to_string(x), "\" y=\"", std::to_string(y), "\" text-anchor=\"", anchor, "\">",
                 Escaped(text), "</text>"});
}

std::string Head(size_t x, size_t y, bool points_right) {
  const size_t back = points_right ? x - kHead : x + kHead;
  const std::string from = std::to_string(back);
  return Concat({"<polygon points=\"", std::to_string(x), ",", std::to_string(y), " ", from, ",",
                 std::to_string(y - kHead / 2), " ", from, ",", std::to_string(y + kHead / 2), "\"/>"});
}

// If both ends are in one column, only the label.
std::string Arrow(size_t source, size_t destination, size_t y, const std::string& label) {
  const size_t from = kLeft + source * kSpacing;
  const size_t to = kLeft + destination * kSpacing;
  if (from == to) return Text(from + kHead, y - 5, "start", label);
  return Concat({Line(from, y, to, y, ""), Head(to, y, from < to), Text((from + to) / 2, y - 5, "middle", label)});
}

// Makes the whole row clickable.
std::string Ground(size_t y, size_t width) {
  return Concat({"<rect y=\"", std::to_string(y - kRowHeight / 2), "\" width=\"", std::to_string(width), "\" height=\"",
                 std::to_string(kRowHeight), "\" fill=\"transparent\"/>"});
}

size_t IndexOf(const Call& call, const Message* message) { return static_cast<size_t>(message - call.messages.data()); }

}  // namespace

std::string MessageAnchor(const Call& call, size_t index) {
  return Concat({"m", std::to_string(call.order), "-", std::to_string(index)});
}

void AppendSvgLadder(const Call& call, const std::vector<LadderEvent>& events, std::string& html) {
  const LadderColumns columns(events);
  const size_t width = kLeft + columns.Names().size() * kSpacing;
  const size_t height = kTop + (events.size() + 1) * kRowHeight;
  html += Concat({"<div class=\"ladder\"><svg role=\"group\" aria-label=\"ladder diagram\" width=\"",
                  std::to_string(width), "\" height=\"", std::to_string(height), "\">\n"});
  for (size_t i = 0; i < columns.Names().size(); ++i) {
    const size_t x = kLeft + i * kSpacing;
    html += Concat({Text(x, kTop - 12, "middle", columns.Names()[i]), Line(x, kTop, x, height, " class=\"life\""), "\n"});
  }
  size_t y = kTop;
  for (const LadderEvent& event : events) {
    y += kRowHeight;
    const bool is_faulty = event.isMalformed || event.message == nullptr;
    const char* kind = is_faulty ? " class=\"fault\"" : "";
    const std::string label = Concat({event.isTunnelled ? "+ " : "", event.label, event.isMalformed ? " !" : ""});
    const std::string drawing =
        Concat({Ground(y, width), Text(kLeft - 80, y, "end", Since(call, event.origin.microseconds)),
                Arrow(columns.IndexOf(event.origin.source), columns.IndexOf(event.origin.destination), y, label)});
    if (event.message == nullptr) {
      html += Concat({"<g", kind, ">", drawing, "</g>\n"});
    } else {
      html += Concat(
          {"<a href=\"#", MessageAnchor(call, IndexOf(call, event.message)), "\"", kind, ">", drawing, "</a>\n"});
    }
  }
  html += "</svg></div>\n";
}
