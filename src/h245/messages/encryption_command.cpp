#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/messages/encryption_command_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeEncryptionAlgorithmID(EncryptionCommand::EncryptionAlgorithmID& m, PerReader& r) {
  m.h233AlgorithmIdentifier = PerReadNumber<uint8_t>(r, 0, 255);
  DecodeNonStandardParameter(m.associatedAlgorithm, r);
}

}  // namespace

void DecodeEncryptionCommand(EncryptionCommand& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return PerReadAnnouncedOctetString(m.encryptionSE, r);
    case 2: return DecodeEncryptionAlgorithmID(m.encryptionAlgorithmID, r);
    default: return;
  }
}

}  // namespace kelvra::h245
