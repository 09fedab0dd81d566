// Requested data modes.
#pragma once

#include "../capabilities/data_application.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct DataMode {
  struct Application {
    using Nlpid = DataApplicationCapability::Application::Nlpid;
    using T38fax = DataApplicationCapability::Application::T38fax;

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      DataProtocolCapability t120;
      DataProtocolCapability dsmCc;
      DataProtocolCapability userData;
      DataProtocolCapability t84;
      DataProtocolCapability t434;
      DataProtocolCapability h224;
      Nlpid nlpid;
      DataProtocolCapability h222DataPartitioning;
      DataProtocolCapability t30fax;
      DataProtocolCapability t140;
      T38fax t38fax;
      GenericCapability genericDataMode;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(nonStandard, DefinedType());
      KELVRA_ALTERNATIVE(t120, DefinedType());
      KELVRA_ALTERNATIVE(dsmCc, Named("dsm-cc", DefinedType()));
      KELVRA_ALTERNATIVE(userData, DefinedType());
      KELVRA_ALTERNATIVE(t84, DefinedType());
      KELVRA_ALTERNATIVE(t434, DefinedType());
      KELVRA_ALTERNATIVE(h224, DefinedType());
      KELVRA_ALTERNATIVE(nlpid, InlineType());
      KELVRA_NULL(dsvdControl);
      KELVRA_ALTERNATIVE(h222DataPartitioning, DefinedType());
      KELVRA_EXTENSION(isExtension);
      KELVRA_ALTERNATIVE(t30fax, DefinedType());
      KELVRA_ALTERNATIVE(t140, DefinedType());
      KELVRA_ALTERNATIVE(t38fax, InlineType());
      KELVRA_ALTERNATIVE(genericDataMode, DefinedType());
    KELVRA_END
  };

  Application application;
  uint32_t bitRate;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(application, InlineType());
    KELVRA_MEMBER(bitRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
