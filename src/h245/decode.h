// What the decoders of H.245 types have beside the words of per/record_decode.h. They return nothing:
// one that gives up moves the reader to its end, and those around it then read zeros.
#pragma once

#include "per/record_decode.h"

namespace kelvra::h245 {

// A CHOICE of NULLs.
template <class Names>
void DecodeNullChoice(NullChoice<Names>& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, Names::kRoots);
  if (m.isExtension) PerPassOverAlternative(r, index, ExtensionsOf<Names>());
}

template <class Names>
void DecodeNullChoice(RootNullChoice<Names>& m, PerReader& r) {
  ReadRootChoice(m, r, Names::kRoots);
}

// How many presence bits a SEQUENCE's bitmap holds, kept in 8 bits: a coded 255 gives 0. The additions
// that are not known are counted for this SEQUENCE alone, not in the counter that the others share.
inline int32_t PerReadBitmapLength8(PerReader& r) { return static_cast<uint8_t>(PerReadNormallySmall(r) + 1); }

}  // namespace kelvra::h245
