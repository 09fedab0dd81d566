// RequestMode and the two answers to it.
#pragma once

#include <stdint.h>

#include "mode_element.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct ModeDescription {
  uint16_t count;
  ModeElement* elements;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List(kUnnamed, ListOf(m));
  }
};

struct RequestMode {
  uint8_t sequenceNumber;
  uint16_t requestedModesCount;
  ModeDescription* requestedModes;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.List("requestedModes", KELVRA_LIST(m.requestedModes));
  }
};

struct RequestModeAck {
  struct ResponseNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"willTransmitMostPreferredMode", "willTransmitLessPreferredMode"};
  };
  using Response = NullChoice<ResponseNames>;

  uint8_t sequenceNumber;
  Response response;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.Record("response", m.response);
  }
};

struct RequestModeReject {
  struct CauseNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"modeUnavailable", "multipointConstraint", "requestDenied"};
  };
  using Cause = NullChoice<CauseNames>;

  uint8_t sequenceNumber;
  Cause cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
    v.Record("cause", m.cause);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
