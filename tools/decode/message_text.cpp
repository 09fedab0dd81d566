#include "decode/message_text.h"

#include "text/names.h"

namespace {

std::string TextOf(const MessageFault& fault) {
  if (fault.verdict == Verdict::kVersionRefused && fault.resumed) return fault.cause;
  std::string text = "octet " + std::to_string(fault.bit / 8) + ": ";
  if (!fault.member.empty()) text += fault.member + ": ";
  text += fault.cause;
  if (fault.resumed) text += "; resumed after its open type";
  return text;
}

// Why the library refuses a complete message.
std::string RefusalText(const DecodedMessage& message) {
  if (message.family != Family::kRas) return "complete, but the library refuses it";
  if (message.spareOctetsRequired == 0) return "complete, but the library refuses it, whatever its spare octets";
  return "complete, but the library refuses it with fewer than " + std::to_string(message.spareOctetsRequired) +
         " spare octets";
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

std::string MessageTitle(const DecodedMessage& message) {
  std::string name(message.name.empty() ? "(nothing decoded)" : message.name);
  if (message.family != Family::kQ931) return name;
  const auto type = message.Root()["messageType"].Number();
  if (!type) return name;
  const std::string typeName = MessageTypeName(static_cast<unsigned>(*type));
  return message.name.empty() ? typeName : typeName + " (" + name + ")";
}

std::string FaultText(const DecodedMessage& message) {
  if (message.IsComplete()) return message.ok ? std::string() : RefusalText(message);
  std::string text;
  for (const MessageFault& fault : message.faults) {
    if (!text.empty()) text += "; ";
    text += TextOf(fault);
  }
  return text;
}
