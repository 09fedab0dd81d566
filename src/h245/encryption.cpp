#include "h245/decode.h"
#include "h245/encryption_decode.h"
#include "h245/non_standard_decode.h"

namespace kelvra::h245 {

void DecodeEncryptionMode(EncryptionMode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return;
  }
}

void DecodeMediaEncryptionAlgorithm(MediaEncryptionAlgorithm& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return PerReadObjectIdentifier(m.algorithm, r);
    default: return;
  }
}

void DecodeAuthenticationCapability(AuthenticationCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  if (!m.isExtended) return;

  const uint8_t additions = PerReadBitmapLength8(r);
  m.hasAntiSpamAlgorithm = PerReadAdditionBit(r, additions, 0);
  const int32_t unknown = PerCountUnknownAdditions(r, additions, 1);
  if (m.hasAntiSpamAlgorithm) InOpenType(r, [&] { PerReadObjectIdentifier(m.antiSpamAlgorithm, r); });
  PerSkipOpenTypes(r, unknown);
}

void DecodeIntegrityCapability(IntegrityCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEncryptionAuthenticationAndIntegrity(EncryptionAuthenticationAndIntegrity& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasEncryptionCapability = PerReadBit(r);
  m.hasAuthenticationCapability = PerReadBit(r);
  m.hasIntegrityCapability = PerReadBit(r);
  if (m.hasEncryptionCapability) {
    m.encryptionCapabilityCount = PerReadNumber<uint16_t>(r, 1, 256);
    if (!DecodeList(r, Slot<MediaEncryptionAlgorithm>(&m.encryptionCapability), m.encryptionCapabilityCount,
                    DecodeMediaEncryptionAlgorithm))
      return;
  }
  if (m.hasAuthenticationCapability) DecodeAuthenticationCapability(m.authenticationCapability, r);
  if (m.hasIntegrityCapability) DecodeIntegrityCapability(m.integrityCapability, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEscrowData(EscrowData& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadObjectIdentifier(m.escrowID, r);
  PerReadBits(m.escrowValue, r, PerReadNumber<uint32_t>(r, 1, 65535));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEncryptionSync(EncryptionSync& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  m.hasEscrowentry = PerReadBit(r);
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  m.synchFlag = PerReadNumber<uint8_t>(r, 0, 255);
  PerReadSizedOctets(m.h235Key, r, 65535, 1);
  if (m.hasEscrowentry) {
    m.escrowentryCount = PerReadNumber<uint16_t>(r, 1, 256);
    if (!DecodeList(r, Slot<EscrowData>(&m.escrowentry), m.escrowentryCount, DecodeEscrowData)) return;
  }
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
