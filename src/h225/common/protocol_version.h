// The H.225.0 version that the last registration or call-signalling message named.
#pragma once

#include "per/reader.h"
#include "record/values.h"

namespace kelvra::h225 {

// The version mode of the process: 3 until a message has set it; then 0 for versions 1 and 2, 1 for
// version 3, 2 for version 4. It outlives messages and may be read and written by any thread.
int32_t ProtocolVersionMode();

// Reads the protocolIdentifier of a call-signalling body. Versions 1 to 4 set the mode; any other
// identifier leaves it alone.
void ReadProtocolIdentifier(ObjectIdentifierValue& protocolIdentifier, PerReader& reader);

}  // namespace kelvra::h225
