#include "h245/capabilities/encryption_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

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
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasAntiSpamAlgorithm = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasAntiSpamAlgorithm) DecodeOpen(m.antiSpamAlgorithm, r, PerReadObjectIdentifier);
  PerSkipOpenTypes(r, unknown);
}

void DecodeIntegrityCapability(IntegrityCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEscrowData(EscrowData& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  PerReadObjectIdentifier(m.escrowID, r);
  PerReadSizedBitString(m.escrowValue, r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeEncryptionMode(EncryptionMode& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return;
  }
}

void DecodeEncryptionAuthenticationAndIntegrity(EncryptionAuthenticationAndIntegrity& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.hasEncryptionCapability = flags.Next();
  m.hasAuthenticationCapability = flags.Next();
  m.hasIntegrityCapability = flags.Next();
  if (m.hasEncryptionCapability)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.encryptionCapability), r, 1, 256, DecodeMediaEncryptionAlgorithm));
  if (m.hasAuthenticationCapability) DecodeAuthenticationCapability(m.authenticationCapability, r);
  if (m.hasIntegrityCapability) DecodeIntegrityCapability(m.integrityCapability, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH235SecurityCapability(H235SecurityCapability& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeEncryptionAuthenticationAndIntegrity(m.encryptionAuthenticationAndIntegrity, r);
  m.mediaCapability = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEncryptionSync(EncryptionSync& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  m.hasEscrowentry = flags.Next();
  if (m.hasNonStandard) DecodeNonStandardParameter(m.nonStandard, r);
  m.synchFlag = PerReadNumber<uint8_t>(r, 0, 255);
  PerReadSizedOctets(m.h235Key, r, 1, 65535);
  if (m.hasEscrowentry) KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.escrowentry), r, 1, 256, DecodeEscrowData));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
