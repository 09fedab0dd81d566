// Bodies that several messages share, and the names of these messages.
#pragma once

#include <stdint.h>

#include "../../record/walk.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

// Only the extension bit.
struct EmptyBody {
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record&, Visitor&) {}
};

using CommunicationModeRequest = EmptyBody;
using LogicalChannelRateRelease = EmptyBody;
using MaintenanceLoopOffCommand = EmptyBody;
using MasterSlaveDeterminationRelease = EmptyBody;
using RequestModeRelease = EmptyBody;
using TerminalCapabilitySetRelease = EmptyBody;

struct SequenceNumberBody {
  uint8_t sequenceNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("sequenceNumber", m.sequenceNumber);
  }
};

using RoundTripDelayRequest = SequenceNumberBody;
using RoundTripDelayResponse = SequenceNumberBody;
using TerminalCapabilitySetAck = SequenceNumberBody;

struct ForwardLogicalChannelNumberBody {
  uint16_t forwardLogicalChannelNumber;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("forwardLogicalChannelNumber", m.forwardLogicalChannelNumber);
  }
};

using CloseLogicalChannelAck = ForwardLogicalChannelNumberBody;
using OpenLogicalChannelConfirm = ForwardLogicalChannelNumberBody;
using RequestChannelCloseAck = ForwardLogicalChannelNumberBody;
using RequestChannelCloseRelease = ForwardLogicalChannelNumberBody;

#pragma pack(pop)

}  // namespace kelvra::h245
