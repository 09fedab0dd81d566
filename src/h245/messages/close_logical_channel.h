// Refusing, closing and asking to close a logical channel.
#pragma once

#include <stdint.h>

#include "../channels/h2250_parameters.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct OpenLogicalChannelReject {
  struct CauseNames {
    static constexpr uint32_t kRoots = 6;
    static constexpr const char* kAlternatives[] = {"unspecified",
                                                    "unsuitableReverseParameters",
                                                    "dataTypeNotSupported",
                                                    "dataTypeNotAvailable",
                                                    "unknownDataType",
                                                    "dataTypeALCombinationNotSupported",
                                                    "multicastChannelNotAllowed",
                                                    "insufficientBandwidth",
                                                    "separateStackEstablishmentFailed",
                                                    "invalidSessionID",
                                                    "masterSlaveConflict",
                                                    "waitForCommunicationMode",
                                                    "invalidDependentChannel",
                                                    "replacementForRejected"};
  };
  using Cause = NullChoice<CauseNames>;

  uint16_t forwardLogicalChannelNumber;
  Cause cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
    v.Record("cause", m.cause);
  }
};

struct CloseLogicalChannel {
  struct SourceNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"user", "lcse"};
  };
  using Source = RootNullChoice<SourceNames>;

  struct ReasonNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"unknown", "reopen", "reservationFailure"};
  };
  using Reason = NullChoice<ReasonNames>;

  uint16_t forwardLogicalChannelNumber;
  Source source;
  uint32_t isExtended;
  uint32_t hasReason;
  Reason reason;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
    v.Record("source", m.source);
    if (m.hasReason) v.Record("reason", m.reason);
  }
};

struct RequestChannelClose {
  struct ReasonNames {
    static constexpr uint32_t kRoots = 4;
    static constexpr const char* kAlternatives[] = {"unknown", "normal", "reopen", "reservationFailure"};
  };
  using Reason = NullChoice<ReasonNames>;

  uint16_t forwardLogicalChannelNumber;
  uint32_t isExtended;
  uint32_t hasQosCapability;
  QOSCapability qosCapability;
  uint32_t hasReason;
  Reason reason;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
    if (m.hasQosCapability) v.Record("qosCapability", m.qosCapability);
    if (m.hasReason) v.Record("reason", m.reason);
  }
};

struct RequestChannelCloseReject {
  struct CauseNames {
    static constexpr uint32_t kRoots = 1;
    static constexpr const char* kAlternatives[] = {"unspecified"};
  };
  using Cause = NullChoice<CauseNames>;

  uint16_t forwardLogicalChannelNumber;
  Cause cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
    v.Record("cause", m.cause);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
