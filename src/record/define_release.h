// The release of a record's blocks. Only the units that instantiate it include this, so it is compiled once per type.
#pragma once

#include "record/release.h"

namespace kelvra {

// Everything except the releases of other types is inlined, unless a sanitizer's checks would make the function huge.
// Without `noinline`, GCC at -O1 would inline the releases of recursive types into each other without end.
template <class R>
#if !defined(KELVRA_SANITIZED)
[[gnu::flatten, gnu::noinline]]
#endif
void Release(R& record, ReleaseVisitor visitor) {
  R::Walk(record, visitor);
}

}  // namespace kelvra
