#include "h245/capabilities/video_capability_decode.h"
#include "h245/common/generic_capability_decode.h"
#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"

namespace kelvra::h245 {
namespace {

void DecodeAdditionalPictureMemory(RefPictureSelection::AdditionalPictureMemory& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 7);
  m.isExtended = flags.Next();
  m.hasSqcifAdditionalPictureMemory = flags.Next();
  m.hasQcifAdditionalPictureMemory = flags.Next();
  m.hasCifAdditionalPictureMemory = flags.Next();
  m.hasCif4AdditionalPictureMemory = flags.Next();
  m.hasCif16AdditionalPictureMemory = flags.Next();
  m.hasBigCpfAdditionalPictureMemory = flags.Next();
  if (m.hasSqcifAdditionalPictureMemory) m.sqcifAdditionalPictureMemory = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.hasQcifAdditionalPictureMemory) m.qcifAdditionalPictureMemory = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.hasCifAdditionalPictureMemory) m.cifAdditionalPictureMemory = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.hasCif4AdditionalPictureMemory) m.cif4AdditionalPictureMemory = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.hasCif16AdditionalPictureMemory) m.cif16AdditionalPictureMemory = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.hasBigCpfAdditionalPictureMemory) m.bigCpfAdditionalPictureMemory = PerReadNumber<uint16_t>(r, 1, 256);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeSubPictureRemovalParameters(RefPictureSelection::EnhancedReferencePicSelect::SubPictureRemovalParameters& m,
                                       PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.mpuHorizMBs = PerReadNumber<uint8_t>(r, 1, 128);
  m.mpuVertMBs = PerReadNumber<uint8_t>(r, 1, 72);
  m.mpuTotalNumber = PerReadNumber<uint32_t>(r, 1, 65536);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEnhancedReferencePicSelect(RefPictureSelection::EnhancedReferencePicSelect& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasSubPictureRemovalParameters = flags.Next();
  if (m.hasSubPictureRemovalParameters) DecodeSubPictureRemovalParameters(m.subPictureRemovalParameters, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCustomPCFElement(CustomPictureFormat::MPI::CustomPCFElement& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.clockConversionCode = PerReadNumber<uint16_t>(r, 1000, 1001);
  m.clockDivisor = PerReadNumber<uint8_t>(r, 1, 127);
  m.customMPI = PerReadNumber<uint16_t>(r, 1, 2048);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeMPI(CustomPictureFormat::MPI& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasStandardMPI = flags.Next();
  m.hasCustomPCF = flags.Next();
  if (m.hasStandardMPI) m.standardMPI = PerReadNumber<uint8_t>(r, 1, 31);
  if (m.hasCustomPCF) KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.customPCF), r, 1, 16, DecodeCustomPCFElement));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeExtendedPARElement(CustomPictureFormat::PixelAspectInformation::ExtendedPARElement& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.width = PerReadNumber<uint8_t>(r, 1, 255);
  m.height = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodePixelAspectInformation(CustomPictureFormat::PixelAspectInformation& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: m.anyPixelAspectRatio = PerReadBit(r); return;
    case 1:
      KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m.pixelAspectCode), r, 1, 14, PerReadElement<uint8_t, 1, 14>));
      return;
    case 2: KELVRA_OR_STOP(DecodeSizedSequenceOf(ListOf(m.extendedPAR), r, 1, 256, DecodeExtendedPARElement)); return;
    default: return;
  }
}

void DecodeH261VideoCapability(H261VideoCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 3);
  m.isExtended = flags.Next();
  m.hasQcifMPI = flags.Next();
  m.hasCifMPI = flags.Next();
  if (m.hasQcifMPI) m.qcifMPI = PerReadNumber<uint8_t>(r, 1, 4);
  if (m.hasCifMPI) m.cifMPI = PerReadNumber<uint8_t>(r, 1, 4);
  m.temporalSpatialTradeOffCapability = PerReadBit(r);
  m.maxBitRate = PerReadNumber<uint16_t>(r, 1, 19200);
  m.stillImageTransmission = PerReadBit(r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasVideoBadMBsCap = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasVideoBadMBsCap) m.videoBadMBsCap = PerReadOpenBoolean(r);
  PerSkipOpenTypes(r, unknown);
}

