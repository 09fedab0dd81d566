#include "calls/ras_story.h"

#include <algorithm>

#include "calls/fields.h"
#include "calls/ras_names.h"
#include "text/concat.h"

namespace {

std::string FirstReason(Node body, std::initializer_list<const char*> members) {
  for (const char* member : members) {
    std::string text = ReasonText(body[member]);
    if (!text.empty()) return text;
  }
  return {};
}

// A response is acknowledged only if it asks for that.
bool ExpectsAnswer(const DecodedMessage& message) {
  if (message.name == "infoRequestResponse") return message.Body()["needResponse"].Number().value_or(0) != 0;
  return MeaningOf(message.name).role == RasRole::kRequest;
}

// The requester is the caller unless answerCall is set.
void AddAdmissionParties(Call& call, const Origin& origin, Node body) {
  const bool answers = body["answerCall"].Number().value_or(0) != 0;
  AddAliases(body["srcInfo"], call.caller);
  AddAddress(ToEndpoint(body["srcCallSignalAddress"]), call.caller);
  AddAliases(body["destinationInfo"], call.called);
  AddAddress(ToEndpoint(body["destCallSignalAddress"]), call.called);
  AddOnce(answers ? call.called.addresses : call.caller.addresses, origin.source);
}

void AddRequesterParty(Call& call, const Origin& origin, Node body) {
  for (const char* aliases : {"endpointAlias", "terminalAlias", "sourceInfo", "endpointAliases"}) {
    AddAliases(body[aliases], call.caller);
  }
  AddAliases(body["destinationInfo"], call.called);
  AddOnce(call.caller.addresses, origin.source);
  for (const Node address : body["callSignalAddress"]) AddAddress(ToEndpoint(address), call.caller);
}

void AddParties(Call& call, const Origin& origin, const DecodedMessage& message) {
  if (message.name == "admissionRequest") return AddAdmissionParties(call, origin, message.Body());
  if (call.subject == Subject::kOther) AddRequesterParty(call, origin, message.Body());
}

std::string AnswerDetail(Node body) {
  std::string reason = FirstReason(body, {"rejectReason", "nakReason"});
  return reason.empty() ? ReasonText(body["callModel"]) : reason;
}

// An admission that is confirmed in the end was not rejected.
void ForgetRejections(Call& call, const Endpoint& requester) {
  std::erase_if(call.ends,
                [&requester](const End& end) { return end.kind == EndKind::kRejected && end.by == requester; });
}

// A disengage request that is rejected ended nothing.
void ForgetDisengagement(Call& call, const RasTransaction& request) {
  std::erase_if(call.ends, [&request](const End& end) {
    return end.kind == EndKind::kDisengaged && end.by == request.requester && end.time == request.requested;
  });
}

void AddOutcome(Call& call, const RasTransaction& transaction, Node body) {
  if (transaction.request == "disengageRequest" && transaction.isRejected) ForgetDisengagement(call, transaction);
  if (transaction.request == "admissionRequest" && !transaction.isRejected) {
    ForgetRejections(call, transaction.requester);
    AddAddress(ToEndpoint(body["destCallSignalAddress"]), call.called);
  }
  const bool ends = call.subject == Subject::kOther || transaction.request == "admissionRequest";
  if (!transaction.isRejected || !ends) return;
  const std::string_view subject = SubjectOfRequest(transaction.request);
  call.ends.push_back({EndKind::kRejected, transaction.answered, transaction.requester,
                       Concat({subject.empty() ? "request" : subject, " rejected: ", transaction.answerDetail})});
}

}  // namespace

uint16_t SequenceOf(const DecodedMessage& message) {
  return static_cast<uint16_t>(message.Body()["requestSeqNum"].Number().value_or(0));
}

RasTransaction* FindTransaction(Call& call, const Endpoint& requester, uint16_t sequence) {
  const auto found = std::find_if(call.transactions.rbegin(), call.transactions.rend(), [&](const auto& transaction) {
    return SameHost(transaction.requester, requester) && transaction.sequence == sequence;
  });
  return found == call.transactions.rend() ? nullptr : &*found;
}

void AddRasRequest(Call& call, const Origin& origin, const DecodedMessage& message) {
  RasTransaction transaction;
  transaction.request = message.name;
  transaction.requester = origin.source;
  transaction.responder = origin.destination;
  transaction.sequence = SequenceOf(message);
  transaction.requested = origin.microseconds;
  transaction.expectsAnswer = ExpectsAnswer(message);
  transaction.detail = FirstReason(message.Body(), {"disengageReason", "reason"});
  AddParties(call, origin, message);
  if (message.name == "disengageRequest") {
    call.ends.push_back({EndKind::kDisengaged, origin.microseconds, origin.source, transaction.detail});
  }
  call.transactions.push_back(std::move(transaction));
}

void AddRasAnswer(Call& call, const Origin& origin, const DecodedMessage& message) {
  const RasMeaning meaning = MeaningOf(message.name);
  RasTransaction* known = FindTransaction(call, origin.destination, SequenceOf(message));
  if (known == nullptr) {
    RasTransaction unseen;
    unseen.requester = origin.destination;
    unseen.responder = origin.source;
    unseen.sequence = SequenceOf(message);
    known = &call.transactions.emplace_back(std::move(unseen));
  }
  if (meaning.role == RasRole::kInProgress) {
    known->inProgress = true;
    return;
  }
  if (!known->answer.empty()) return;  // already answered: this answers a repeated request
  known->answer = message.name;
  known->answered = origin.microseconds;
  known->answerDetail = AnswerDetail(message.Body());
  known->isRejected = meaning.role == RasRole::kReject;
  AddOutcome(call, *known, message.Body());
}
