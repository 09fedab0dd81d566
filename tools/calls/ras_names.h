// Which RAS message answers which.
#pragma once

#include <cstdint>
#include <string_view>

enum class RasRole : uint8_t { kRequest, kConfirm, kReject, kInProgress, kIndication };

struct RasMeaning {
  RasRole role = RasRole::kIndication;
  std::string_view request;  // the request that it answers; empty for any request
};

// An infoRequestResponse counts as an answer, although it can also be unsolicited.
RasMeaning MeaningOf(std::string_view name);

inline bool IsAnswer(RasRole role) {
  return role == RasRole::kConfirm || role == RasRole::kReject || role == RasRole::kInProgress;
}

// "admission" of "admissionRequest"
std::string_view SubjectOfRequest(std::string_view request);
