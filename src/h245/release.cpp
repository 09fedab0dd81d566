#include "h245/release.h"

#include "record/release.h"

namespace kelvra::h245 {

void ReleaseH245Message(H245MessageRecord& record) { Release(record, ReleaseVisitor("codec/freeintr")); }

}  // namespace kelvra::h245
