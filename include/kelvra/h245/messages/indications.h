// Small indications: jitter and skew, the location of the MC, the vendor of the terminal, and unsupported
// functions.
#pragma once

#include "../common/transport_address.h"
#include "flow_control.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct JitterIndication {
  MultiplexScope scope;
  uint8_t estimatedReceivedJitterMantissa;
  uint8_t estimatedReceivedJitterExponent;
  uint32_t hasSkippedFrameCount;
  uint8_t skippedFrameCount;
  uint32_t hasAdditionalDecoderBuffer;
  uint32_t additionalDecoderBuffer;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(scope, DefinedType());
    KELVRA_MEMBER(estimatedReceivedJitterMantissa, Integer(0, 3));
    KELVRA_MEMBER(estimatedReceivedJitterExponent, Integer(0, 7));
    KELVRA_OPTIONAL(hasSkippedFrameCount, skippedFrameCount, Integer(0, 15));
    KELVRA_OPTIONAL(hasAdditionalDecoderBuffer, additionalDecoderBuffer, Integer(0, 262143));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

// How far the second channel lags behind the first. Names::kSkew is the message's identifier for the skew.
template <class Names>
struct SkewIndication {
  uint16_t logicalChannelNumber1;
  uint16_t logicalChannelNumber2;
  uint16_t skew;  // ms
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(logicalChannelNumber1, Integer(1, 65535));
    KELVRA_MEMBER(logicalChannelNumber2, Integer(1, 65535));
    KELVRA_MEMBER(skew, Named(Names::kSkew, Integer(0, 4095)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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
  KELVRA_SEQUENCE
    KELVRA_MEMBER(signalAddress, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct VendorIdentification {
  NonStandardIdentifier vendor;
  uint32_t hasProductNumber;
  OctetStringValue productNumber;
  uint32_t hasVersionNumber;
  OctetStringValue versionNumber;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(vendor, DefinedType());
    KELVRA_OPTIONAL(hasProductNumber, productNumber, OctetString(1, 256));
    KELVRA_OPTIONAL(hasVersionNumber, versionNumber, OctetString(1, 256));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct FunctionNotSupported {
  KELVRA_NULL_CHOICE(NullChoice, Cause, 3, "syntaxError", "semanticError", "unknownFunction");

  Cause cause;
  uint32_t hasReturnedFunction;
  OctetStringValue returnedFunction;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(cause, DefinedType());
    KELVRA_OPTIONAL(hasReturnedFunction, returnedFunction, OctetString());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
