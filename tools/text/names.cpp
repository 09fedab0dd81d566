#include "text/names.h"

#include <array>
#include <span>

#include "text/hex.h"

namespace {

struct Name {
  unsigned number;
  std::string_view name;
};

// Q.931, table 4-2.
constexpr std::array<Name, 28> kMessageTypes{{
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
    {0x64, "Register"},
    {0x6E, "Notify"},
    {0x75, "Status Enquiry"},
    {0x79, "Congestion Control"},
    {0x7B, "Information"},
    {0x7D, "Status"},
}};

// Q.850, table 1.
constexpr std::array<Name, 69> kCauses{{
    {1, "unallocated number"},
    {2, "no route to transit network"},
    {3, "no route to destination"},
    {4, "send special information tone"},
    {5, "misdialled trunk prefix"},
    {6, "channel unacceptable"},
    {7, "call awarded in an established channel"},
    {8, "preemption"},
    {9, "preemption, circuit reserved for reuse"},
    {14, "excess digits received, call is proceeding"},
    {16, "normal call clearing"},
    {17, "user busy"},
    {18, "no user responding"},
    {19, "no answer from user"},
    {20, "subscriber absent"},
    {21, "call rejected"},
    {22, "number changed"},
    {23, "redirection to new destination"},
    {25, "exchange routing error"},
    {26, "non-selected user clearing"},
    {27, "destination out of order"},
    {28, "invalid number format"},
    {29, "facility rejected"},
    {30, "response to status enquiry"},
    {31, "normal, unspecified"},
    {34, "no circuit/channel available"},
    {38, "network out of order"},
    {39, "permanent connection out of service"},
    {40, "permanent connection operational"},
    {41, "temporary failure"},
    {42, "switching equipment congestion"},
    {43, "access information discarded"},
    {44, "requested circuit/channel not available"},
    {46, "precedence call blocked"},
    {47, "resource unavailable, unspecified"},
    {49, "quality of service not available"},
    {50, "requested facility not subscribed"},
    {53, "outgoing calls barred within closed user group"},
    {55, "incoming calls barred within closed user group"},
    {57, "bearer capability not authorized"},
    {58, "bearer capability not presently available"},
    {62, "inconsistent access information and subscriber class"},
    {63, "service or option not available, unspecified"},
    {65, "bearer capability not implemented"},
    {66, "channel type not implemented"},
    {69, "requested facility not implemented"},
    {70, "only restricted digital information bearer capability is available"},
    {79, "service or option not implemented, unspecified"},
    {81, "invalid call reference value"},
    {82, "identified channel does not exist"},
    {83, "suspended call exists, but this call identity does not"},
    {84, "call identity in use"},
    {85, "no call suspended"},
    {86, "call having the requested call identity has been cleared"},
    {87, "user not member of closed user group"},
    {88, "incompatible destination"},
    {90, "non-existent closed user group"},
    {91, "invalid transit network selection"},
    {95, "invalid message, unspecified"},
    {96, "mandatory information element is missing"},
    {97, "message type non-existent or not implemented"},
    {98, "message not compatible with call state, or not implemented"},
    {99, "information element non-existent or not implemented"},
    {100, "invalid information element contents"},
    {101, "message not compatible with call state"},
    {102, "recovery on timer expiry"},
    {103, "parameter non-existent or not implemented, passed on"},
    {111, "protocol error, unspecified"},
    {127, "interworking, unspecified"},
}};

std::string_view Find(std::span<const Name> names, unsigned number) {
  for (const Name& name : names) {
    if (name.number == number) return name.name;
  }
  return {};
}

}  // namespace

std::string MessageTypeName(unsigned type) {
  const std::string_view name = Find(kMessageTypes, type);
  if (!name.empty()) return std::string(name);
  const std::array octet{static_cast<uint8_t>(type)};
  return "Type 0x" + ToHex(octet);
}

std::string_view CauseName(unsigned cause) { return Find(kCauses, cause); }
