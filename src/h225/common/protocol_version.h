// The H.225.0 version that the last registration or call-signalling message named.
#pragma once

#include "codec/status.h"
#include "per/reader.h"
#include "record/values.h"

namespace kelvra::h225 {

// Version modes: how many extension additions the sender of a message can know of.
inline constexpr int32_t kVersion2Mode = 0;  // versions 1 and 2
inline constexpr int32_t kVersion3Mode = 1;
inline constexpr int32_t kVersion4Mode = 2;
inline constexpr int32_t kNoVersionMode = 3;  // no version was named

// The version mode of the process: kNoVersionMode until a message has set it. It outlives messages and
// may be read and written by any thread. Decodes write it and never read it.
int32_t ProtocolVersionMode();

// Reads the protocolIdentifier of a call-signalling body. Versions 1 to 4 set the mode; any other
// identifier leaves it alone.
void ReadProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader);

// Reads the protocolIdentifier of a registration and reports the version mode it names, which becomes that
// of the process too. A registration goes by its own mode, so that one decoded on another thread does not
// matter. An identifier of no version from 1 to 4 is kUnsupportedVersion.
Status ReadRegistrationProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader, int32_t& mode);

}  // namespace kelvra::h225
