#include "calls/ras_names.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// H.225.0 7.
constexpr std::array<std::pair<std::string_view, RasMeaning>, 33> kMeanings{{
    {"gatekeeperRequest", {RasRole::kRequest, {}}},
    {"gatekeeperConfirm", {RasRole::kConfirm, "gatekeeperRequest"}},
    {"gatekeeperReject", {RasRole::kReject, "gatekeeperRequest"}},
    {"registrationRequest", {RasRole::kRequest, {}}},
    {"registrationConfirm", {RasRole::kConfirm, "registrationRequest"}},
    {"registrationReject", {RasRole::kReject, "registrationRequest"}},
    {"unregistrationRequest", {RasRole::kRequest, {}}},
    {"unregistrationConfirm", {RasRole::kConfirm, "unregistrationRequest"}},
    {"unregistrationReject", {RasRole::kReject, "unregistrationRequest"}},
    {"admissionRequest", {RasRole::kRequest, {}}},
    {"admissionConfirm", {RasRole::kConfirm, "admissionRequest"}},
    {"admissionConfirmSequence", {RasRole::kConfirm, "admissionRequest"}},
    {"admissionReject", {RasRole::kReject, "admissionRequest"}},
    {"bandwidthRequest", {RasRole::kRequest, {}}},
    {"bandwidthConfirm", {RasRole::kConfirm, "bandwidthRequest"}},
    {"bandwidthReject", {RasRole::kReject, "bandwidthRequest"}},
    {"disengageRequest", {RasRole::kRequest, {}}},
    {"disengageConfirm", {RasRole::kConfirm, "disengageRequest"}},
    {"disengageReject", {RasRole::kReject, "disengageRequest"}},
    {"locationRequest", {RasRole::kRequest, {}}},
    {"locationConfirm", {RasRole::kConfirm, "locationRequest"}},
    {"locationReject", {RasRole::kReject, "locationRequest"}},
    {"infoRequest", {RasRole::kRequest, {}}},
    {"infoRequestResponse", {RasRole::kConfirm, "infoRequest"}},
    {"infoRequestAck", {RasRole::kConfirm, "infoRequestResponse"}},
    {"infoRequestNak", {RasRole::kReject, "infoRequestResponse"}},
    {"resourcesAvailableIndicate", {RasRole::kRequest, {}}},
    {"resourcesAvailableConfirm", {RasRole::kConfirm, "resourcesAvailableIndicate"}},
    {"serviceControlIndication", {RasRole::kRequest, {}}},
    {"serviceControlResponse", {RasRole::kConfirm, "serviceControlIndication"}},
    {"unknownMessageResponse", {RasRole::kReject, {}}},
    {"requestInProgress", {RasRole::kInProgress, {}}},
    {"nonStandardMessage", {RasRole::kIndication, {}}},
}};

}  // namespace

RasMeaning MeaningOf(std::string_view name) {
  const auto known =
      std::find_if(kMeanings.begin(), kMeanings.end(), [name](const auto& entry) { return entry.first == name; });
  return known == kMeanings.end() ? RasMeaning{} : known->second;
}

std::string_view SubjectOfRequest(std::string_view request) {
  for (const std::string_view ending : {"Request", "Indicate", "Indication", "Response"}) {
    if (request.ends_with(ending)) return request.substr(0, request.size() - ending.size());
  }
  return request;
}
