// The decoder of a named type. Only the units that instantiate decoders include this, so each decoder is compiled once.
#pragma once

#include "per/decoder.h"

namespace kelvra {

template <class T, class R>
Status Decode(T& m, R& r) {
  if constexpr (kReportsFailures<T>) {
    if (PerAtEnd(r)) return kExhausted;
  }
  return DecodeType(m, r);
}

}  // namespace kelvra
