#include "calls/words.h"

#include <algorithm>

#include "calls/ras_names.h"
#include "text/concat.h"
#include "text/hex.h"

namespace {

// The first side to end the call. The end of the H.245 session counts only if nothing else ended it.
const End* FirstEnd(const Call& call) {
  const auto comes_before = [](const End& a, const End& b) {
    const bool a_is_session = a.kind == EndKind::kEndSession;
    const bool b_is_session = b.kind == EndKind::kEndSession;
    return a_is_session != b_is_session ? b_is_session : a.time < b.time;
  };
  const auto first = std::min_element(call.ends.begin(), call.ends.end(), comes_before);
  return first == call.ends.end() ? nullptr : &*first;
}

// Rounds to milliseconds.
int64_t Rounded(int64_t microseconds) {
  constexpr int64_t half = 500;
  return (microseconds + (microseconds < 0 ? -half : half)) / 1000;
}

// ", sent 2 times"
std::string RepeatText(const RasTransaction& transaction) {
  return transaction.repeats == 0 ? std::string()
                                  : Concat({", sent ", std::to_string(transaction.repeats + 1), " times"});
}

void AddTransactionFaults(const RasTransaction& transaction, std::vector<std::string>& faults) {
  const std::string detail = transaction.detail.empty() ? "" : Concat({" (", transaction.detail, ")"});
  const std::string request = Concat({transaction.request, detail, RepeatText(transaction)});
  if (transaction.IsUnanswered()) {
    faults.push_back(Concat({request, ", not answered", transaction.inProgress ? " but by requestInProgress" : ""}));
  } else if (transaction.repeats > 0) {
    faults.push_back(request);
  }
  if (transaction.isRejected) faults.push_back(Concat({transaction.answer, ": ", transaction.answerDetail}));
}

// Only for a call with captured RTP.
void AddSilentMedia(const Call& call, std::vector<std::string>& faults) {
  const auto silent = [](const MediaAddress& media) { return media.packets.empty(); };
  if (std::all_of(call.media.begin(), call.media.end(), silent)) return;
  for (const MediaAddress& media : call.media) {
    if (media.isReceiver && silent(media)) faults.push_back(Concat({"no RTP packet to ", ToText(media.address)}));
  }
}

std::string CloseText(const Call& call, const Channel& channel) {
  const auto at = [&call](int64_t time) { return Since(call, time); };
  std::string text = Concat({channel.isFastStart ? "by fast start " : "opened ", at(channel.opened)});
  if (channel.acknowledged && !channel.isFastStart) text += Concat({", acknowledged ", at(*channel.acknowledged)});
  if (channel.rejected) text += Concat({", rejected ", at(*channel.rejected), ": ", channel.rejectReason});
  if (!channel.acknowledged && !channel.rejected) text += ", not answered";
  if (channel.closed) text += Concat({", closed ", at(*channel.closed)});
  return text;
}

std::string Endpoints(const char* label, const std::vector<Endpoint>& endpoints) {
  std::string text;
  for (const Endpoint& endpoint : endpoints) text += Concat({text.empty() ? label : ", ", ToText(endpoint)});
  return text;
}

std::string NotEnded(const Call& call) {
  const Leg* leg = call.FirstLeg();
  if (leg == nullptr) return "no call signalling seen, no end seen";
  return leg->connected ? "no end seen" : "no Connect seen, no end seen";
}

bool Has(const Party& party, const Endpoint& endpoint) {
  return std::any_of(party.addresses.begin(), party.addresses.end(),
                     [&endpoint](const Endpoint& known) { return SameHost(known, endpoint); });
}

}  // namespace

std::string Joined(const std::vector<std::string>& texts, const char* separator) {
  std::string joined;
  for (const std::string& text : texts) joined += Concat({joined.empty() ? "" : separator, text});
  return joined;
}

std::string Milliseconds(int64_t microseconds) { return std::to_string(Rounded(microseconds)) + " ms"; }

std::string Seconds(int64_t microseconds) {
  const int64_t milliseconds = Rounded(microseconds);
  std::string digits = std::to_string(std::abs(milliseconds));
  if (digits.size() < 4) digits.insert(0, 4 - digits.size(), '0');
  digits.insert(digits.size() - 3, 1, '.');
  return Concat({milliseconds < 0 ? "-" : "", digits, " s"});
}