void DecodeH262VideoCapability(H262VideoCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 18);
  m.isExtended = flags.Next();
  m.hasVideoBitRate = flags.Next();
  m.hasVbvBufferSize = flags.Next();
  m.hasSamplesPerLine = flags.Next();
  m.hasLinesPerFrame = flags.Next();
  m.hasFramesPerSecond = flags.Next();
  m.hasLuminanceSampleRate = flags.Next();
  m.profileAndLevelSPatML = flags.Next();
  m.profileAndLevelMPatLL = flags.Next();
  m.profileAndLevelMPatML = flags.Next();
  m.profileAndLevelMPatH14 = flags.Next();
  m.profileAndLevelMPatHL = flags.Next();
  m.profileAndLevelSNRatLL = flags.Next();
  m.profileAndLevelSNRatML = flags.Next();
  m.profileAndLevelSpatialatH14 = flags.Next();
  m.profileAndLevelHPatML = flags.Next();
  m.profileAndLevelHPatH14 = flags.Next();
  m.profileAndLevelHPatHL = flags.Next();
  if (m.hasVideoBitRate) m.videoBitRate = PerReadNumber<uint32_t>(r, 0, 1073741823);
  if (m.hasVbvBufferSize) m.vbvBufferSize = PerReadNumber<uint32_t>(r, 0, 262143);
  if (m.hasSamplesPerLine) m.samplesPerLine = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasLinesPerFrame) m.linesPerFrame = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasFramesPerSecond) m.framesPerSecond = PerReadNumber<uint8_t>(r, 0, 15);
  if (m.hasLuminanceSampleRate) m.luminanceSampleRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasVideoBadMBsCap = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasVideoBadMBsCap) m.videoBadMBsCap = PerReadOpenBoolean(r);
  PerSkipOpenTypes(r, unknown);
}

void DecodeIS11172VideoCapability(IS11172VideoCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasVideoBitRate = flags.Next();
  m.hasVbvBufferSize = flags.Next();
  m.hasSamplesPerLine = flags.Next();
  m.hasLinesPerFrame = flags.Next();
  m.hasPictureRate = flags.Next();
  m.hasLuminanceSampleRate = flags.Next();
  m.constrainedBitstream = flags.Next();
  if (m.hasVideoBitRate) m.videoBitRate = PerReadNumber<uint32_t>(r, 0, 1073741823);
  if (m.hasVbvBufferSize) m.vbvBufferSize = PerReadNumber<uint32_t>(r, 0, 262143);
  if (m.hasSamplesPerLine) m.samplesPerLine = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasLinesPerFrame) m.linesPerFrame = PerReadNumber<uint16_t>(r, 0, 16383);
  if (m.hasPictureRate) m.pictureRate = PerReadNumber<uint8_t>(r, 0, 15);
  if (m.hasLuminanceSampleRate) m.luminanceSampleRate = PerReadNumber<uint32_t>(r, 0, kUnsigned32Maximum);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasVideoBadMBsCap = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasVideoBadMBsCap) m.videoBadMBsCap = PerReadOpenBoolean(r);
  PerSkipOpenTypes(r, unknown);
}

void DecodeTransparencyParameters(TransparencyParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.presentationOrder = PerReadNumber<uint16_t>(r, 1, 256);
  m.offsetX = PerReadNumber<int32_t>(r, -262144, 262143);
  m.offsetY = PerReadNumber<int32_t>(r, -262144, 262143);
  m.scaleX = PerReadNumber<uint8_t>(r, 1, 255);
  m.scaleY = PerReadNumber<uint8_t>(r, 1, 255);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeRefPictureSelection(RefPictureSelection& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasAdditionalPictureMemory = flags.Next();
  if (m.hasAdditionalPictureMemory) DecodeAdditionalPictureMemory(m.additionalPictureMemory, r);
  m.videoMux = PerReadBit(r);
  DecodeNullChoice(m.videoBackChannelSend, r);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  m.hasEnhancedReferencePicSelect = PerReadAdditionBit(r, additions);
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasEnhancedReferencePicSelect) DecodeOpen(m.enhancedReferencePicSelect, r, DecodeEnhancedReferencePicSelect);
  PerSkipOpenTypes(r, unknown);
}

