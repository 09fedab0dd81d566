// Short messages, for tests of the exports.
#pragma once

#include <string_view>

#include "message_text.h"

namespace kelvra::test {

// gatekeeperReject 33143, protocol 0.0.8.2250.0.4, invalidRevision; ends inside its last octet.
inline constexpr std::string_view kReject = "08008176060008914a000440";
// gatekeeperConfirm 178, rasAddress 129.154.126.138 port 65535; fills its last octet.
inline constexpr std::string_view kConfirm = "040000b1060008914a000400819a7e8affff";
// gatekeeperConfirm 1 with nonStandardData of 4 octets and an nsap; fills its last octet.
inline constexpr std::string_view kConfirmWithBlocks = "05000000060008914a0004404b156a3f04479e632d5100fc106b";

// openLogicalChannel 25168, port 33628.
inline constexpr std::string_view kChannel = "0300624f40835c1228";

}  // namespace kelvra::test
