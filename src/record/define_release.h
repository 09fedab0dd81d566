// The release of a record's blocks. Only the units that instantiate it include this, so that it is compiled once for
// each type.
#pragma once

#include "record/release.h"

namespace kelvra {

// All but the releases of other types is inline, unless a sanitizer's checks would make the function huge.
template <class R>
#if !defined(KELVRA_SANITIZED)
[[gnu::flatten]]
#endif
void Release(R& record, ReleaseVisitor visitor) {
  R::Walk(record, visitor);
}

}  // namespace kelvra