void DecodeCustomPictureClockFrequency(CustomPictureClockFrequency& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 6);
  m.isExtended = flags.Next();
  m.hasSqcifMPI = flags.Next();
  m.hasQcifMPI = flags.Next();
  m.hasCifMPI = flags.Next();
  m.hasCif4MPI = flags.Next();
  m.hasCif16MPI = flags.Next();
  m.clockConversionCode = PerReadNumber<uint16_t>(r, 1000, 1001);
  m.clockDivisor = PerReadNumber<uint8_t>(r, 1, 127);
  if (m.hasSqcifMPI) m.sqcifMPI = PerReadNumber<uint16_t>(r, 1, 2048);
  if (m.hasQcifMPI) m.qcifMPI = PerReadNumber<uint16_t>(r, 1, 2048);
  if (m.hasCifMPI) m.cifMPI = PerReadNumber<uint16_t>(r, 1, 2048);
  if (m.hasCif4MPI) m.cif4MPI = PerReadNumber<uint16_t>(r, 1, 2048);
  if (m.hasCif16MPI) m.cif16MPI = PerReadNumber<uint16_t>(r, 1, 2048);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeCustomPictureFormat(CustomPictureFormat& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  m.maxCustomPictureWidth = PerReadNumber<uint16_t>(r, 1, 2048);
  m.maxCustomPictureHeight = PerReadNumber<uint16_t>(r, 1, 2048);
  m.minCustomPictureWidth = PerReadNumber<uint16_t>(r, 1, 2048);
  m.minCustomPictureHeight = PerReadNumber<uint16_t>(r, 1, 2048);
  DecodeMPI(m.mPI, r);
  DecodePixelAspectInformation(m.pixelAspectInformation, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH263Version3Options(H263Version3Options& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 9);
  m.isExtended = flags.Next();
  m.dataPartitionedSlices = flags.Next();
  m.fixedPointIDCT0 = flags.Next();
  m.interlacedFields = flags.Next();
  m.currentPictureHeaderRepetition = flags.Next();
  m.previousPictureHeaderRepetition = flags.Next();
  m.nextPictureHeaderRepetition = flags.Next();
  m.pictureNumber = flags.Next();
  m.spareReferencePictures = flags.Next();
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH263ModeComboFlags(H263ModeComboFlags& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 22);
  m.isExtended = flags.Next();
  m.unrestrictedVector = flags.Next();
  m.arithmeticCoding = flags.Next();
  m.advancedPrediction = flags.Next();
  m.pbFrames = flags.Next();
  m.advancedIntraCodingMode = flags.Next();
  m.deblockingFilterMode = flags.Next();
  m.unlimitedMotionVectors = flags.Next();
  m.slicesInOrderNonRect = flags.Next();
  m.slicesInOrderRect = flags.Next();
  m.slicesNoOrderNonRect = flags.Next();
  m.slicesNoOrderRect = flags.Next();
  m.improvedPBFramesMode = flags.Next();
  m.referencePicSelect = flags.Next();
  m.dynamicPictureResizingByFour = flags.Next();
  m.dynamicPictureResizingSixteenthPel = flags.Next();
  m.dynamicWarpingHalfPel = flags.Next();
  m.dynamicWarpingSixteenthPel = flags.Next();
  m.reducedResolutionUpdate = flags.Next();
  m.independentSegmentDecoding = flags.Next();
  m.alternateInterVLCMode = flags.Next();
  m.modifiedQuantizationMode = flags.Next();
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasEnhancedReferencePicSelect = known.Next();
  m.hasH263Version3Options = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasEnhancedReferencePicSelect) m.enhancedReferencePicSelect = PerReadOpenBoolean(r);
  if (m.hasH263Version3Options) DecodeOpen(m.h263Version3Options, r, DecodeH263Version3Options);
  PerSkipOpenTypes(r, unknown);
}

