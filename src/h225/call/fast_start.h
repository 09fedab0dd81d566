// The channels that call-signalling bodies propose and accept.
#pragma once

#include "h245/channels/open_logical_channel_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {

// One octet string of fastStart, which holds an encoded H.245 OpenLogicalChannel. Those that a cut
// message never reaches stay zero.
inline void DecodeFastStartElement(h245::OpenLogicalChannel& m, PerReader& r) {
  DecodeOpen(m, r, h245::DecodeOpenLogicalChannel);
}

}  // namespace kelvra::h225
