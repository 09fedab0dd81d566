// How an endpoint multiplexes its channels.
#pragma once

#include "h2250_capability.h"
#include "multiplex_format.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct V75Capability {
  uint32_t audioHeader;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(audioHeader, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct V76Capability {
  uint32_t suspendResumeCapabilitywAddress;
  uint32_t suspendResumeCapabilitywoAddress;
  uint32_t rejCapability;
  uint32_t sREJCapability;
  uint32_t mREJCapability;
  uint32_t crc8bitCapability;
  uint32_t crc16bitCapability;
  uint32_t crc32bitCapability;
  uint32_t uihCapability;
  uint16_t numOfDLCS;
  uint32_t twoOctetAddressFieldCapability;
  uint32_t loopBackTestCapability;
  uint16_t n401Capability;
  uint8_t maxWindowSizeCapability;
  V75Capability v75Capability;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(suspendResumeCapabilitywAddress, Boolean());
    KELVRA_MEMBER(suspendResumeCapabilitywoAddress, Boolean());
    KELVRA_MEMBER(rejCapability, Boolean());
    KELVRA_MEMBER(sREJCapability, Boolean());
    KELVRA_MEMBER(mREJCapability, Boolean());
    KELVRA_MEMBER(crc8bitCapability, Boolean());
    KELVRA_MEMBER(crc16bitCapability, Boolean());
    KELVRA_MEMBER(crc32bitCapability, Boolean());
    KELVRA_MEMBER(uihCapability, Boolean());
    KELVRA_MEMBER(numOfDLCS, Integer(2, 8191));
    KELVRA_MEMBER(twoOctetAddressFieldCapability, Boolean());
    KELVRA_MEMBER(loopBackTestCapability, Boolean());
    KELVRA_MEMBER(n401Capability, Integer(1, 4095));
    KELVRA_MEMBER(maxWindowSizeCapability, Integer(1, 127));
    KELVRA_MEMBER(v75Capability, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct MultiplexCapability {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    H222Capability h222Capability;
    H223Capability h223Capability;
    V76Capability v76Capability;
    H2250Capability h2250Capability;
    GenericCapability genericMultiplexCapability;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(h222Capability, DefinedType());
    KELVRA_ALTERNATIVE(h223Capability, DefinedType());
    KELVRA_ALTERNATIVE(v76Capability, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(h2250Capability, DefinedType());
    KELVRA_ALTERNATIVE(genericMultiplexCapability, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
