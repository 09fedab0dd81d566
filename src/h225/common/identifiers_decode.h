#pragma once

#include "codec/status.h"
#include "h225/common/identifiers.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeGloballyUniqueID(GloballyUniqueID& m, PerReader& r);
// Of both EndpointIdentifier and GatekeeperIdentifier.
Status DecodeIdentifierString(IdentifierString& m, PerReader& r);
Status DecodeCallIdentifier(CallIdentifier& m, PerReader& r);
Status DecodeCallType(CallType& m, PerReader& r);
Status DecodePresentationIndicator(PresentationIndicator& m, PerReader& r);
Status DecodeScreeningIndicator(ScreeningIndicator& m, PerReader& r);

}  // namespace kelvra::h225