void DecodeH263VideoModeCombos(H263VideoModeCombos& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeH263ModeComboFlags(m.h263VideoUncoupledModes, r);
  KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.h263VideoCoupledModes), r, 1, 16, DecodeH263ModeComboFlags));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeEnhancementOptions(EnhancementOptions& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 12);
  m.isExtended = flags.Next();
  m.hasSqcifMPI = flags.Next();
  m.hasQcifMPI = flags.Next();
  m.hasCifMPI = flags.Next();
  m.hasCif4MPI = flags.Next();
  m.hasCif16MPI = flags.Next();
  m.hasSlowSqcifMPI = flags.Next();
  m.hasSlowQcifMPI = flags.Next();
  m.hasSlowCifMPI = flags.Next();
  m.hasSlowCif4MPI = flags.Next();
  m.hasSlowCif16MPI = flags.Next();
  m.hasH263Options = flags.Next();
  if (m.hasSqcifMPI) m.sqcifMPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasQcifMPI) m.qcifMPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasCifMPI) m.cifMPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasCif4MPI) m.cif4MPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasCif16MPI) m.cif16MPI = PerReadNumber<uint8_t>(r, 1, 32);
  m.maxBitRate = PerReadNumber<uint32_t>(r, 1, 192400);
  flags = PerReadFlags(r, 3);
  m.unrestrictedVector = flags.Next();
  m.arithmeticCoding = flags.Next();
  m.temporalSpatialTradeOffCapability = flags.Next();
  if (m.hasSlowSqcifMPI) m.slowSqcifMPI = PerReadNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowQcifMPI) m.slowQcifMPI = PerReadNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowCifMPI) m.slowCifMPI = PerReadNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowCif4MPI) m.slowCif4MPI = PerReadNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowCif16MPI) m.slowCif16MPI = PerReadNumber<uint16_t>(r, 1, 3600);
  m.errorCompensation = PerReadBit(r);
  if (m.hasH263Options) DecodeH263Options(m.h263Options, r);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeBEnhancementParameters(BEnhancementParameters& m, PerReader& r) {
  m.isExtended = PerReadBit(r);
  DecodeEnhancementOptions(m.enhancementOptions, r);
  m.numberOfBPictures = PerReadNumber<uint8_t>(r, 1, 64);
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeH263VideoCapability(H263VideoCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 8);
  m.isExtended = flags.Next();
  m.hasSqcifMPI = flags.Next();
  m.hasQcifMPI = flags.Next();
  m.hasCifMPI = flags.Next();
  m.hasCif4MPI = flags.Next();
  m.hasCif16MPI = flags.Next();
  m.hasHrdB = flags.Next();
  m.hasBppMaxKb = flags.Next();
  if (m.hasSqcifMPI) m.sqcifMPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasQcifMPI) m.qcifMPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasCifMPI) m.cifMPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasCif4MPI) m.cif4MPI = PerReadNumber<uint8_t>(r, 1, 32);
  if (m.hasCif16MPI) m.cif16MPI = PerReadNumber<uint8_t>(r, 1, 32);
  m.maxBitRate = PerReadNumber<uint32_t>(r, 1, 192400);
  flags = PerReadFlags(r, 5);
  m.unrestrictedVector = flags.Next();
  m.arithmeticCoding = flags.Next();
  m.advancedPrediction = flags.Next();
  m.pbFrames = flags.Next();
  m.temporalSpatialTradeOffCapability = flags.Next();
  if (m.hasHrdB) m.hrdB = PerReadNumber<uint32_t>(r, 0, 524287);
  if (m.hasBppMaxKb) m.bppMaxKb = PerReadNumber<uint16_t>(r, 0, 65535);
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 8);
  m.hasSlowSqcifMPI = known.Next();
  m.hasSlowQcifMPI = known.Next();
  m.hasSlowCifMPI = known.Next();
  m.hasSlowCif4MPI = known.Next();
  m.hasSlowCif16MPI = known.Next();
  m.hasErrorCompensation = known.Next();
  m.hasEnhancementLayerInfo = known.Next();
  m.hasH263Options = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasSlowSqcifMPI) m.slowSqcifMPI = PerReadOpenNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowQcifMPI) m.slowQcifMPI = PerReadOpenNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowCifMPI) m.slowCifMPI = PerReadOpenNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowCif4MPI) m.slowCif4MPI = PerReadOpenNumber<uint16_t>(r, 1, 3600);
  if (m.hasSlowCif16MPI) m.slowCif16MPI = PerReadOpenNumber<uint16_t>(r, 1, 3600);
  if (m.hasErrorCompensation) m.errorCompensation = PerReadOpenBoolean(r);
  if (m.hasEnhancementLayerInfo) DecodeOpen(m.enhancementLayerInfo, r, DecodeEnhancementLayerInfo);
  if (m.hasH263Options) DecodeOpen(m.h263Options, r, DecodeH263Options);
  PerSkipOpenTypes(r, unknown);
}

void DecodeExtendedVideoCapability(ExtendedVideoCapability& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 2);
  m.isExtended = flags.Next();
  m.hasVideoCapabilityExtension = flags.Next();
  KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.videoCapability), r, DecodeVideoCapability));
  if (m.hasVideoCapabilityExtension)
    KELVRA_OR_STOP(DecodeSequenceOf(KELVRA_LIST(m.videoCapabilityExtension), r, DecodeGenericCapability));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

}  // namespace

