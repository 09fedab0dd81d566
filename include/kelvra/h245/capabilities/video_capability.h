// Video capabilities.
#pragma once

#include "../common/generic_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct VideoCapability;

struct H261VideoCapability {
  uint32_t hasQcifMPI;
  uint8_t qcifMPI;
  uint32_t hasCifMPI;
  uint8_t cifMPI;
  uint32_t temporalSpatialTradeOffCapability;
  uint16_t maxBitRate;
  uint32_t stillImageTransmission;
  uint32_t isExtended;
  uint32_t hasVideoBadMBsCap;
  uint32_t videoBadMBsCap;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasQcifMPI, qcifMPI, Integer(1, 4));
    KELVRA_OPTIONAL(hasCifMPI, cifMPI, Integer(1, 4));
    KELVRA_MEMBER(temporalSpatialTradeOffCapability, Boolean());
    KELVRA_MEMBER(maxBitRate, Integer(1, 19200));
    KELVRA_MEMBER(stillImageTransmission, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasVideoBadMBsCap, videoBadMBsCap, Boolean());
  KELVRA_END
};

struct H262VideoCapability {
  uint32_t profileAndLevelSPatML;
  uint32_t profileAndLevelMPatLL;
  uint32_t profileAndLevelMPatML;
  uint32_t profileAndLevelMPatH14;
  uint32_t profileAndLevelMPatHL;
  uint32_t profileAndLevelSNRatLL;
  uint32_t profileAndLevelSNRatML;
  uint32_t profileAndLevelSpatialatH14;
  uint32_t profileAndLevelHPatML;
  uint32_t profileAndLevelHPatH14;
  uint32_t profileAndLevelHPatHL;
  uint32_t hasVideoBitRate;
  uint32_t videoBitRate;
  uint32_t hasVbvBufferSize;
  uint32_t vbvBufferSize;
  uint32_t hasSamplesPerLine;
  uint16_t samplesPerLine;
  uint32_t hasLinesPerFrame;
  uint16_t linesPerFrame;
  uint32_t hasFramesPerSecond;
  uint8_t framesPerSecond;
  uint32_t hasLuminanceSampleRate;
  uint32_t luminanceSampleRate;
  uint32_t isExtended;
  uint32_t hasVideoBadMBsCap;
  uint32_t videoBadMBsCap;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(profileAndLevelSPatML, Named("profileAndLevel-SPatML", Boolean()));
    KELVRA_MEMBER(profileAndLevelMPatLL, Named("profileAndLevel-MPatLL", Boolean()));
    KELVRA_MEMBER(profileAndLevelMPatML, Named("profileAndLevel-MPatML", Boolean()));
    KELVRA_MEMBER(profileAndLevelMPatH14, Named("profileAndLevel-MPatH-14", Boolean()));
    KELVRA_MEMBER(profileAndLevelMPatHL, Named("profileAndLevel-MPatHL", Boolean()));
    KELVRA_MEMBER(profileAndLevelSNRatLL, Named("profileAndLevel-SNRatLL", Boolean()));
    KELVRA_MEMBER(profileAndLevelSNRatML, Named("profileAndLevel-SNRatML", Boolean()));
    KELVRA_MEMBER(profileAndLevelSpatialatH14, Named("profileAndLevel-SpatialatH-14", Boolean()));
    KELVRA_MEMBER(profileAndLevelHPatML, Named("profileAndLevel-HPatML", Boolean()));
    KELVRA_MEMBER(profileAndLevelHPatH14, Named("profileAndLevel-HPatH-14", Boolean()));
    KELVRA_MEMBER(profileAndLevelHPatHL, Named("profileAndLevel-HPatHL", Boolean()));
    KELVRA_OPTIONAL(hasVideoBitRate, videoBitRate, Integer(0, 1073741823));
    KELVRA_OPTIONAL(hasVbvBufferSize, vbvBufferSize, Integer(0, 262143));
    KELVRA_OPTIONAL(hasSamplesPerLine, samplesPerLine, Integer(0, 16383));
    KELVRA_OPTIONAL(hasLinesPerFrame, linesPerFrame, Integer(0, 16383));
    KELVRA_OPTIONAL(hasFramesPerSecond, framesPerSecond, Integer(0, 15));
    KELVRA_OPTIONAL(hasLuminanceSampleRate, luminanceSampleRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasVideoBadMBsCap, videoBadMBsCap, Boolean());
  KELVRA_END
};

