#include "h245/release.h"

#include "record/release.h"

namespace kelvra::h245 {

void ReleaseH245Message(H245MessageRecord& record) {
  ReleaseVisitor release("codec/freeintr");
  H245MessageRecord::Walk(record, release);
}

}  // namespace kelvra::h245