void DecodeH263Options(H263Options& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 29);
  m.isExtended = flags.Next();
  m.hasTransparencyParameters = flags.Next();
  m.hasRefPictureSelection = flags.Next();
  m.hasCustomPictureClockFrequency = flags.Next();
  m.hasCustomPictureFormat = flags.Next();
  m.hasModeCombos = flags.Next();
  m.advancedIntraCodingMode = flags.Next();
  m.deblockingFilterMode = flags.Next();
  m.improvedPBFramesMode = flags.Next();
  m.unlimitedMotionVectors = flags.Next();
  m.fullPictureFreeze = flags.Next();
  m.partialPictureFreezeAndRelease = flags.Next();
  m.resizingPartPicFreezeAndRelease = flags.Next();
  m.fullPictureSnapshot = flags.Next();
  m.partialPictureSnapshot = flags.Next();
  m.videoSegmentTagging = flags.Next();
  m.progressiveRefinement = flags.Next();
  m.dynamicPictureResizingByFour = flags.Next();
  m.dynamicPictureResizingSixteenthPel = flags.Next();
  m.dynamicWarpingHalfPel = flags.Next();
  m.dynamicWarpingSixteenthPel = flags.Next();
  m.independentSegmentDecoding = flags.Next();
  m.slicesInOrderNonRect = flags.Next();
  m.slicesInOrderRect = flags.Next();
  m.slicesNoOrderNonRect = flags.Next();
  m.slicesNoOrderRect = flags.Next();
  m.alternateInterVLCMode = flags.Next();
  m.modifiedQuantizationMode = flags.Next();
  m.reducedResolutionUpdate = flags.Next();
  if (m.hasTransparencyParameters) DecodeTransparencyParameters(m.transparencyParameters, r);
  m.separateVideoBackChannel = PerReadBit(r);
  if (m.hasRefPictureSelection) DecodeRefPictureSelection(m.refPictureSelection, r);
  if (m.hasCustomPictureClockFrequency)
    KELVRA_OR_STOP(
        DecodeSizedSequenceOf(KELVRA_LIST(m.customPictureClockFrequency), r, 1, 16, DecodeCustomPictureClockFrequency));
  if (m.hasCustomPictureFormat)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.customPictureFormat), r, 1, 16, DecodeCustomPictureFormat));
  if (m.hasModeCombos)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.modeCombos), r, 1, 16, DecodeH263VideoModeCombos));
  if (!m.isExtended) return;

  int32_t additions = PerReadBitmapLength8(r);
  PerFlags known = PerReadKnownAdditions(r, additions, 2);
  m.hasVideoBadMBsCap = known.Next();
  m.hasH263Version3Options = known.Next();
  const int32_t unknown = PerCountUnknownAdditions(r, additions);
  if (m.hasVideoBadMBsCap) m.videoBadMBsCap = PerReadOpenBoolean(r);
  if (m.hasH263Version3Options) DecodeOpen(m.h263Version3Options, r, DecodeH263Version3Options);
  PerSkipOpenTypes(r, unknown);
}

void DecodeEnhancementLayerInfo(EnhancementLayerInfo& m, PerReader& r) {
  PerFlags flags = PerReadFlags(r, 5);
  m.isExtended = flags.Next();
  m.hasSnrEnhancement = flags.Next();
  m.hasSpatialEnhancement = flags.Next();
  m.hasBPictureEnhancement = flags.Next();
  m.baseBitRateConstrained = flags.Next();
  if (m.hasSnrEnhancement)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.snrEnhancement), r, 1, 14, DecodeEnhancementOptions));
  if (m.hasSpatialEnhancement)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.spatialEnhancement), r, 1, 14, DecodeEnhancementOptions));
  if (m.hasBPictureEnhancement)
    KELVRA_OR_STOP(DecodeSizedSequenceOf(KELVRA_LIST(m.bPictureEnhancement), r, 1, 14, DecodeBEnhancementParameters));
  if (m.isExtended) PerSkipExtensionAdditions(r);
}

void DecodeVideoCapability(VideoCapability& m, PerReader& r) {
  const RecursionLevel level(r);
  if (level.TooDeep()) return PerMoveToEnd(r);
  const uint32_t index = ReadChoice(m, r, 5);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.genericVideoCapability, r, DecodeGenericCapability);
      case 1: return DecodeOpenPointer(KELVRA_SLOT(m.extendedVideoCapability), r, DecodeExtendedVideoCapability);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 1: return DecodeH261VideoCapability(m.h261VideoCapability, r);
    case 2: return DecodeH262VideoCapability(m.h262VideoCapability, r);
    case 3: return DecodeH263VideoCapability(m.h263VideoCapability, r);
    case 4: return DecodeIS11172VideoCapability(m.is11172VideoCapability, r);
    default: return;
  }
}

}  // namespace kelvra::h245
