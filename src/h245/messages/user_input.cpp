#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/messages/user_input_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeUserInputSupportIndication(UserInputIndication::UserInputSupportIndication& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 4);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    default: return;
  }
}

// IA5String (SIZE (1)) of 17 characters: 8 bits that, being no more than 16, are not aligned (X.691 27.5.6).
void ReadSignalType(OctetStringValue& m, PerReader& r) {
  m.length = 1;
  m.data = PerReadBitString(r, 8);
}

void DecodeRtp(UserInputIndication::Signal::Rtp& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasTimestamp = flags.Next();
  m.hasExpirationTime = flags.Next();
  if (m.hasTimestamp) m.timestamp = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (m.hasExpirationTime) m.expirationTime = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSignal(UserInputIndication::Signal& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasDuration = flags.Next();
  m.hasRtp = flags.Next();
  ReadSignalType(m.signalType, r);
  if (m.hasDuration) m.duration = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasRtp) DecodeRtp(m.rtp, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasRtpPayloadIndication = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasRtpPayloadIndication) PerPassOverOpenType(r);
  PerSkipOpenTypes(r, unknown);
}

void DecodeRtp(UserInputIndication::SignalUpdate::Rtp& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSignalUpdate(UserInputIndication::SignalUpdate& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasRtp = flags.Next();
  m.duration = PerReadNumber<uint16_t>(r, 1, 65535);
  if (m.hasRtp) DecodeRtp(m.rtp, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeExtendedAlphanumeric(UserInputIndication::ExtendedAlphanumeric& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasRtpPayloadIndication = flags.Next();
  PerReadAnnouncedOctetString(m.alphanumeric, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeUserInputIndication(UserInputIndication& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.userInputSupportIndication, r, DecodeUserInputSupportIndication);
      case 1: return DecodeOpen(m.signal, r, DecodeSignal);
      case 2: return DecodeOpen(m.signalUpdate, r, DecodeSignalUpdate);
      case 3: return DecodeOpen(m.extendedAlphanumeric, r, DecodeExtendedAlphanumeric);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return PerReadAnnouncedOctetString(m.alphanumeric, r);
    default: return;
  }
}

}  // namespace kelvra::h245
