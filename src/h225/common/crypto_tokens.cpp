#include "h225/common/addresses_decode.h"
#include "h225/common/crypto_tokens_decode.h"
#include "h225/common/identifiers_decode.h"
#include "h225/common/non_standard_decode.h"
#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h225 {
namespace {

Status DecodeCryptoEPPwdHash(CryptoH323Token::CryptoEPPwdHash& m, PerReader& r) {
  KELVRA_TRY(DecodeAliasAddress(m.alias, r));
  m.timeStamp = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  KELVRA_TRY(h235::DecodeHASHED(m.token, r));
  return kDecoded;
}

Status DecodeCryptoGKPwdHash(CryptoH323Token::CryptoGKPwdHash& m, PerReader& r) {
  KELVRA_TRY(DecodeIdentifierString(m.gatekeeperId, r));
  m.timeStamp = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  KELVRA_TRY(h235::DecodeHASHED(m.token, r));
  return kDecoded;
}

Status DecodeEncryptIntAlg(EncryptIntAlg& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: PerReadObjectIdentifier(m.isoAlgorithm, r); return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeNonIsoIntegrityMechanism(NonIsoIntegrityMechanism& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 1: return DecodeEncryptIntAlg(m.hMACIso101182S, r);
    case 2: return DecodeEncryptIntAlg(m.hMACIso101182L, r);
    case 3: PerReadObjectIdentifier(m.hMACIso101183, r); return kDecoded;
    default: return NullAlternative(index, 4);
  }
}

Status DecodeSecurityServiceMode(SecurityServiceMode& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return NullAlternative(index, 3);
  }
}

Status DecodeSecurityCapabilities(SecurityCapabilities& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasNonStandard = flags.Next();
  if (m.hasNonStandard) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandard, r));
  KELVRA_TRY(DecodeSecurityServiceMode(m.encryption, r));
  KELVRA_TRY(DecodeSecurityServiceMode(m.authenticaton, r));
  KELVRA_TRY(DecodeSecurityServiceMode(m.integrity, r));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeIntegrityMechanism(IntegrityMechanism& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 2: PerReadObjectIdentifier(m.iso9797, r); return kDecoded;
    case 3: return DecodeNonIsoIntegrityMechanism(m.nonIsoIM, r);
    default: return NullAlternative(index, 4);
  }
}

Status DecodeICV(ICV& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.algorithmOID, r);
  PerReadBitString(m.icv, r, PerReadLength(r));
  return kDecoded;
}

Status DecodeCryptoH323Token(CryptoH323Token& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 8);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeCryptoEPPwdHash(m.cryptoEPPwdHash, r);
    case 1: return DecodeCryptoGKPwdHash(m.cryptoGKPwdHash, r);
    case 2: return h235::DecodeENCRYPTED(m.cryptoEPPwdEncr, r);
    case 3: return h235::DecodeENCRYPTED(m.cryptoGKPwdEncr, r);
    case 4: return h235::DecodeSIGNED(m.cryptoEPCert, r);
    case 5: return h235::DecodeSIGNED(m.cryptoGKCert, r);
    case 6: return h235::DecodeSIGNED(m.cryptoFastStart, r);
    case 7: return h235::DecodeCryptoToken(m.nestedcryptoToken, r);
    default: return kMalformed;
  }
}

Status DecodeH245Security(H245Security& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 2: return DecodeSecurityCapabilities(m.tls, r);
    case 3: return DecodeSecurityCapabilities(m.ipsec, r);
    default: return NullAlternative(index, 4);
  }
}

}  // namespace kelvra::h225
