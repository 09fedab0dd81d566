// The command that sets up H.233 encryption.
#pragma once

#include <stdint.h>

#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct EncryptionCommand {
  struct EncryptionAlgorithmID {
    uint8_t h233AlgorithmIdentifier;
    NonStandardParameter associatedAlgorithm;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      v.Number("h233AlgorithmIdentifier", m.h233AlgorithmIdentifier);
      v.Record("associatedAlgorithm", m.associatedAlgorithm);
    }
  };

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    OctetStringValue encryptionSE;
    EncryptionAlgorithmID encryptionAlgorithmID;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return WalkOctets(v, "encryptionSE", m.encryptionSE);
      case 1: return v.Null("encryptionIVRequest");
      case 2: return v.Record("encryptionAlgorithmID", m.encryptionAlgorithmID);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
