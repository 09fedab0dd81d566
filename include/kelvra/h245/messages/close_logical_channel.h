// Refusing, closing and asking to close a logical channel.
#pragma once

#include "../channels/h2250_parameters.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct OpenLogicalChannelReject {
  KELVRA_NULL_CHOICE(NullChoice, Cause, 6, "unspecified", "unsuitableReverseParameters", "dataTypeNotSupported",
                     "dataTypeNotAvailable", "unknownDataType", "dataTypeALCombinationNotSupported",
                     "multicastChannelNotAllowed", "insufficientBandwidth", "separateStackEstablishmentFailed",
                     "invalidSessionID", "masterSlaveConflict", "waitForCommunicationMode", "invalidDependentChannel",
                     "replacementForRejected");

  uint16_t forwardLogicalChannelNumber;
  Cause cause;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(cause, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CloseLogicalChannel {
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, Source, 2, "user", "lcse");
  KELVRA_NULL_CHOICE(NullChoice, Reason, 3, "unknown", "reopen", "reservationFailure");

  uint16_t forwardLogicalChannelNumber;
  Source source;
  uint32_t isExtended;
  uint32_t hasReason;
  Reason reason;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(source, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasReason, reason, DefinedType());
  KELVRA_END
};

struct RequestChannelClose {
  KELVRA_NULL_CHOICE(NullChoice, Reason, 4, "unknown", "normal", "reopen", "reservationFailure");

  uint16_t forwardLogicalChannelNumber;
  uint32_t isExtended;
  uint32_t hasQosCapability;
  QOSCapability qosCapability;
  uint32_t hasReason;
  Reason reason;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasQosCapability, qosCapability, DefinedType());
    KELVRA_ADDITION(hasReason, reason, DefinedType());
  KELVRA_END
};

struct RequestChannelCloseReject {
  KELVRA_NULL_CHOICE(NullChoice, Cause, 1, "unspecified");

  uint16_t forwardLogicalChannelNumber;
  Cause cause;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_MEMBER(cause, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
