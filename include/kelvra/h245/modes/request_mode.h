// RequestMode and the two answers to it.
#pragma once

#include "mode_element.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct ModeDescription {
  uint16_t count;
  ModeElement* elements;
  KELVRA_SEQUENCE
    KELVRA_ELEMENTS(count, elements, SequenceOf(1, 256, DefinedType()));
  KELVRA_END
};

struct RequestMode {
  uint8_t sequenceNumber;
  uint16_t requestedModesCount;
  ModeDescription* requestedModes;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER_LIST(requestedModes, SequenceOf(1, 256, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RequestModeAck {
  KELVRA_NULL_CHOICE(NullChoice, Response, 2, "willTransmitMostPreferredMode", "willTransmitLessPreferredMode");

  uint8_t sequenceNumber;
  Response response;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER(response, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RequestModeReject {
  KELVRA_NULL_CHOICE(NullChoice, Cause, 3, "modeUnavailable", "multipointConstraint", "requestDenied");

  uint8_t sequenceNumber;
  Cause cause;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_MEMBER(cause, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
