#include "calls/statistics.h"

#include <algorithm>

#include "decode/message_text.h"

namespace {

void AddTime(Responses& responses, int64_t time) {
  responses.least = responses.answers == 0 ? time : std::min(responses.least, time);
  responses.most = std::max(responses.most, time);
  responses.total += time;
  ++responses.answers;
}

}  // namespace

void Statistics::Add(const DecodedMessage& message) {
  ++messages;
  ++byKind[message.family][MessageTitle(message)];
  for (const MessageFault& fault : message.faults) ++faults[fault.cause];
  for (const DecodedMessage& tunnelled : message.tunnelled) {
    ++byKind[Family::kH245][MessageTitle(tunnelled) + ", tunnelled"];
    for (const MessageFault& fault : tunnelled.faults) ++faults[fault.cause];
  }
}

void Statistics::Add(const Call& call) {
  if (call.subject == Subject::kCall) ++calls;
  for (const RasTransaction& transaction : call.transactions) {
    if (transaction.request.empty()) continue;
    Responses& known = responses[transaction.request];
    ++known.requests;
    known.repeats += transaction.repeats;
    if (transaction.IsUnanswered()) ++known.unanswered;
    if (transaction.isRejected) ++known.rejected;
    if (const auto time = transaction.ResponseTime()) AddTime(known, *time);
  }
}
