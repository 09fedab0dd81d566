// Which end of a call is the master.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct MasterSlaveDetermination {
  uint8_t terminalType;
  uint32_t statusDeterminationNumber;  // 24 bits
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("terminalType", m.terminalType);
    v.Number("statusDeterminationNumber", m.statusDeterminationNumber);
  }
};

struct MasterSlaveDeterminationAck {
  struct DecisionNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"master", "slave"};
  };
  using Decision = RootNullChoice<DecisionNames>;

  Decision decision;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("decision", m.decision);
  }
};

struct MasterSlaveDeterminationReject {
  struct CauseNames {
    static constexpr uint32_t kRoots = 1;
    static constexpr const char* kAlternatives[] = {"identicalNumbers"};
  };
  using Cause = NullChoice<CauseNames>;

  Cause cause;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("cause", m.cause);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
