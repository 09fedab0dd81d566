// Indications that are too small for a file of their own: jitter and skew, where the MC is, who made
// the terminal, and which function it lacks.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../common/transport_address.h"
#include "flow_control.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct JitterIndication {
  MultiplexScope scope;
  uint8_t estimatedReceivedJitterMantissa;
  uint8_t estimatedReceivedJitterExponent;
  uint32_t hasSkippedFrameCount;
  uint8_t skippedFrameCount;
  uint32_t hasAdditionalDecoderBuffer;
  uint32_t additionalDecoderBuffer;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("scope", m.scope);
    v.Number("estimatedReceivedJitterMantissa", m.estimatedReceivedJitterMantissa);
    v.Number("estimatedReceivedJitterExponent", m.estimatedReceivedJitterExponent);
    if (m.hasSkippedFrameCount) v.Number("skippedFrameCount", m.skippedFrameCount);
    if (m.hasAdditionalDecoderBuffer) v.Number("additionalDecoderBuffer", m.additionalDecoderBuffer);
  }
};

// How far the second channel lags behind the first. `Names` holds what the message calls it, in kSkew.
template <class Names>
struct SkewIndication {
  uint16_t logicalChannelNumber1;
  uint16_t logicalChannelNumber2;
  uint16_t skew;  // ms
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("logicalChannelNumber1", m.logicalChannelNumber1);
    v.Number("logicalChannelNumber2", m.logicalChannelNumber2);
    v.Number(Names::kSkew, m.skew);
  }
};

struct H223SkewNames {
  static constexpr const char* kSkew = "skew";
};
using H223SkewIndication = SkewIndication<H223SkewNames>;

struct H2250MaximumSkewNames {
  static constexpr const char* kSkew = "maximumSkew";
};
using H2250MaximumSkewIndication = SkewIndication<H2250MaximumSkewNames>;

struct MCLocationIndication {
  TransportAddress signalAddress;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("signalAddress", m.signalAddress);
  }
};

struct VendorIdentification {
  NonStandardIdentifier vendor;
  uint32_t hasProductNumber;
  OctetStringValue productNumber;
  uint32_t hasVersionNumber;
  OctetStringValue versionNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("vendor", m.vendor);
    if (m.hasProductNumber) WalkOctets(v, "productNumber", m.productNumber);
    if (m.hasVersionNumber) WalkOctets(v, "versionNumber", m.versionNumber);
  }
};

struct FunctionNotSupported {
  struct CauseNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"syntaxError", "semanticError", "unknownFunction"};
  };
  using Cause = NullChoice<CauseNames>;

  Cause cause;
  uint32_t hasReturnedFunction;
  OctetStringValue returnedFunction;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("cause", m.cause);
    if (m.hasReturnedFunction) WalkOctets(v, "returnedFunction", m.returnedFunction);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