std::string Since(const Call& call, int64_t time) {
  return Concat({time < call.first ? "" : "+", Seconds(time - call.first)});
}

std::string PartyText(const Party& party) {
  if (!party.aliases.empty()) return Joined(party.aliases, ", ");
  return party.addresses.empty() ? "-" : ToText(party.addresses.front());
}

std::string SideText(const Call& call, const Endpoint& endpoint) {
  const bool is_caller = Has(call.caller, endpoint);
  const bool is_called = Has(call.called, endpoint);
  if (is_caller != is_called) return is_caller ? "caller" : "called";
  return ToText(endpoint);
}

std::string EndText(const Call& call, const End& end) {
  const std::string by = SideText(call, end.by);
  switch (end.kind) {
    case EndKind::kRejected:
    case EndKind::kRefused: return end.why;
    case EndKind::kReleased: return Concat({"released by ", by, end.why.empty() ? "" : ": ", end.why});
    case EndKind::kDisengaged: return Concat({"disengaged by ", by, end.why.empty() ? "" : ": ", end.why});
    case EndKind::kEndSession: break;
  }
  return Concat({"H.245 session ended by ", by, ": ", end.why});
}

std::string EndText(const Call& call) {
  const End* end = FirstEnd(call);
  if (end != nullptr) return EndText(call, *end);
  if (call.subject == Subject::kCall) return NotEnded(call);
  return call.transactions.empty() ? std::string() : TransactionText(call.transactions.front());
}

std::vector<std::string> Faults(const Call& call) {
  std::vector<std::string> faults;
  for (const MalformedMessage& message : call.malformed) {
    faults.push_back(Concat({message.title, " (frame ", std::to_string(message.origin.frame), ") ", message.fault}));
  }
  for (const RasTransaction& transaction : call.transactions) AddTransactionFaults(transaction, faults);
  for (const Origin& refused : call.refusedConnections) {
    faults.push_back(Concat({"connection to ", ToText(refused.destination), " refused"}));
  }
  for (const Channel& channel : call.channels) {
    if (channel.rejected) {
      faults.push_back(Concat({"channel ", std::to_string(channel.number), " rejected: ", channel.rejectReason}));
    }
  }
  AddSilentMedia(call, faults);
  faults.insert(faults.end(), call.remarks.begin(), call.remarks.end());
  return faults;
}

std::string IdentifierText(const Call& call) {
  return call.identifiers.empty() ? std::string() : ToHex(call.identifiers.front());
}

std::string TransactionText(const RasTransaction& transaction) {
  const bool unseen = transaction.request.empty();
  std::string text = Concat({unseen ? "(request not seen)" : transaction.request, " ", ToText(transaction.requester),
                             " -> ", ToText(transaction.responder)});
  if (!transaction.detail.empty()) text += Concat({", ", transaction.detail});
  text += RepeatText(transaction);
  if (transaction.inProgress) text += ", requestInProgress";
  if (transaction.IsUnanswered()) return text + ": not answered";
  if (transaction.answer.empty()) return text;
  text += Concat({": ", transaction.answer});
  if (const auto time = transaction.ResponseTime()) text += Concat({" after ", Milliseconds(*time)});
  if (!transaction.answerDetail.empty()) text += Concat({", ", transaction.answerDetail});
  return text;
}

std::string ChannelText(const Call& call, const Channel& channel) {
  const std::string reverse = channel.reverseCodec.empty() ? "" : Concat({" and back ", channel.reverseCodec});
  return Concat({"channel ", std::to_string(channel.number), "  ", channel.codec, "  ", SideText(call, channel.from),
                 " -> ", SideText(call, channel.to), reverse, "  ", CloseText(call, channel),
                 Endpoints("  media ", channel.media), Endpoints("  control ", channel.control)});
}

std::string MediaText(const MediaAddress& media) {
  std::string counts;
  for (const auto& [type, count] : media.packets) {
    counts += Concat({counts.empty() ? "" : ", ", std::to_string(count), count == 1 ? " RTP packet" : " RTP packets",
                      " of type ", std::to_string(type)});
  }
  return Concat({ToText(media.address), ": ", counts.empty() ? "no RTP packet" : counts});
}
