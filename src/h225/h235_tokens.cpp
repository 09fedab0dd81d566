#include "h225/decode.h"
#include "h225/h235_tokens_decode.h"

namespace kelvra::h235 {
namespace {

Status DecodeEckasdhp(ECKASDH::Eckasdhp& m, PerReader& r) {
  KELVRA_TRY(DecodeECpoint(m.publicKey, r));
  PerReadBits(m.modulus, r, PerReadNumber<uint32_t>(r, 0, 511));
  KELVRA_TRY(DecodeECpoint(m.base, r));
  PerReadBits(m.weierstrassA, r, PerReadNumber<uint32_t>(r, 0, 511));
  PerReadBits(m.weierstrassB, r, PerReadNumber<uint32_t>(r, 0, 511));
  return kDecoded;
}

Status DecodeEckasdh2(ECKASDH::Eckasdh2& m, PerReader& r) {
  KELVRA_TRY(DecodeECpoint(m.publicKey, r));
  PerReadBits(m.fieldSize, r, PerReadNumber<uint32_t>(r, 0, 511));
  KELVRA_TRY(DecodeECpoint(m.base, r));
  PerReadBits(m.weierstrassA, r, PerReadNumber<uint32_t>(r, 0, 511));
  PerReadBits(m.weierstrassB, r, PerReadNumber<uint32_t>(r, 0, 511));
  return kDecoded;
}

Status DecodeCryptoEncryptedToken(CryptoToken::CryptoEncryptedToken& m, PerReader& r) {
  PerReadObjectIdentifier(m.tokenOID, r);
  KELVRA_TRY(DecodeENCRYPTED(m.token, r));
  return kDecoded;
}

Status DecodeCryptoSignedToken(CryptoToken::CryptoSignedToken& m, PerReader& r) {
  PerReadObjectIdentifier(m.tokenOID, r);
  KELVRA_TRY(DecodeSIGNED(m.token, r));
  return kDecoded;
}

Status DecodeCryptoHashedToken(CryptoToken::CryptoHashedToken& m, PerReader& r) {
  PerReadObjectIdentifier(m.tokenOID, r);
  KELVRA_TRY(DecodeClearToken(m.hashedVals, r));
  KELVRA_TRY(DecodeHASHED(m.token, r));
  return kDecoded;
}

}  // namespace

Status DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.nonStandardIdentifier, r);
  PerReadOctetString(m.data, r);
  return kDecoded;
}

Status DecodeDHset(DHset& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  PerReadBits(m.halfkey, r, PerReadNumber<uint32_t>(r, 0, 2048));
  PerReadBits(m.modSize, r, PerReadNumber<uint32_t>(r, 0, 2048));
  PerReadBits(m.generator, r, PerReadNumber<uint32_t>(r, 0, 2048));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeECpoint(ECpoint& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasX = PerReadBit(r);
  m.hasY = PerReadBit(r);
  if (m.hasX) PerReadBits(m.x, r, PerReadNumber<uint32_t>(r, 0, 511));
  if (m.hasY) PerReadBits(m.y, r, PerReadNumber<uint32_t>(r, 0, 511));
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeECKASDH(ECKASDH& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeEckasdhp(m.eckasdhp, r);
    case 1: return DecodeEckasdh2(m.eckasdh2, r);
    default: return kMalformed;
  }
}

Status DecodeTypedCertificate(TypedCertificate& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  PerReadObjectIdentifier(m.type, r);
  PerReadOctetString(m.certificate, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeAuthenticationMechanism(AuthenticationMechanism& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 0: return InOpenType(r, [&] { return DecodeNullChoice(m.authenticationBES, r); });
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 6: return DecodeNonStandardParameter(m.nonStandard, r);
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5: return kDecoded;
    default: return kMalformed;
  }
}

Status DecodeClearToken(ClearToken& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasTimeStamp = PerReadBit(r);
  m.hasPassword = PerReadBit(r);
  m.hasDhkey = PerReadBit(r);
  m.hasChallenge = PerReadBit(r);
  m.hasRandom = PerReadBit(r);
  m.hasCertificate = PerReadBit(r);
  m.hasGeneralID = PerReadBit(r);
  m.hasNonStandard = PerReadBit(r);
  PerReadObjectIdentifier(m.tokenOID, r);
  if (m.hasTimeStamp) m.timeStamp = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasPassword) PerReadCharacters16(m.password, r, PerReadNumber<uint32_t>(r, 1, 128));
  if (m.hasDhkey) KELVRA_TRY(DecodeDHset(m.dhkey, r));
  if (m.hasChallenge) PerReadSizedOctets(m.challenge, r, 121, 8);
  if (m.hasRandom) m.random = PerReadInteger(r);
  if (m.hasCertificate) KELVRA_TRY(DecodeTypedCertificate(m.certificate, r));
  if (m.hasGeneralID) PerReadCharacters16(m.generalID, r, PerReadNumber<uint32_t>(r, 1, 128));
  if (m.hasNonStandard) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandard, r));
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasEckasdhkey = PerReadAdditionBit(r, additions, 0);
  m.hasSendersID = PerReadAdditionBit(r, additions, 1);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 2);
  if (m.hasEckasdhkey) KELVRA_TRY(InOpenType(r, [&] { return DecodeECKASDH(m.eckasdhkey, r); }));
  if (m.hasSendersID) {
    KELVRA_TRY(InOpenType(r, [&] {
      PerReadCharacters16(m.sendersID, r, PerReadNumber<uint32_t>(r, 1, 128));
      return kDecoded;
    }));
  }
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeParams(Params& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  m.hasRanInt = PerReadBit(r);
  m.hasIv8 = PerReadBit(r);
  if (m.hasRanInt) m.ranInt = PerReadInteger(r);
  if (m.hasIv8) PerReadFixedOctets(m.iv8, r, 8);
  if (!m.isExtended) return kDecoded;

  const int32_t additions = PerReadBitmapLength(r);
  m.hasIv16 = PerReadAdditionBit(r, additions, 0);
  r.extensionPresentCount = PerCountUnknownAdditions(r, additions, 1);
  if (m.hasIv16)
    KELVRA_TRY(InOpenType(r, [&] {
      PerReadFixedOctets(m.iv16, r, 16);
      return kDecoded;
    }));
  PerSkipOpenTypes(r, r.extensionPresentCount);
  return kDecoded;
}

Status DecodeSIGNED(SIGNED& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadOctetString(m.toBeSigned, r);
  PerReadObjectIdentifier(m.algorithmOID, r);
  KELVRA_TRY(DecodeParams(m.paramS, r));
  PerReadBits(m.signature, r, PerReadLength(r));
  return kDecoded;
}

Status DecodeENCRYPTED(ENCRYPTED& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.algorithmOID, r);
  KELVRA_TRY(DecodeParams(m.paramS, r));
  PerReadOctetString(m.encryptedData, r);
  return kDecoded;
}

Status DecodeHASHED(HASHED& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.algorithmOID, r);
  KELVRA_TRY(DecodeParams(m.paramS, r));
  PerReadBits(m.hash, r, PerReadLength(r));
  return kDecoded;
}

Status DecodeCryptoToken(CryptoToken& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return SkipAlternative(r);
  switch (index) {
    case 0: return DecodeCryptoEncryptedToken(m.cryptoEncryptedToken, r);
    case 1: return DecodeCryptoSignedToken(m.cryptoSignedToken, r);
    case 2: return DecodeCryptoHashedToken(m.cryptoHashedToken, r);
    case 3: return DecodeENCRYPTED(m.cryptoPwdEncr, r);
    default: return kMalformed;
  }
}

}  // namespace kelvra::h235
