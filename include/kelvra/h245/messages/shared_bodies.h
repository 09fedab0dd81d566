// Bodies that several messages share, and the names of these messages.
#pragma once

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

// Holds only the extension bit.
struct EmptyBody {
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
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
  KELVRA_SEQUENCE
    KELVRA_MEMBER(sequenceNumber, Integer(0, 255));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using RoundTripDelayRequest = SequenceNumberBody;
using RoundTripDelayResponse = SequenceNumberBody;
using TerminalCapabilitySetAck = SequenceNumberBody;

struct ForwardLogicalChannelNumberBody {
  uint16_t forwardLogicalChannelNumber;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(forwardLogicalChannelNumber, Integer(1, 65535));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

using CloseLogicalChannelAck = ForwardLogicalChannelNumberBody;
using OpenLogicalChannelConfirm = ForwardLogicalChannelNumberBody;
using RequestChannelCloseAck = ForwardLogicalChannelNumberBody;
using RequestChannelCloseRelease = ForwardLogicalChannelNumberBody;

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
