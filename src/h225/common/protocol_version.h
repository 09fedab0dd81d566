// The H.225.0 version that the last registration or call-signalling message named.
#pragma once

#include "codec/status.h"
#include "kelvra/values.h"
#include "per/reader.h"

namespace kelvra::h225 {

// Version modes: how many extension additions the sender of a message can know.
inline constexpr int32_t kVersion2Mode = 0;  // versions 1 and 2
inline constexpr int32_t kVersion3Mode = 1;
inline constexpr int32_t kVersion4Mode = 2;
inline constexpr int32_t kNoVersionMode = 3;  // no version was named

// The version mode of the process: kNoVersionMode until a message sets it. It outlives messages, and any thread may
// read or write it. Decodes write it and never read it.
int32_t ProtocolVersionMode();

// Reads the protocolIdentifier of a call-signalling body. Versions 1 to 4 set the mode; other identifiers do not.
void ReadProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader);

// Reads the protocolIdentifier of a registration. Its version becomes that of the reader, on which the registration
// depends, so decodes on other threads do not affect it; the version also sets the mode. Returns kUnsupportedVersion
// for versions other than 1 to 4.
Status ReadRegistrationProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader);

}  // namespace kelvra::h225
