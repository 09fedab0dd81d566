#include "calls/call_state.h"

#include <algorithm>

namespace {

// The number of confirmed requests of this name.
auto Confirmed(const Call& call, const char* request) {
  return std::count_if(call.transactions.begin(), call.transactions.end(), [request](const auto& transaction) {
    return transaction.request == request && !transaction.answer.empty() && !transaction.isRejected;
  });
}

bool HasEnded(const Call& call, EndKind kind) {
  return std::any_of(call.ends.begin(), call.ends.end(), [kind](const End& end) { return end.kind == kind; });
}

bool IsReleased(const Call& call) {
  if (call.legs.empty()) return HasEnded(call, EndKind::kRejected) || HasEnded(call, EndKind::kEndSession);
  return std::all_of(call.legs.begin(), call.legs.end(), [](const Leg& leg) { return leg.released.has_value(); });
}

}  // namespace

CallState StateOf(const Call& call) {
  if (call.subject == Subject::kOther) return CallState::kOver;
  const auto admissions = Confirmed(call, "admissionRequest");
  const auto disengagements = Confirmed(call, "disengageRequest");
  if (disengagements > 0 && disengagements >= admissions) return CallState::kOver;
  if (!IsReleased(call)) return CallState::kOpen;
  return admissions > disengagements ? CallState::kReleased : CallState::kOver;
}
