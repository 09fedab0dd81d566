// The channels that call-signalling bodies propose and accept.
#pragma once

#include "h225/decode.h"
#include "h245/open_logical_channel_decode.h"

namespace kelvra::h225 {

// fastStart: octet strings that each hold an encoded H.245 OpenLogicalChannel, the pointer to whose
// decoded records goes into the slot at `channels`.
inline Status DecodeFastStart(PerReader& r, uint8_t* count, void* channels) {
  return DecodeSequenceOf(r, count, Slot<h245::OpenLogicalChannel>(channels),
                          [](h245::OpenLogicalChannel& channel, PerReader& reader) {
                            return InOpenType(reader, [&] {
                              h245::DecodeOpenLogicalChannel(channel, reader);
                              return kDecoded;
                            });
                          });
}

}  // namespace kelvra::h225
