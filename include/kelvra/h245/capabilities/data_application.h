// Data applications.
#pragma once

#include "../common/generic_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct DataApplicationCapability {
  struct Application {
    struct T84 {
      DataProtocolCapability t84Protocol;
      T84Profile t84Profile;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(t84Protocol, DefinedType());
        KELVRA_MEMBER(t84Profile, DefinedType());
      KELVRA_END
    };

    struct Nlpid {
      DataProtocolCapability nlpidProtocol;
      OctetStringValue nlpidData;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(nlpidProtocol, DefinedType());
        KELVRA_MEMBER(nlpidData, OctetString());
      KELVRA_END
    };

    struct T38fax {
      DataProtocolCapability t38FaxProtocol;
      T38FaxProfile t38FaxProfile;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(t38FaxProtocol, DefinedType());
        KELVRA_MEMBER(t38FaxProfile, DefinedType());
      KELVRA_END
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      DataProtocolCapability t120;
      DataProtocolCapability dsmCc;
      DataProtocolCapability userData;
      T84 t84;
      DataProtocolCapability t434;
      DataProtocolCapability h224;
      Nlpid nlpid;
      DataProtocolCapability h222DataPartitioning;
      DataProtocolCapability t30fax;
      DataProtocolCapability t140;
      T38fax t38fax;
      GenericCapability genericDataCapability;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_ALTERNATIVE(t120, DefinedType());
      KELVRA_ALTERNATIVE(dsmCc, Named("dsm-cc", DefinedType()));
      KELVRA_ALTERNATIVE(userData, DefinedType());
      KELVRA_ALTERNATIVE(t84, InlineType());
      KELVRA_ALTERNATIVE(t434, DefinedType());
      KELVRA_ALTERNATIVE(h224, DefinedType());
      KELVRA_ALTERNATIVE(nlpid, InlineType());
      KELVRA_NULL(dsvdControl);
      KELVRA_ALTERNATIVE(h222DataPartitioning, DefinedType());
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(t30fax, DefinedType());
      KELVRA_ALTERNATIVE(t140, DefinedType());
      KELVRA_ALTERNATIVE(t38fax, InlineType());
      KELVRA_ALTERNATIVE(genericDataCapability, DefinedType());
    KELVRA_END
  };

  Application application;
  uint32_t maxBitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(application, InlineType());
    KELVRA_MEMBER(maxBitRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
