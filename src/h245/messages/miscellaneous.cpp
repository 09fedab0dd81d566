#include "h245/capabilities/encryption_decode.h"
#include "h245/channels/h2250_parameters_decode.h"
#include "h245/decode.h"
#include "h245/messages/miscellaneous_decode.h"

namespace kelvra::h245 {
namespace {

void DecodeKeyProtectionMethod(KeyProtectionMethod& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 4);
  m.isExtended = flags.Next();
  m.secureChannel = flags.Next();
  m.sharedSecret = flags.Next();
  m.certProtectedKey = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEncryptionUpdateRequest(EncryptionUpdateRequest& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasKeyProtectionMethod = flags.Next();
  if (m.hasKeyProtectionMethod) DecodeKeyProtectionMethod(m.keyProtectionMethod, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodePictureReference(PictureReference& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: m.pictureNumber = PerReadNumber<uint16_t>(r, 0, 1023); return;
    case 1: m.longTermPictureIndex = PerReadNumber<uint8_t>(r, 0, 255); return;
    default: return;
  }
}

void DecodeVideoFastUpdateGOB(MiscellaneousCommand::VideoFastUpdateGOB& m, PerReader& r) {
  m.firstGOB = PerReadNumber<uint8_t>(r, 0, 17);
  m.numberOfGOBs = PerReadNumber<uint8_t>(r, 1, 18);
}

void DecodeVideoFastUpdateMB(MiscellaneousCommand::VideoFastUpdateMB& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasFirstGOB = flags.Next();
  m.hasFirstMB = flags.Next();
  if (m.hasFirstGOB) m.firstGOB = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.hasFirstMB) m.firstMB = PerReadNumber<uint16_t>(r, 1, 8192);
  m.numberOfMBs = PerReadNumber<uint16_t>(r, 1, 8192);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeProgressiveRefinementStart(MiscellaneousCommand::ProgressiveRefinementStart& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeNullChoice(m.repeatCount, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeVideoBadMBs(MiscellaneousCommand::VideoBadMBs& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.firstMB = PerReadNumber<uint16_t>(r, 1, 9216);
  m.numberOfMBs = PerReadNumber<uint16_t>(r, 1, 9216);
  m.temporalReference = PerReadNumber<uint16_t>(r, 0, 1023);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodePictureReferenceList(MiscellaneousCommand::PictureReferenceList& m, PerReader& r) {
  KELVRA_OR_STOP(DecodeSequenceOf(ListOf(m), r, DecodePictureReference));
}

void DecodeLostPartialPicture(MiscellaneousCommand::LostPartialPicture& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodePictureReference(m.pictureReference, r);
  m.firstMB = PerReadNumber<uint16_t>(r, 1, 9216);
  m.numberOfMBs = PerReadNumber<uint16_t>(r, 1, 9216);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeType(MiscellaneousCommand::Type& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 10);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.videoFastUpdateMB, r, DecodeVideoFastUpdateMB);
      case 1: m.maxH223MUXPDUsize = PerReadOpenNumber<uint16_t>(r, 1, 65535); return;
      case 2: return DecodeOpen(m.encryptionUpdate, r, DecodeEncryptionSync);
      case 3: return DecodeOpen(m.encryptionUpdateRequest, r, DecodeEncryptionUpdateRequest);
      case 6: return DecodeOpen(m.progressiveRefinementStart, r, DecodeProgressiveRefinementStart);
      case 9: return DecodeOpen(m.videoBadMBs, r, DecodeVideoBadMBs);
      case 10: return DecodeOpen(m.lostPicture, r, DecodePictureReferenceList);
      case 11: return DecodeOpen(m.lostPartialPicture, r, DecodeLostPartialPicture);
      case 12: return DecodeOpen(m.recoveryReferencePicture, r, DecodePictureReferenceList);
      default: return PerPassOverAlternative(r, index, 13);
    }
  }
  switch (index) {
    case 6: return DecodeVideoFastUpdateGOB(m.videoFastUpdateGOB, r);
    case 7: m.videoTemporalSpatialTradeOff = PerReadNumber<uint8_t>(r, 0, 31); return;
    default: return;
  }
}

void DecodeVideoNotDecodedMBs(MiscellaneousIndication::VideoNotDecodedMBs& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.firstMB = PerReadNumber<uint16_t>(r, 1, 8192);
  m.numberOfMBs = PerReadNumber<uint16_t>(r, 1, 8192);
  m.temporalReference = PerReadNumber<uint8_t>(r, 0, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeType(MiscellaneousIndication::Type& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 10);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.videoNotDecodedMBs, r, DecodeVideoNotDecodedMBs);
      case 1: return DecodeOpen(m.transportCapability, r, DecodeTransportCapability);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 9: m.videoTemporalSpatialTradeOff = PerReadNumber<uint8_t>(r, 0, 31); return;
    default: return;
  }
}

}  // namespace

void DecodeMiscellaneousCommand(MiscellaneousCommand& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeType(m.type, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMiscellaneousIndication(MiscellaneousIndication& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.logicalChannelNumber = PerReadNumber<uint16_t>(r, 1, 65535);
  DecodeType(m.type, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace kelvra::h245