struct IS11172VideoCapability {
  uint32_t constrainedBitstream;
  uint32_t hasVideoBitRate;
  uint32_t videoBitRate;
  uint32_t hasVbvBufferSize;
  uint32_t vbvBufferSize;
  uint32_t hasSamplesPerLine;
  uint16_t samplesPerLine;
  uint32_t hasLinesPerFrame;
  uint16_t linesPerFrame;
  uint32_t hasPictureRate;
  uint8_t pictureRate;
  uint32_t hasLuminanceSampleRate;
  uint32_t luminanceSampleRate;
  uint32_t isExtended;
  uint32_t hasVideoBadMBsCap;
  uint32_t videoBadMBsCap;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(constrainedBitstream, Boolean());
    KELVRA_OPTIONAL(hasVideoBitRate, videoBitRate, Integer(0, 1073741823));
    KELVRA_OPTIONAL(hasVbvBufferSize, vbvBufferSize, Integer(0, 262143));
    KELVRA_OPTIONAL(hasSamplesPerLine, samplesPerLine, Integer(0, 16383));
    KELVRA_OPTIONAL(hasLinesPerFrame, linesPerFrame, Integer(0, 16383));
    KELVRA_OPTIONAL(hasPictureRate, pictureRate, Integer(0, 15));
    KELVRA_OPTIONAL(hasLuminanceSampleRate, luminanceSampleRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasVideoBadMBsCap, videoBadMBsCap, Boolean());
  KELVRA_END
};

struct TransparencyParameters {
  uint16_t presentationOrder;
  int32_t offsetX;
  int32_t offsetY;
  uint8_t scaleX;
  uint8_t scaleY;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(presentationOrder, Integer(1, 256));
    KELVRA_MEMBER(offsetX, Named("offset-x", Integer(-262144, 262143)));
    KELVRA_MEMBER(offsetY, Named("offset-y", Integer(-262144, 262143)));
    KELVRA_MEMBER(scaleX, Named("scale-x", Integer(1, 255)));
    KELVRA_MEMBER(scaleY, Named("scale-y", Integer(1, 255)));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct RefPictureSelection {
  struct AdditionalPictureMemory {
    uint32_t hasSqcifAdditionalPictureMemory;
    uint16_t sqcifAdditionalPictureMemory;
    uint32_t hasQcifAdditionalPictureMemory;
    uint16_t qcifAdditionalPictureMemory;
    uint32_t hasCifAdditionalPictureMemory;
    uint16_t cifAdditionalPictureMemory;
    uint32_t hasCif4AdditionalPictureMemory;
    uint16_t cif4AdditionalPictureMemory;
    uint32_t hasCif16AdditionalPictureMemory;
    uint16_t cif16AdditionalPictureMemory;
    uint32_t hasBigCpfAdditionalPictureMemory;
    uint16_t bigCpfAdditionalPictureMemory;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasSqcifAdditionalPictureMemory, sqcifAdditionalPictureMemory, Integer(1, 256));
      KELVRA_OPTIONAL(hasQcifAdditionalPictureMemory, qcifAdditionalPictureMemory, Integer(1, 256));
      KELVRA_OPTIONAL(hasCifAdditionalPictureMemory, cifAdditionalPictureMemory, Integer(1, 256));
      KELVRA_OPTIONAL(hasCif4AdditionalPictureMemory, cif4AdditionalPictureMemory, Integer(1, 256));
      KELVRA_OPTIONAL(hasCif16AdditionalPictureMemory, cif16AdditionalPictureMemory, Integer(1, 256));
      KELVRA_OPTIONAL(hasBigCpfAdditionalPictureMemory, bigCpfAdditionalPictureMemory, Integer(1, 256));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  KELVRA_NULL_CHOICE(NullChoice, VideoBackChannelSend, 5, "none", "ackMessageOnly", "nackMessageOnly",
                     "ackOrNackMessageOnly", "ackAndNackMessage");

  struct EnhancedReferencePicSelect {
    struct SubPictureRemovalParameters {
      uint8_t mpuHorizMBs;
      uint8_t mpuVertMBs;
      uint32_t mpuTotalNumber;
      uint32_t isExtended;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(mpuHorizMBs, Integer(1, 128));
        KELVRA_MEMBER(mpuVertMBs, Integer(1, 72));
        KELVRA_MEMBER(mpuTotalNumber, Integer(1, 65536));
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    uint32_t hasSubPictureRemovalParameters;
    SubPictureRemovalParameters subPictureRemovalParameters;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasSubPictureRemovalParameters, subPictureRemovalParameters, InlineType());
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  uint32_t hasAdditionalPictureMemory;
  AdditionalPictureMemory additionalPictureMemory;
  uint32_t videoMux;
  VideoBackChannelSend videoBackChannelSend;
  uint32_t isExtended;
  uint32_t hasEnhancedReferencePicSelect;
  EnhancedReferencePicSelect enhancedReferencePicSelect;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasAdditionalPictureMemory, additionalPictureMemory, InlineType());
    KELVRA_MEMBER(videoMux, Boolean());
    KELVRA_MEMBER(videoBackChannelSend, DefinedType());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasEnhancedReferencePicSelect, enhancedReferencePicSelect, InlineType());
  KELVRA_END
};

