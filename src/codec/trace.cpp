#include "codec/trace.h"

namespace kelvra {

void CodecTrace(int32_t /*module*/, int32_t /*severity*/, int32_t /*reason*/, int32_t /*source*/, int32_t /*line*/) {}

}  // namespace kelvra
