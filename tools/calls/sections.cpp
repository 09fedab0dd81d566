#include "calls/sections.h"

#include <algorithm>

#include "calls/words.h"
#include "text/concat.h"
#include "text/hex.h"
#include "text/time_text.h"

namespace {

std::string Direction(const Origin& origin) {
  return Concat({ToText(origin.source), " -> ", ToText(origin.destination)});
}

std::string PartyLine(const Party& party) {
  std::string text = Joined(party.aliases, ", ");
  for (const Endpoint& address : party.addresses) text += Concat({text.empty() ? "" : "  ", ToText(address)});
  return text;
}

std::vector<std::string> Identifiers(const Call& call) {
  std::vector<std::string> lines;
  if (!call.identifiers.empty()) lines.push_back(Concat({"call ", ToHex(call.identifiers.front())}));
  if (call.conference) lines.push_back(Concat({"conference ", ToHex(*call.conference)}));
  for (const Leg& leg : call.legs)
    lines.push_back(Concat({"reference ", std::to_string(leg.reference), " of ", ToText(leg.caller)}));
  return lines;
}

std::vector<std::string> Parties(const Call& call) {
  std::vector<std::string> lines;
  const std::string caller = PartyLine(call.caller);
  const std::string called = PartyLine(call.called);
  const bool is_call = call.subject == Subject::kCall;
  if (!caller.empty()) lines.push_back(Concat({is_call ? "from " : "requester ", caller}));
  if (!called.empty()) lines.push_back(Concat({"to ", called}));
  return lines;
}

std::string LegTimes(const Call& call, const Leg& leg) {
  std::string text = Concat({ToText(leg.caller), " -> ", ToText(leg.called), ": "});
  text += leg.setup ? Concat({"Setup ", Since(call, *leg.setup)}) : "Setup not seen";
  if (const auto time = leg.AlertingTime()) text += Concat({", Alerting after ", Milliseconds(*time)});
  if (const auto time = leg.SetupTime()) text += Concat({", Connect after ", Milliseconds(*time)});
  if (!leg.connected) text += ", not connected";
  if (const auto time = leg.Duration()) text += Concat({", lasted ", Seconds(*time)});
  if (!leg.connected && leg.setup && leg.released) {
    text += Concat({", released after ", Milliseconds(*leg.released - *leg.setup)});
  }
  return text;
}

std::vector<std::string> Times(const Call& call, TimeZone zone) {
  std::vector<std::string> lines{Concat({"start ", IsoTime(call.first, zone)})};
  for (const Leg& leg : call.legs) lines.push_back(LegTimes(call, leg));
  return lines;
}

std::vector<std::string> Ends(const Call& call) {
  std::vector<End> ends = call.ends;  // in the order of the capture, which can differ from that of the times
  std::stable_sort(ends.begin(), ends.end(), [](const End& a, const End& b) { return a.time < b.time; });
  std::vector<std::string> lines;
  lines.reserve(ends.size());
  for (const End& end : ends) lines.push_back(Concat({Since(call, end.time), "  ", EndText(call, end)}));
  if (lines.empty() && call.subject == Subject::kCall) lines.push_back(EndText(call));
  return lines;
}

std::vector<std::string> Ras(const Call& call) {
  std::vector<std::string> lines;
  for (const RasTransaction& transaction : call.transactions) {
    const int64_t time = transaction.request.empty() ? transaction.answered : transaction.requested;
    lines.push_back(Concat({Since(call, time), "  ", TransactionText(transaction)}));
  }
  return lines;
}

std::vector<std::string> Signalling(const Call& call) {
  std::vector<std::string> lines;
  for (const Step& step : call.signalling) {
    lines.push_back(Concat({Since(call, step.origin.microseconds), "  ", Direction(step.origin), "  ", step.text}));
  }
  for (const Origin& refused : call.refusedConnections) {
    lines.push_back(Concat({Since(call, refused.microseconds), "  ", Direction(refused), "  connection refused"}));
  }
  return lines;
}

std::vector<std::string> FastStartLines(const Call& call) {
  const FastStart& fast_start = call.fastStart;
  std::vector<std::string> lines;
  if (!fast_start.proposed.empty()) lines.push_back(Concat({"proposed ", Joined(fast_start.proposed, ", ")}));
  if (!fast_start.accepted.empty()) {
    lines.push_back(Concat({"accepted in ", fast_start.acceptedIn, ": ", Joined(fast_start.accepted, ", ")}));
  }
  if (!fast_start.refusedIn.empty()) lines.push_back(Concat({"refused in ", fast_start.refusedIn}));
  if (!lines.empty() && fast_start.accepted.empty() && fast_start.refusedIn.empty()) lines.emplace_back("not answered");
  return lines;
}

std::vector<std::string> CapabilityLines(const Call& call) {
  std::vector<std::string> lines;
  for (const Capabilities& capabilities : call.capabilities) {
    lines.push_back(Concat({SideText(call, capabilities.sender), ": ", capabilities.text}));
  }
  return lines;
}

std::vector<std::string> Channels(const Call& call) {
  std::vector<std::string> lines;
  for (const Channel& channel : call.channels) lines.push_back(ChannelText(call, channel));
  return lines;
}

std::vector<std::string> Media(const Call& call) {
  std::vector<std::string> lines;
  for (const MediaAddress& media : call.media) lines.push_back(MediaText(media));
  return lines;
}

}  // namespace

std::string Heading(const Call& call) {
  if (call.subject == Subject::kCall) {
    return Concat(
        {"call ", std::to_string(call.number), "  from ", PartyText(call.caller), " to ", PartyText(call.called)});
  }
  return Concat({"outside calls  ", PartyText(call.caller), "  ", EndText(call)});
}

std::vector<Section> SectionsOf(const Call& call, TimeZone zone) {
  std::vector<Section> sections{{"identifiers", Identifiers(call)},
                                {"parties", Parties(call)},
                                {"times", Times(call, zone)},
                                {"end", Ends(call)},
                                {"RAS", Ras(call)},
                                {"call signalling", Signalling(call)},
                                {"fast start", FastStartLines(call)},
                                {"capabilities", CapabilityLines(call)},
                                {"channels", Channels(call)},
                                {"media", Media(call)},
                                {"faults", Faults(call)}};
  std::erase_if(sections, [](const Section& section) { return section.lines.empty(); });
  return sections;
}
