// Short messages of the three families, for tests of the exports.
#pragma once

#include <string_view>

#include "message_text.h"

namespace kelvra::test {

// gatekeeperReject 33143, protocol 0.0.8.2250.0.4, invalidRevision; ends inside its last octet.
inline constexpr std::string_view kReject = "08008176060008914a000440";
// gatekeeperReject 4206 with a featureSet behind unknown presence bits.
inline constexpr std::string_view kRejectWithFeatures = "0a00106d060008914a000461420100";
// gatekeeperConfirm 178, rasAddress 129.154.126.138 port 65535; fills its last octet.
inline constexpr std::string_view kConfirm = "040000b1060008914a000400819a7e8affff";
// gatekeeperConfirm 1 with nonStandardData of 4 octets and an nsap; fills its last octet.
inline constexpr std::string_view kConfirmWithBlocks = "05000000060008914a0004404b156a3f04479e632d5100fc106b";

// openLogicalChannel 25168, port 33628.
inline constexpr std::string_view kChannel = "0300624f40835c1228";
// openLogicalChannel 65535 with an h235Control object identifier and a separateStack.
inline constexpr std::string_view kChannelWithBlocks =
    "0380fffe200013000a2b0601010187ffffff7f067b2ff4c6dbab02190f0f4900030005481000db00";

// callProceeding, call reference 11224.
inline constexpr std::string_view kProceeding = "0300001808022bd8027e000c050100060008914a00040180";
// Call reference 30282: callIdentity, called subaddress and a message body with nonStandardData.
inline constexpr std::string_view kEmptyWithBlocks =
    "0300002b0802764a7b10012571068054eae4209e7e0014051810010000072b06017f01810005793fc872d5";

}  // namespace kelvra::test
