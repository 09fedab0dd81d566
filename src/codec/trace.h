// The diagnostic hook. Decoders, primitives and release functions call it before they fail. Its body is empty, and
// nothing depends on it.
#pragma once

#include <stdint.h>

namespace kelvra {

enum TraceModule : int32_t { kTraceFrame = 2, kTraceDecoder = 64 };
enum TraceSeverity : int32_t { kTraceEntry = 1, kTraceNullRecord = 2, kTraceError = 4 };
enum TraceReason : int32_t {
  kReasonAllocation = 2,
  kReasonNullRecord = 4,
  kReasonArgument = 32,
  kReasonMissingElement = 64,
  kReasonDecode = 512,
  kReasonEntry = 32768,
};
enum TraceSource : int32_t {
  kSourceReader = 31,
  kSourceRelease = 36,
  kSourceFrame = 38,
  kSourceStrings = 40,
  kSourceLength = 41,
};

void CodecTrace(int32_t module, int32_t severity, int32_t reason, int32_t source, int32_t line);

}  // namespace kelvra
