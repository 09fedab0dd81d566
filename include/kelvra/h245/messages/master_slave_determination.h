// Which end of a call is the master.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct MasterSlaveDetermination {
  uint8_t terminalType;
  uint32_t statusDeterminationNumber;  // 24 bits
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(terminalType, Integer(0, 255));
    KELVRA_MEMBER(statusDeterminationNumber, Integer(0, 16777215));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MasterSlaveDeterminationAck {
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, Decision, 2, "master", "slave");

  Decision decision;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(decision, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MasterSlaveDeterminationReject {
  KELVRA_NULL_CHOICE(NullChoice, Cause, 1, "identicalNumbers");

  Cause cause;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(cause, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