struct CustomPictureClockFrequency {
  uint16_t clockConversionCode;
  uint8_t clockDivisor;
  uint32_t hasSqcifMPI;
  uint16_t sqcifMPI;
  uint32_t hasQcifMPI;
  uint16_t qcifMPI;
  uint32_t hasCifMPI;
  uint16_t cifMPI;
  uint32_t hasCif4MPI;
  uint16_t cif4MPI;
  uint32_t hasCif16MPI;
  uint16_t cif16MPI;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(clockConversionCode, Integer(1000, 1001));
    KELVRA_MEMBER(clockDivisor, Integer(1, 127));
    KELVRA_OPTIONAL(hasSqcifMPI, sqcifMPI, Integer(1, 2048));
    KELVRA_OPTIONAL(hasQcifMPI, qcifMPI, Integer(1, 2048));
    KELVRA_OPTIONAL(hasCifMPI, cifMPI, Integer(1, 2048));
    KELVRA_OPTIONAL(hasCif4MPI, cif4MPI, Integer(1, 2048));
    KELVRA_OPTIONAL(hasCif16MPI, cif16MPI, Integer(1, 2048));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct CustomPictureFormat {
  struct MPI {
    struct CustomPCFElement {
      uint16_t clockConversionCode;
      uint8_t clockDivisor;
      uint16_t customMPI;
      uint32_t isExtended;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(clockConversionCode, Integer(1000, 1001));
        KELVRA_MEMBER(clockDivisor, Integer(1, 127));
        KELVRA_MEMBER(customMPI, Integer(1, 2048));
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    uint32_t hasStandardMPI;
    uint8_t standardMPI;
    uint32_t hasCustomPCF;
    uint8_t customPCFCount;
    CustomPCFElement* customPCF;
    uint32_t isExtended;

    KELVRA_SEQUENCE
      KELVRA_OPTIONAL(hasStandardMPI, standardMPI, Integer(1, 31));
      KELVRA_OPTIONAL_LIST(hasCustomPCF, customPCF, SequenceOf(1, 16, InlineType()));
      KELVRA_EXTENSION(isExtended);
    KELVRA_END
  };

  struct PixelAspectInformation {
    struct ExtendedPARElement {
      uint8_t width;
      uint8_t height;
      uint32_t isExtended;
      KELVRA_SEQUENCE
        KELVRA_MEMBER(width, Integer(1, 255));
        KELVRA_MEMBER(height, Integer(1, 255));
        KELVRA_EXTENSION(isExtended);
      KELVRA_END
    };

    struct PixelAspectCodeList {
      uint8_t count;
      uint8_t* elements;
    };
    struct ExtendedPARList {
      uint16_t count;
      ExtendedPARElement* elements;
    };

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      uint32_t anyPixelAspectRatio;
      PixelAspectCodeList pixelAspectCode;
      ExtendedPARList extendedPAR;
    };

    KELVRA_CHOICE(choiceTag)
      KELVRA_ALTERNATIVE(anyPixelAspectRatio, Boolean());
      KELVRA_ALTERNATIVE(pixelAspectCode, SequenceOf(1, 14, Integer(1, 14)));
      KELVRA_ALTERNATIVE(extendedPAR, SequenceOf(1, 256, InlineType()));
      KELVRA_EXTENSION(isExtension);
    KELVRA_END
  };

  uint16_t maxCustomPictureWidth;
  uint16_t maxCustomPictureHeight;
  uint16_t minCustomPictureWidth;
  uint16_t minCustomPictureHeight;
  MPI mPI;
  PixelAspectInformation pixelAspectInformation;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(maxCustomPictureWidth, Integer(1, 2048));
    KELVRA_MEMBER(maxCustomPictureHeight, Integer(1, 2048));
    KELVRA_MEMBER(minCustomPictureWidth, Integer(1, 2048));
    KELVRA_MEMBER(minCustomPictureHeight, Integer(1, 2048));
    KELVRA_MEMBER(mPI, InlineType());
    KELVRA_MEMBER(pixelAspectInformation, InlineType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H263Version3Options {
  uint32_t dataPartitionedSlices;
  uint32_t fixedPointIDCT0;
  uint32_t interlacedFields;
  uint32_t currentPictureHeaderRepetition;
  uint32_t previousPictureHeaderRepetition;
  uint32_t nextPictureHeaderRepetition;
  uint32_t pictureNumber;
  uint32_t spareReferencePictures;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(dataPartitionedSlices, Boolean());
    KELVRA_MEMBER(fixedPointIDCT0, Boolean());
    KELVRA_MEMBER(interlacedFields, Boolean());
    KELVRA_MEMBER(currentPictureHeaderRepetition, Boolean());
    KELVRA_MEMBER(previousPictureHeaderRepetition, Boolean());
    KELVRA_MEMBER(nextPictureHeaderRepetition, Boolean());
    KELVRA_MEMBER(pictureNumber, Boolean());
    KELVRA_MEMBER(spareReferencePictures, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H263ModeComboFlags {
  uint32_t unrestrictedVector;
  uint32_t arithmeticCoding;
  uint32_t advancedPrediction;
  uint32_t pbFrames;
  uint32_t advancedIntraCodingMode;
  uint32_t deblockingFilterMode;
  uint32_t unlimitedMotionVectors;
  uint32_t slicesInOrderNonRect;
  uint32_t slicesInOrderRect;
  uint32_t slicesNoOrderNonRect;
  uint32_t slicesNoOrderRect;
  uint32_t improvedPBFramesMode;
  uint32_t referencePicSelect;
  uint32_t dynamicPictureResizingByFour;
  uint32_t dynamicPictureResizingSixteenthPel;
  uint32_t dynamicWarpingHalfPel;
  uint32_t dynamicWarpingSixteenthPel;
  uint32_t reducedResolutionUpdate;
  uint32_t independentSegmentDecoding;
  uint32_t alternateInterVLCMode;
  uint32_t modifiedQuantizationMode;
  uint32_t isExtended;
  uint32_t hasEnhancedReferencePicSelect;
  uint32_t enhancedReferencePicSelect;
  uint32_t hasH263Version3Options;
  H263Version3Options h263Version3Options;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(unrestrictedVector, Boolean());
    KELVRA_MEMBER(arithmeticCoding, Boolean());
    KELVRA_MEMBER(advancedPrediction, Boolean());
    KELVRA_MEMBER(pbFrames, Boolean());
    KELVRA_MEMBER(advancedIntraCodingMode, Boolean());
    KELVRA_MEMBER(deblockingFilterMode, Boolean());
    KELVRA_MEMBER(unlimitedMotionVectors, Boolean());
    KELVRA_MEMBER(slicesInOrderNonRect, Named("slicesInOrder-NonRect", Boolean()));
    KELVRA_MEMBER(slicesInOrderRect, Named("slicesInOrder-Rect", Boolean()));
    KELVRA_MEMBER(slicesNoOrderNonRect, Named("slicesNoOrder-NonRect", Boolean()));
    KELVRA_MEMBER(slicesNoOrderRect, Named("slicesNoOrder-Rect", Boolean()));
    KELVRA_MEMBER(improvedPBFramesMode, Boolean());
    KELVRA_MEMBER(referencePicSelect, Boolean());
    KELVRA_MEMBER(dynamicPictureResizingByFour, Boolean());
    KELVRA_MEMBER(dynamicPictureResizingSixteenthPel, Boolean());
    KELVRA_MEMBER(dynamicWarpingHalfPel, Boolean());
    KELVRA_MEMBER(dynamicWarpingSixteenthPel, Boolean());
    KELVRA_MEMBER(reducedResolutionUpdate, Boolean());
    KELVRA_MEMBER(independentSegmentDecoding, Boolean());
    KELVRA_MEMBER(alternateInterVLCMode, Boolean());
    KELVRA_MEMBER(modifiedQuantizationMode, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasEnhancedReferencePicSelect, enhancedReferencePicSelect, Boolean());
    KELVRA_ADDITION(hasH263Version3Options, h263Version3Options, DefinedType());
  KELVRA_END
};

struct H263VideoModeCombos {
  H263ModeComboFlags h263VideoUncoupledModes;
  uint8_t h263VideoCoupledModesCount;
  H263ModeComboFlags* h263VideoCoupledModes;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(h263VideoUncoupledModes, DefinedType());
    KELVRA_MEMBER_LIST(h263VideoCoupledModes, SequenceOf(1, 16, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H263Options {
  uint32_t advancedIntraCodingMode;
  uint32_t deblockingFilterMode;
  uint32_t improvedPBFramesMode;
  uint32_t unlimitedMotionVectors;
  uint32_t fullPictureFreeze;
  uint32_t partialPictureFreezeAndRelease;
  uint32_t resizingPartPicFreezeAndRelease;
  uint32_t fullPictureSnapshot;
  uint32_t partialPictureSnapshot;
  uint32_t videoSegmentTagging;
  uint32_t progressiveRefinement;
  uint32_t dynamicPictureResizingByFour;
  uint32_t dynamicPictureResizingSixteenthPel;
  uint32_t dynamicWarpingHalfPel;
  uint32_t dynamicWarpingSixteenthPel;
  uint32_t independentSegmentDecoding;
  uint32_t slicesInOrderNonRect;
  uint32_t slicesInOrderRect;
  uint32_t slicesNoOrderNonRect;
  uint32_t slicesNoOrderRect;
  uint32_t alternateInterVLCMode;
  uint32_t modifiedQuantizationMode;
  uint32_t reducedResolutionUpdate;
  uint32_t hasTransparencyParameters;
  TransparencyParameters transparencyParameters;
  uint32_t separateVideoBackChannel;
  uint32_t hasRefPictureSelection;
  RefPictureSelection refPictureSelection;
  uint32_t hasCustomPictureClockFrequency;
  uint8_t customPictureClockFrequencyCount;
  CustomPictureClockFrequency* customPictureClockFrequency;
  uint32_t hasCustomPictureFormat;
  uint8_t customPictureFormatCount;
  CustomPictureFormat* customPictureFormat;
  uint32_t hasModeCombos;
  uint8_t modeCombosCount;
  H263VideoModeCombos* modeCombos;
  uint32_t isExtended;
  uint32_t hasVideoBadMBsCap;
  uint32_t videoBadMBsCap;
  uint32_t hasH263Version3Options;
  H263Version3Options h263Version3Options;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(advancedIntraCodingMode, Boolean());
    KELVRA_MEMBER(deblockingFilterMode, Boolean());
    KELVRA_MEMBER(improvedPBFramesMode, Boolean());
    KELVRA_MEMBER(unlimitedMotionVectors, Boolean());
    KELVRA_MEMBER(fullPictureFreeze, Boolean());
    KELVRA_MEMBER(partialPictureFreezeAndRelease, Boolean());
    KELVRA_MEMBER(resizingPartPicFreezeAndRelease, Boolean());
    KELVRA_MEMBER(fullPictureSnapshot, Boolean());
    KELVRA_MEMBER(partialPictureSnapshot, Boolean());
    KELVRA_MEMBER(videoSegmentTagging, Boolean());
    KELVRA_MEMBER(progressiveRefinement, Boolean());
    KELVRA_MEMBER(dynamicPictureResizingByFour, Boolean());
    KELVRA_MEMBER(dynamicPictureResizingSixteenthPel, Boolean());
    KELVRA_MEMBER(dynamicWarpingHalfPel, Boolean());
    KELVRA_MEMBER(dynamicWarpingSixteenthPel, Boolean());
    KELVRA_MEMBER(independentSegmentDecoding, Boolean());
    KELVRA_MEMBER(slicesInOrderNonRect, Named("slicesInOrder-NonRect", Boolean()));
    KELVRA_MEMBER(slicesInOrderRect, Named("slicesInOrder-Rect", Boolean()));
    KELVRA_MEMBER(slicesNoOrderNonRect, Named("slicesNoOrder-NonRect", Boolean()));
    KELVRA_MEMBER(slicesNoOrderRect, Named("slicesNoOrder-Rect", Boolean()));
    KELVRA_MEMBER(alternateInterVLCMode, Boolean());
    KELVRA_MEMBER(modifiedQuantizationMode, Boolean());
    KELVRA_MEMBER(reducedResolutionUpdate, Boolean());
    KELVRA_OPTIONAL(hasTransparencyParameters, transparencyParameters, DefinedType());
    KELVRA_MEMBER(separateVideoBackChannel, Boolean());
    KELVRA_OPTIONAL(hasRefPictureSelection, refPictureSelection, DefinedType());
    KELVRA_OPTIONAL_LIST(hasCustomPictureClockFrequency, customPictureClockFrequency, SequenceOf(1, 16, DefinedType()));
    KELVRA_OPTIONAL_LIST(hasCustomPictureFormat, customPictureFormat, SequenceOf(1, 16, DefinedType()));
    KELVRA_OPTIONAL_LIST(hasModeCombos, modeCombos, SequenceOf(1, 16, DefinedType()));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasVideoBadMBsCap, videoBadMBsCap, Boolean());
    KELVRA_ADDITION(hasH263Version3Options, h263Version3Options, DefinedType());
  KELVRA_END
};

struct EnhancementOptions {
  uint32_t hasSqcifMPI;
  uint8_t sqcifMPI;
  uint32_t hasQcifMPI;
  uint8_t qcifMPI;
  uint32_t hasCifMPI;
  uint8_t cifMPI;
  uint32_t hasCif4MPI;
  uint8_t cif4MPI;
  uint32_t hasCif16MPI;
  uint8_t cif16MPI;
  uint32_t maxBitRate;
  uint32_t unrestrictedVector;
  uint32_t arithmeticCoding;
  uint32_t temporalSpatialTradeOffCapability;
  uint32_t hasSlowSqcifMPI;
  uint16_t slowSqcifMPI;
  uint32_t hasSlowQcifMPI;
  uint16_t slowQcifMPI;
  uint32_t hasSlowCifMPI;
  uint16_t slowCifMPI;
  uint32_t hasSlowCif4MPI;
  uint16_t slowCif4MPI;
  uint32_t hasSlowCif16MPI;
  uint16_t slowCif16MPI;
  uint32_t errorCompensation;
  uint32_t hasH263Options;
  H263Options h263Options;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasSqcifMPI, sqcifMPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasQcifMPI, qcifMPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasCifMPI, cifMPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasCif4MPI, cif4MPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasCif16MPI, cif16MPI, Integer(1, 32));
    KELVRA_MEMBER(maxBitRate, Integer(1, 192400));
    KELVRA_MEMBER(unrestrictedVector, Boolean());
    KELVRA_MEMBER(arithmeticCoding, Boolean());
    KELVRA_MEMBER(temporalSpatialTradeOffCapability, Boolean());
    KELVRA_OPTIONAL(hasSlowSqcifMPI, slowSqcifMPI, Integer(1, 3600));
    KELVRA_OPTIONAL(hasSlowQcifMPI, slowQcifMPI, Integer(1, 3600));
    KELVRA_OPTIONAL(hasSlowCifMPI, slowCifMPI, Integer(1, 3600));
    KELVRA_OPTIONAL(hasSlowCif4MPI, slowCif4MPI, Integer(1, 3600));
    KELVRA_OPTIONAL(hasSlowCif16MPI, slowCif16MPI, Integer(1, 3600));
    KELVRA_MEMBER(errorCompensation, Boolean());
    KELVRA_OPTIONAL(hasH263Options, h263Options, DefinedType());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct BEnhancementParameters {
  EnhancementOptions enhancementOptions;
  uint8_t numberOfBPictures;
  uint32_t isExtended;
  KELVRA_SEQUENCE
    KELVRA_MEMBER(enhancementOptions, DefinedType());
    KELVRA_MEMBER(numberOfBPictures, Integer(1, 64));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct EnhancementLayerInfo {
  uint32_t baseBitRateConstrained;
  uint32_t hasSnrEnhancement;
  uint8_t snrEnhancementCount;
  EnhancementOptions* snrEnhancement;
  uint32_t hasSpatialEnhancement;
  uint8_t spatialEnhancementCount;
  EnhancementOptions* spatialEnhancement;
  uint32_t hasBPictureEnhancement;
  uint8_t bPictureEnhancementCount;
  BEnhancementParameters* bPictureEnhancement;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(baseBitRateConstrained, Boolean());
    KELVRA_OPTIONAL_LIST(hasSnrEnhancement, snrEnhancement, SequenceOf(1, 14, DefinedType()));
    KELVRA_OPTIONAL_LIST(hasSpatialEnhancement, spatialEnhancement, SequenceOf(1, 14, DefinedType()));
    KELVRA_OPTIONAL_LIST(hasBPictureEnhancement, bPictureEnhancement, SequenceOf(1, 14, DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H263VideoCapability {
  uint32_t hasSqcifMPI;
  uint8_t sqcifMPI;
  uint32_t hasQcifMPI;
  uint8_t qcifMPI;
  uint32_t hasCifMPI;
  uint8_t cifMPI;
  uint32_t hasCif4MPI;
  uint8_t cif4MPI;
  uint32_t hasCif16MPI;
  uint8_t cif16MPI;
  uint32_t maxBitRate;
  uint32_t unrestrictedVector;
  uint32_t arithmeticCoding;
  uint32_t advancedPrediction;
  uint32_t pbFrames;
  uint32_t temporalSpatialTradeOffCapability;
  uint32_t hasHrdB;
  uint32_t hrdB;
  uint32_t hasBppMaxKb;
  uint16_t bppMaxKb;
  uint32_t isExtended;
  uint32_t hasSlowSqcifMPI;
  uint16_t slowSqcifMPI;
  uint32_t hasSlowQcifMPI;
  uint16_t slowQcifMPI;
  uint32_t hasSlowCifMPI;
  uint16_t slowCifMPI;
  uint32_t hasSlowCif4MPI;
  uint16_t slowCif4MPI;
  uint32_t hasSlowCif16MPI;
  uint16_t slowCif16MPI;
  uint32_t hasErrorCompensation;
  uint32_t errorCompensation;
  uint32_t hasEnhancementLayerInfo;
  EnhancementLayerInfo enhancementLayerInfo;
  uint32_t hasH263Options;
  H263Options h263Options;

  KELVRA_SEQUENCE
    KELVRA_OPTIONAL(hasSqcifMPI, sqcifMPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasQcifMPI, qcifMPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasCifMPI, cifMPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasCif4MPI, cif4MPI, Integer(1, 32));
    KELVRA_OPTIONAL(hasCif16MPI, cif16MPI, Integer(1, 32));
    KELVRA_MEMBER(maxBitRate, Integer(1, 192400));
    KELVRA_MEMBER(unrestrictedVector, Boolean());
    KELVRA_MEMBER(arithmeticCoding, Boolean());
    KELVRA_MEMBER(advancedPrediction, Boolean());
    KELVRA_MEMBER(pbFrames, Boolean());
    KELVRA_MEMBER(temporalSpatialTradeOffCapability, Boolean());
    KELVRA_OPTIONAL(hasHrdB, hrdB, Named("hrd-B", Integer(0, 524287)));
    KELVRA_OPTIONAL(hasBppMaxKb, bppMaxKb, Integer(0, 65535));
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasSlowSqcifMPI, slowSqcifMPI, Integer(1, 3600));
    KELVRA_ADDITION(hasSlowQcifMPI, slowQcifMPI, Integer(1, 3600));
    KELVRA_ADDITION(hasSlowCifMPI, slowCifMPI, Integer(1, 3600));
    KELVRA_ADDITION(hasSlowCif4MPI, slowCif4MPI, Integer(1, 3600));
    KELVRA_ADDITION(hasSlowCif16MPI, slowCif16MPI, Integer(1, 3600));
    KELVRA_ADDITION(hasErrorCompensation, errorCompensation, Boolean());
    KELVRA_ADDITION(hasEnhancementLayerInfo, enhancementLayerInfo, DefinedType());
    KELVRA_ADDITION(hasH263Options, h263Options, DefinedType());
  KELVRA_END
};

struct ExtendedVideoCapability {
  uint8_t videoCapabilityCount;
  VideoCapability* videoCapability;
  uint32_t hasVideoCapabilityExtension;
  uint8_t videoCapabilityExtensionCount;
  GenericCapability* videoCapabilityExtension;
  uint32_t isExtended;

  static constexpr bool kDecodedInPlace = true;
  KELVRA_SEQUENCE
    KELVRA_MEMBER_LIST(videoCapability, SequenceOf(DefinedType()));
    KELVRA_OPTIONAL_LIST(hasVideoCapabilityExtension, videoCapabilityExtension, SequenceOf(DefinedType()));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct VideoCapability {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    H261VideoCapability h261VideoCapability;
    H262VideoCapability h262VideoCapability;
    H263VideoCapability h263VideoCapability;
    IS11172VideoCapability is11172VideoCapability;
    GenericCapability genericVideoCapability;
    ExtendedVideoCapability* extendedVideoCapability;
  };

  static constexpr bool kRecursive = true;
  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(h261VideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(h262VideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(h263VideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(is11172VideoCapability, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(genericVideoCapability, DefinedType());
    KELVRA_ALTERNATIVE(extendedVideoCapability, IndirectType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
