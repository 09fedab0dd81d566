// One page with every call, its ladder and its messages.
#include "calls/ladder_events.h"
#include "calls/sections.h"
#include "calls/words.h"
#include "formats/calls.h"
#include "formats/console_text.h"
#include "formats/html_ladder.h"
#include "formats/html_page.h"
#include "formats/html_text.h"
#include "text/concat.h"
#include "text/hex.h"

namespace {

class Html : public CallFormatter {
 public:
  Html(const Filter& filter, TimeZone zone) : filter_(filter), zone_(zone), trees_(MakeTree(TreeOptions(zone))) {}

  bool NeedsMessages() const override { return true; }
  void Begin(std::string& html) override { html += kPageBegin; }
  void Finish(std::string& html) override { html += kPageEnd; }

  void Print(const Call& call, Output& output) override {
    std::string& html = output.Text();
    const auto faults = Faults(call);
    Append(html,
           {"<tbody", faults.empty() ? "" : " data-faulty", call.subject == Subject::kOther ? " data-outside" : "",
            " data-identifier=\"", IdentifierAttribute(call), "\">\n"});
    AppendRow(call, faults, html);
    Append(html, {"<tr id=\"", DetailId(call), "\" hidden><td colspan=\"8\">\n"});
    for (const Section& section : SectionsOf(call, zone_)) AppendSection(section, html);
    const auto events = LadderEventsOf(call, filter_);
    AppendSvgLadder(call, events, html);
    html += "<h2>messages</h2>\n";
    for (const LadderEvent& event : events) {
      if (event.message == nullptr || event.isTunnelled) continue;
      AppendMessage(call, event, html);
      output.EndPart();
    }
    html += "</td></tr>\n</tbody>\n";
  }

 private:
  // Relative times would depend on the order of the calls.
  static FormatOptions TreeOptions(TimeZone zone) {
    return {.times = zone == TimeZone::kLocal ? TimeStyle::kLocal : TimeStyle::kUtc, .showsOctets = true};
  }

  static std::string DetailId(const Call& call) { return Concat({"call", std::to_string(call.order)}); }

  static std::string IdentifierAttribute(const Call& call) {
    std::string text = IdentifierText(call);
    for (char& digit : text) {
      if (digit >= 'A') digit = static_cast<char>(digit - 'A' + 'a');
    }
    return text;
  }

  static std::string Cell(const std::string& text) { return Concat({"<td>", Escaped(text), "</td>"}); }

  // A cell with its sort key, which is below 0 if there is no time.
  static std::string TimeCell(const std::optional<int64_t>& span) {
    return Concat({"<td class=\"number\" data-value=\"", std::to_string(span.value_or(-1)), "\">",
                   span ? Seconds(*span) : "-", "</td>"});
  }

  void AppendRow(const Call& call, const std::vector<std::string>& faults, std::string& html) const {
    const Leg* leg = call.FirstLeg();
    const bool is_call = call.subject == Subject::kCall;
    Append(html, {"<tr class=\"row\"><td data-value=\"", std::to_string(call.number),
                  "\"><button class=\"open\" aria-expanded=\"false\" aria-controls=\"", DetailId(call), "\">",
                  is_call ? std::to_string(call.number) : "RAS", "</button></td>"});
    Append(html, {Cell(IsoTime(call.first, zone_)), Cell(PartyText(call.caller)), Cell(PartyText(call.called))});
    html += TimeCell(leg != nullptr ? leg->SetupTime() : std::nullopt);
    html += TimeCell(leg != nullptr ? leg->Duration() : std::nullopt);
    Append(html, {Cell(EndText(call)), "<td class=\"fault\">", Escaped(Joined(faults, "; ")), "</td></tr>\n"});
  }

  static void AppendSection(const Section& section, std::string& html) {
    const char* kind = section.title == "faults" ? " class=\"fault\"" : "";
    Append(html, {"<h2>", section.title, "</h2>\n<ul", kind, ">\n"});
    for (const std::string& line : section.lines) Append(html, {"<li>", Escaped(line), "</li>\n"});
    html += "</ul>\n";
  }

  void AppendMessage(const Call& call, const LadderEvent& event, std::string& html) {
    Append(html, {"<details id=\"", MessageAnchor(call, *event.message), "\"><summary",
                  event.isMalformed ? " class=\"fault\"" : "", ">", Since(call, event.origin->microseconds), "  ",
                  ToText(event.origin->source), " -> ", ToText(event.origin->destination), "  "});
    AppendEscaped(html, event.label);
    if (!event.fault.empty()) html += "  ! ";
    AppendEscaped(html, event.fault);
    html += "</summary><pre>";
    AppendTree(event.message->message, html);
    html += "</pre></details>\n";
  }

  void AppendTree(const Message& message, std::string& html) {
    tree_.clear();
    trees_->Print(message, DecodeMessage(message.family, message.octets), tree_);
    AppendMarkup(html, tree_);
  }

  const Filter& filter_;
  TimeZone zone_;
  std::unique_ptr<Formatter> trees_;
  std::string tree_;
};

}  // namespace

std::unique_ptr<CallFormatter> MakeHtml(const Filter& filter, const FormatOptions& options) {
  return std::make_unique<Html>(filter, ZoneOf(options.times));
}
