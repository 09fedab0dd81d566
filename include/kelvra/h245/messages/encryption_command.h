// The command that sets up H.233 encryption.
#pragma once

#include "../common/non_standard.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct EncryptionCommand {
  struct EncryptionAlgorithmID {
    uint8_t h233AlgorithmIdentifier;
    NonStandardParameter associatedAlgorithm;
    KELVRA_SEQUENCE
      KELVRA_MEMBER(h233AlgorithmIdentifier, Integer(0, 255));
      KELVRA_MEMBER(associatedAlgorithm, DefinedType());
    KELVRA_END
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    OctetStringValue encryptionSE;
    EncryptionAlgorithmID encryptionAlgorithmID;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(encryptionSE, OctetString());
    KELVRA_NULL(encryptionIVRequest);
    KELVRA_ALTERNATIVE(encryptionAlgorithmID, InlineType());
    KELVRA_EXTENSION(isExtension);
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
