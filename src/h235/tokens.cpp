#include "h235/tokens_decode.h"
#include "per/record_decode.h"

namespace kelvra::h235 {
namespace {

Status DecodeECpoint(ECpoint& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasX = flags.Next();
  m.hasY = flags.Next();
  if (m.hasX) PerReadSizedBitString(m.x, r, 0, 511);
  if (m.hasY) PerReadSizedBitString(m.y, r, 0, 511);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeEckasdhp(ECKASDH::Eckasdhp& m, PerReader& r) {
  KELVRA_TRY(DecodeECpoint(m.publicKey, r));
  PerReadSizedBitString(m.modulus, r, 0, 511);
  KELVRA_TRY(DecodeECpoint(m.base, r));
  PerReadSizedBitString(m.weierstrassA, r, 0, 511);
  PerReadSizedBitString(m.weierstrassB, r, 0, 511);
  return kDecoded;
}

Status DecodeEckasdh2(ECKASDH::Eckasdh2& m, PerReader& r) {
  KELVRA_TRY(DecodeECpoint(m.publicKey, r));
  PerReadSizedBitString(m.fieldSize, r, 0, 511);
  KELVRA_TRY(DecodeECpoint(m.base, r));
  PerReadSizedBitString(m.weierstrassA, r, 0, 511);
  PerReadSizedBitString(m.weierstrassB, r, 0, 511);
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

Status DecodeDHset(DHset& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  m.isExtended = PerReadBit(r);
  PerReadSizedBitString(m.halfkey, r, 0, 2048);
  PerReadSizedBitString(m.modSize, r, 0, 2048);
  PerReadSizedBitString(m.generator, r, 0, 2048);
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
  PerReadAnnouncedOctetString(m.certificate, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
  return kDecoded;
}

Status DecodeParams(Params& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasRanInt = flags.Next();
  m.hasIv8 = flags.Next();
  if (m.hasRanInt) m.ranInt = PerReadInteger(r);
  if (m.hasIv8) PerReadOctets(m.iv8, r, 8);
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  m.hasIv16 = PerReadAdditionBit(r, additions);
  PerNoteUnknownAdditions(r, additions);
  if (m.hasIv16) DecodeOpen(m.iv16, r, PerReadOctetsElement<16>);
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

}  // namespace

Status DecodeNonStandardParameter(NonStandardParameter& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.nonStandardIdentifier, r);
  PerReadAnnouncedOctetString(m.data, r);
  return kDecoded;
}

Status DecodeAuthenticationMechanism(AuthenticationMechanism& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  const uint32_t index = ReadChoice(m, r, 7);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.authenticationBES, r, DecodeNullChoice);
      default: return SkipAlternative(r);
    }
  }
  switch (index) {
    case 6: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return NullAlternative(index, 7);
  }
}

Status DecodeClearToken(ClearToken& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerFlags flags = PerReadFlags(r, 9);
  m.isExtended = flags.Next();
  m.hasTimeStamp = flags.Next();
  m.hasPassword = flags.Next();
  m.hasDhkey = flags.Next();
  m.hasChallenge = flags.Next();
  m.hasRandom = flags.Next();
  m.hasCertificate = flags.Next();
  m.hasGeneralID = flags.Next();
  m.hasNonStandard = flags.Next();
  PerReadObjectIdentifier(m.tokenOID, r);
  if (m.hasTimeStamp) m.timeStamp = PerReadNumber<uint32_t>(r, 1, kUnsigned32Maximum);
  if (m.hasPassword) PerReadSizedBMPString(m.password, r, 1, 128);
  if (m.hasDhkey) KELVRA_TRY(DecodeDHset(m.dhkey, r));
  if (m.hasChallenge) PerReadSizedOctets(m.challenge, r, 8, 128);
  if (m.hasRandom) m.random = PerReadInteger(r);
  if (m.hasCertificate) KELVRA_TRY(DecodeTypedCertificate(m.certificate, r));
  if (m.hasGeneralID) PerReadSizedBMPString(m.generalID, r, 1, 128);
  if (m.hasNonStandard) KELVRA_TRY(DecodeNonStandardParameter(m.nonStandard, r));
  if (!m.isExtended) return kDecoded;

  int32_t additions = PerReadBitmapLength(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasEckasdhkey = known.Next();
  m.hasSendersID = known.Next();
  PerNoteUnknownAdditions(r, additions);
  if (m.hasEckasdhkey) KELVRA_TRY(DecodeOpen(m.eckasdhkey, r, DecodeECKASDH));
  if (m.hasSendersID) DecodeOpen(m.sendersID, r, PerReadSizedBMPStringElement<1, 128>);
  PerSkipUnknownAdditions(r);
  return kDecoded;
}

Status DecodeSIGNED(SIGNED& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadAnnouncedOctetString(m.toBeSigned, r);
  PerReadObjectIdentifier(m.algorithmOID, r);
  KELVRA_TRY(DecodeParams(m.paramS, r));
  PerReadBitString(m.signature, r, PerReadLength(r));
  return kDecoded;
}

Status DecodeENCRYPTED(ENCRYPTED& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.algorithmOID, r);
  KELVRA_TRY(DecodeParams(m.paramS, r));
  PerReadAnnouncedOctetString(m.encryptedData, r);
  return kDecoded;
}

Status DecodeHASHED(HASHED& m, PerReader& r) {
  if (PerAtEnd(r)) return kExhausted;
  PerReadObjectIdentifier(m.algorithmOID, r);
  KELVRA_TRY(DecodeParams(m.paramS, r));
  PerReadBitString(m.hash, r, PerReadLength(r));
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
