#include "decode/family_text.h"

#include <algorithm>
#include <array>
#include <utility>

#include "decode/json_path.h"
#include "text/hex.h"

namespace {

// Q.931, table 4-2.
constexpr std::array<std::pair<unsigned, const char*>, 28> kMessageTypes{{
    {0x00, "Escape"},
    {0x01, "Alerting"},
    {0x02, "Call Proceeding"},
    {0x03, "Progress"},
    {0x05, "Setup"},
    {0x07, "Connect"},
    {0x0D, "Setup Acknowledge"},
    {0x0F, "Connect Acknowledge"},
    {0x20, "User Information"},
    {0x21, "Suspend Reject"},
    {0x22, "Resume Reject"},
    {0x25, "Suspend"},
    {0x26, "Resume"},
    {0x2D, "Suspend Acknowledge"},
    {0x2E, "Resume Acknowledge"},
    {0x45, "Disconnect"},
    {0x46, "Restart"},
    {0x4D, "Release"},
    {0x4E, "Restart Acknowledge"},
    {0x5A, "Release Complete"},
    {0x60, "Segment"},
    {0x62, "Facility"},
    {0x6E, "Notify"},
    {0x75, "Status Enquiry"},
    {0x79, "Congestion Control"},
    {0x7B, "Information"},
    {0x7D, "Status"},
    {0x64, "Register"},
}};

// What a function that refused a message can have meant by it.
std::string Refusal(Family family, const std::string& name) {
  if (family == Family::kH245) return "octets left over, or cut short";
  const bool versioned = name == "registrationRequest" || name == "registrationConfirm";
  return family == Family::kRas && versioned ? "malformed or of an unknown version" : "malformed";
}

}  // namespace

const char* FamilyLabel(Family family) {
  switch (family) {
    case Family::kRas: return "RAS";
    case Family::kQ931: return "Q.931";
    case Family::kH245: break;
  }
  return "H.245";
}

const char* FamilyKeyword(Family family) {
  switch (family) {
    case Family::kRas: return "ras";
    case Family::kQ931: return "q931";
    case Family::kH245: break;
  }
  return "h245";
}

std::string MessageTypeName(unsigned type) {
  const auto known = std::find_if(kMessageTypes.begin(), kMessageTypes.end(),
                                  [type](const auto& entry) { return entry.first == type; });
  if (known != kMessageTypes.end()) return known->second;
  const std::array octet{static_cast<uint8_t>(type)};
  return "Type 0x" + ToHex(octet);
}

std::string MessageTitle(Family family, const Decoded& decoded) {
  std::string name = decoded.name.empty() ? "(nothing decoded)" : decoded.name;
  const Json& type = Find(decoded.message, {"messageType"});
  if (family != Family::kQ931 || !type.is_number()) return name;
  if (!decoded.ok && type == 0) return name;  // a frame without a message type
  const std::string type_name = MessageTypeName(type.get<unsigned>());
  return decoded.name.empty() ? type_name : type_name + " (" + name + ")";
}

std::string Fault(Family family, const Decoded& decoded) {
  if (decoded.ok) return {};
  if (!decoded.result) return "too long to be decoded";
  return Refusal(family, decoded.name) + ", result " + std::to_string(*decoded.result);
}
