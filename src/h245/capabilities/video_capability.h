// Video capabilities.
#pragma once

#include <stdint.h>

#include "../common/generic_capability.h"

namespace kelvra::h245 {

struct VideoCapability;

#pragma pack(push, 1)

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasQcifMPI) v.Number("qcifMPI", m.qcifMPI);
    if (m.hasCifMPI) v.Number("cifMPI", m.cifMPI);
    v.Boolean("temporalSpatialTradeOffCapability", m.temporalSpatialTradeOffCapability);
    v.Number("maxBitRate", m.maxBitRate);
    v.Boolean("stillImageTransmission", m.stillImageTransmission);
    if (m.hasVideoBadMBsCap) v.Boolean("videoBadMBsCap", m.videoBadMBsCap);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("profileAndLevel-SPatML", m.profileAndLevelSPatML);
    v.Boolean("profileAndLevel-MPatLL", m.profileAndLevelMPatLL);
    v.Boolean("profileAndLevel-MPatML", m.profileAndLevelMPatML);
    v.Boolean("profileAndLevel-MPatH-14", m.profileAndLevelMPatH14);
    v.Boolean("profileAndLevel-MPatHL", m.profileAndLevelMPatHL);
    v.Boolean("profileAndLevel-SNRatLL", m.profileAndLevelSNRatLL);
    v.Boolean("profileAndLevel-SNRatML", m.profileAndLevelSNRatML);
    v.Boolean("profileAndLevel-SpatialatH-14", m.profileAndLevelSpatialatH14);
    v.Boolean("profileAndLevel-HPatML", m.profileAndLevelHPatML);
    v.Boolean("profileAndLevel-HPatH-14", m.profileAndLevelHPatH14);
    v.Boolean("profileAndLevel-HPatHL", m.profileAndLevelHPatHL);
    if (m.hasVideoBitRate) v.Number("videoBitRate", m.videoBitRate);
    if (m.hasVbvBufferSize) v.Number("vbvBufferSize", m.vbvBufferSize);
    if (m.hasSamplesPerLine) v.Number("samplesPerLine", m.samplesPerLine);
    if (m.hasLinesPerFrame) v.Number("linesPerFrame", m.linesPerFrame);
    if (m.hasFramesPerSecond) v.Number("framesPerSecond", m.framesPerSecond);
    if (m.hasLuminanceSampleRate) v.Number("luminanceSampleRate", m.luminanceSampleRate);
    if (m.hasVideoBadMBsCap) v.Boolean("videoBadMBsCap", m.videoBadMBsCap);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("constrainedBitstream", m.constrainedBitstream);
    if (m.hasVideoBitRate) v.Number("videoBitRate", m.videoBitRate);
    if (m.hasVbvBufferSize) v.Number("vbvBufferSize", m.vbvBufferSize);
    if (m.hasSamplesPerLine) v.Number("samplesPerLine", m.samplesPerLine);
    if (m.hasLinesPerFrame) v.Number("linesPerFrame", m.linesPerFrame);
    if (m.hasPictureRate) v.Number("pictureRate", m.pictureRate);
    if (m.hasLuminanceSampleRate) v.Number("luminanceSampleRate", m.luminanceSampleRate);
    if (m.hasVideoBadMBsCap) v.Boolean("videoBadMBsCap", m.videoBadMBsCap);
  }
};

struct TransparencyParameters {
  uint16_t presentationOrder;
  int32_t offsetX;
  int32_t offsetY;
  uint8_t scaleX;
  uint8_t scaleY;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("presentationOrder", m.presentationOrder);
    v.Number("offset-x", m.offsetX);
    v.Number("offset-y", m.offsetY);
    v.Number("scale-x", m.scaleX);
    v.Number("scale-y", m.scaleY);
  }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasSqcifAdditionalPictureMemory) v.Number("sqcifAdditionalPictureMemory", m.sqcifAdditionalPictureMemory);
      if (m.hasQcifAdditionalPictureMemory) v.Number("qcifAdditionalPictureMemory", m.qcifAdditionalPictureMemory);
      if (m.hasCifAdditionalPictureMemory) v.Number("cifAdditionalPictureMemory", m.cifAdditionalPictureMemory);
      if (m.hasCif4AdditionalPictureMemory) v.Number("cif4AdditionalPictureMemory", m.cif4AdditionalPictureMemory);
      if (m.hasCif16AdditionalPictureMemory) v.Number("cif16AdditionalPictureMemory", m.cif16AdditionalPictureMemory);
      if (m.hasBigCpfAdditionalPictureMemory)
        v.Number("bigCpfAdditionalPictureMemory", m.bigCpfAdditionalPictureMemory);
    }
  };

  struct VideoBackChannelSendNames {
    static constexpr uint32_t kRoots = 5;
    static constexpr const char* kAlternatives[] = {"none", "ackMessageOnly", "nackMessageOnly", "ackOrNackMessageOnly",
                                                    "ackAndNackMessage"};
  };
  using VideoBackChannelSend = NullChoice<VideoBackChannelSendNames>;

  struct EnhancedReferencePicSelect {
    struct SubPictureRemovalParameters {
      uint8_t mpuHorizMBs;
      uint8_t mpuVertMBs;
      uint32_t mpuTotalNumber;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("mpuHorizMBs", m.mpuHorizMBs);
        v.Number("mpuVertMBs", m.mpuVertMBs);
        v.Number("mpuTotalNumber", m.mpuTotalNumber);
      }
    };

    uint32_t hasSubPictureRemovalParameters;
    SubPictureRemovalParameters subPictureRemovalParameters;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasSubPictureRemovalParameters) v.Record("subPictureRemovalParameters", m.subPictureRemovalParameters);
    }
  };

  uint32_t hasAdditionalPictureMemory;
  AdditionalPictureMemory additionalPictureMemory;
  uint32_t videoMux;
  VideoBackChannelSend videoBackChannelSend;
  uint32_t isExtended;
  uint32_t hasEnhancedReferencePicSelect;
  EnhancedReferencePicSelect enhancedReferencePicSelect;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasAdditionalPictureMemory) v.Record("additionalPictureMemory", m.additionalPictureMemory);
    v.Boolean("videoMux", m.videoMux);
    v.Record("videoBackChannelSend", m.videoBackChannelSend);
    if (m.hasEnhancedReferencePicSelect) v.Record("enhancedReferencePicSelect", m.enhancedReferencePicSelect);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("clockConversionCode", m.clockConversionCode);
    v.Number("clockDivisor", m.clockDivisor);
    if (m.hasSqcifMPI) v.Number("sqcifMPI", m.sqcifMPI);
    if (m.hasQcifMPI) v.Number("qcifMPI", m.qcifMPI);
    if (m.hasCifMPI) v.Number("cifMPI", m.cifMPI);
    if (m.hasCif4MPI) v.Number("cif4MPI", m.cif4MPI);
    if (m.hasCif16MPI) v.Number("cif16MPI", m.cif16MPI);
  }
};

struct CustomPictureFormat {
  struct MPI {
    struct CustomPCFElement {
      uint16_t clockConversionCode;
      uint8_t clockDivisor;
      uint16_t customMPI;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("clockConversionCode", m.clockConversionCode);
        v.Number("clockDivisor", m.clockDivisor);
        v.Number("customMPI", m.customMPI);
      }
    };

    uint32_t hasStandardMPI;
    uint8_t standardMPI;
    uint32_t hasCustomPCF;
    uint8_t customPCFCount;
    CustomPCFElement* customPCF;
    uint32_t isExtended;

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.hasStandardMPI) v.Number("standardMPI", m.standardMPI);
      if (m.hasCustomPCF) v.List("customPCF", KELVRA_LIST(m.customPCF));
    }
  };

  struct PixelAspectInformation {
    struct ExtendedPARElement {
      uint8_t width;
      uint8_t height;
      uint32_t isExtended;

      template <class Record, class Visitor>
      static void Walk(Record& m, Visitor& v) {
        v.Number("width", m.width);
        v.Number("height", m.height);
      }
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

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) return v.UnknownExtension(m.choiceTag);
      switch (m.choiceTag) {
        case 0: return v.Boolean("anyPixelAspectRatio", m.anyPixelAspectRatio);
        case 1: return v.Numbers("pixelAspectCode", ListOf(m.pixelAspectCode));
        case 2: return v.List("extendedPAR", ListOf(m.extendedPAR));
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  uint16_t maxCustomPictureWidth;
  uint16_t maxCustomPictureHeight;
  uint16_t minCustomPictureWidth;
  uint16_t minCustomPictureHeight;
  MPI mPI;
  PixelAspectInformation pixelAspectInformation;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Number("maxCustomPictureWidth", m.maxCustomPictureWidth);
    v.Number("maxCustomPictureHeight", m.maxCustomPictureHeight);
    v.Number("minCustomPictureWidth", m.minCustomPictureWidth);
    v.Number("minCustomPictureHeight", m.minCustomPictureHeight);
    v.Record("mPI", m.mPI);
    v.Record("pixelAspectInformation", m.pixelAspectInformation);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("dataPartitionedSlices", m.dataPartitionedSlices);
    v.Boolean("fixedPointIDCT0", m.fixedPointIDCT0);
    v.Boolean("interlacedFields", m.interlacedFields);
    v.Boolean("currentPictureHeaderRepetition", m.currentPictureHeaderRepetition);
    v.Boolean("previousPictureHeaderRepetition", m.previousPictureHeaderRepetition);
    v.Boolean("nextPictureHeaderRepetition", m.nextPictureHeaderRepetition);
    v.Boolean("pictureNumber", m.pictureNumber);
    v.Boolean("spareReferencePictures", m.spareReferencePictures);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("unrestrictedVector", m.unrestrictedVector);
    v.Boolean("arithmeticCoding", m.arithmeticCoding);
    v.Boolean("advancedPrediction", m.advancedPrediction);
    v.Boolean("pbFrames", m.pbFrames);
    v.Boolean("advancedIntraCodingMode", m.advancedIntraCodingMode);
    v.Boolean("deblockingFilterMode", m.deblockingFilterMode);
    v.Boolean("unlimitedMotionVectors", m.unlimitedMotionVectors);
    v.Boolean("slicesInOrder-NonRect", m.slicesInOrderNonRect);
    v.Boolean("slicesInOrder-Rect", m.slicesInOrderRect);
    v.Boolean("slicesNoOrder-NonRect", m.slicesNoOrderNonRect);
    v.Boolean("slicesNoOrder-Rect", m.slicesNoOrderRect);
    v.Boolean("improvedPBFramesMode", m.improvedPBFramesMode);
    v.Boolean("referencePicSelect", m.referencePicSelect);
    v.Boolean("dynamicPictureResizingByFour", m.dynamicPictureResizingByFour);
    v.Boolean("dynamicPictureResizingSixteenthPel", m.dynamicPictureResizingSixteenthPel);
    v.Boolean("dynamicWarpingHalfPel", m.dynamicWarpingHalfPel);
    v.Boolean("dynamicWarpingSixteenthPel", m.dynamicWarpingSixteenthPel);
    v.Boolean("reducedResolutionUpdate", m.reducedResolutionUpdate);
    v.Boolean("independentSegmentDecoding", m.independentSegmentDecoding);
    v.Boolean("alternateInterVLCMode", m.alternateInterVLCMode);
    v.Boolean("modifiedQuantizationMode", m.modifiedQuantizationMode);
    if (m.hasEnhancedReferencePicSelect) v.Boolean("enhancedReferencePicSelect", m.enhancedReferencePicSelect);
    if (m.hasH263Version3Options) v.Record("h263Version3Options", m.h263Version3Options);
  }
};

struct H263VideoModeCombos {
  H263ModeComboFlags h263VideoUncoupledModes;
  uint8_t h263VideoCoupledModesCount;
  H263ModeComboFlags* h263VideoCoupledModes;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("h263VideoUncoupledModes", m.h263VideoUncoupledModes);
    v.List("h263VideoCoupledModes", KELVRA_LIST(m.h263VideoCoupledModes));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("advancedIntraCodingMode", m.advancedIntraCodingMode);
    v.Boolean("deblockingFilterMode", m.deblockingFilterMode);
    v.Boolean("improvedPBFramesMode", m.improvedPBFramesMode);
    v.Boolean("unlimitedMotionVectors", m.unlimitedMotionVectors);
    v.Boolean("fullPictureFreeze", m.fullPictureFreeze);
    v.Boolean("partialPictureFreezeAndRelease", m.partialPictureFreezeAndRelease);
    v.Boolean("resizingPartPicFreezeAndRelease", m.resizingPartPicFreezeAndRelease);
    v.Boolean("fullPictureSnapshot", m.fullPictureSnapshot);
    v.Boolean("partialPictureSnapshot", m.partialPictureSnapshot);
    v.Boolean("videoSegmentTagging", m.videoSegmentTagging);
    v.Boolean("progressiveRefinement", m.progressiveRefinement);
    v.Boolean("dynamicPictureResizingByFour", m.dynamicPictureResizingByFour);
    v.Boolean("dynamicPictureResizingSixteenthPel", m.dynamicPictureResizingSixteenthPel);
    v.Boolean("dynamicWarpingHalfPel", m.dynamicWarpingHalfPel);
    v.Boolean("dynamicWarpingSixteenthPel", m.dynamicWarpingSixteenthPel);
    v.Boolean("independentSegmentDecoding", m.independentSegmentDecoding);
    v.Boolean("slicesInOrder-NonRect", m.slicesInOrderNonRect);
    v.Boolean("slicesInOrder-Rect", m.slicesInOrderRect);
    v.Boolean("slicesNoOrder-NonRect", m.slicesNoOrderNonRect);
    v.Boolean("slicesNoOrder-Rect", m.slicesNoOrderRect);
    v.Boolean("alternateInterVLCMode", m.alternateInterVLCMode);
    v.Boolean("modifiedQuantizationMode", m.modifiedQuantizationMode);
    v.Boolean("reducedResolutionUpdate", m.reducedResolutionUpdate);
    if (m.hasTransparencyParameters) v.Record("transparencyParameters", m.transparencyParameters);
    v.Boolean("separateVideoBackChannel", m.separateVideoBackChannel);
    if (m.hasRefPictureSelection) v.Record("refPictureSelection", m.refPictureSelection);
    if (m.hasCustomPictureClockFrequency)
      v.List("customPictureClockFrequency", KELVRA_LIST(m.customPictureClockFrequency));
    if (m.hasCustomPictureFormat) v.List("customPictureFormat", KELVRA_LIST(m.customPictureFormat));
    if (m.hasModeCombos) v.List("modeCombos", KELVRA_LIST(m.modeCombos));
    if (m.hasVideoBadMBsCap) v.Boolean("videoBadMBsCap", m.videoBadMBsCap);
    if (m.hasH263Version3Options) v.Record("h263Version3Options", m.h263Version3Options);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasSqcifMPI) v.Number("sqcifMPI", m.sqcifMPI);
    if (m.hasQcifMPI) v.Number("qcifMPI", m.qcifMPI);
    if (m.hasCifMPI) v.Number("cifMPI", m.cifMPI);
    if (m.hasCif4MPI) v.Number("cif4MPI", m.cif4MPI);
    if (m.hasCif16MPI) v.Number("cif16MPI", m.cif16MPI);
    v.Number("maxBitRate", m.maxBitRate);
    v.Boolean("unrestrictedVector", m.unrestrictedVector);
    v.Boolean("arithmeticCoding", m.arithmeticCoding);
    v.Boolean("temporalSpatialTradeOffCapability", m.temporalSpatialTradeOffCapability);
    if (m.hasSlowSqcifMPI) v.Number("slowSqcifMPI", m.slowSqcifMPI);
    if (m.hasSlowQcifMPI) v.Number("slowQcifMPI", m.slowQcifMPI);
    if (m.hasSlowCifMPI) v.Number("slowCifMPI", m.slowCifMPI);
    if (m.hasSlowCif4MPI) v.Number("slowCif4MPI", m.slowCif4MPI);
    if (m.hasSlowCif16MPI) v.Number("slowCif16MPI", m.slowCif16MPI);
    v.Boolean("errorCompensation", m.errorCompensation);
    if (m.hasH263Options) v.Record("h263Options", m.h263Options);
  }
};

struct BEnhancementParameters {
  EnhancementOptions enhancementOptions;
  uint8_t numberOfBPictures;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("enhancementOptions", m.enhancementOptions);
    v.Number("numberOfBPictures", m.numberOfBPictures);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("baseBitRateConstrained", m.baseBitRateConstrained);
    if (m.hasSnrEnhancement) v.List("snrEnhancement", KELVRA_LIST(m.snrEnhancement));
    if (m.hasSpatialEnhancement) v.List("spatialEnhancement", KELVRA_LIST(m.spatialEnhancement));
    if (m.hasBPictureEnhancement) v.List("bPictureEnhancement", KELVRA_LIST(m.bPictureEnhancement));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.hasSqcifMPI) v.Number("sqcifMPI", m.sqcifMPI);
    if (m.hasQcifMPI) v.Number("qcifMPI", m.qcifMPI);
    if (m.hasCifMPI) v.Number("cifMPI", m.cifMPI);
    if (m.hasCif4MPI) v.Number("cif4MPI", m.cif4MPI);
    if (m.hasCif16MPI) v.Number("cif16MPI", m.cif16MPI);
    v.Number("maxBitRate", m.maxBitRate);
    v.Boolean("unrestrictedVector", m.unrestrictedVector);
    v.Boolean("arithmeticCoding", m.arithmeticCoding);
    v.Boolean("advancedPrediction", m.advancedPrediction);
    v.Boolean("pbFrames", m.pbFrames);
    v.Boolean("temporalSpatialTradeOffCapability", m.temporalSpatialTradeOffCapability);
    if (m.hasHrdB) v.Number("hrd-B", m.hrdB);
    if (m.hasBppMaxKb) v.Number("bppMaxKb", m.bppMaxKb);
    if (m.hasSlowSqcifMPI) v.Number("slowSqcifMPI", m.slowSqcifMPI);
    if (m.hasSlowQcifMPI) v.Number("slowQcifMPI", m.slowQcifMPI);
    if (m.hasSlowCifMPI) v.Number("slowCifMPI", m.slowCifMPI);
    if (m.hasSlowCif4MPI) v.Number("slowCif4MPI", m.slowCif4MPI);
    if (m.hasSlowCif16MPI) v.Number("slowCif16MPI", m.slowCif16MPI);
    if (m.hasErrorCompensation) v.Boolean("errorCompensation", m.errorCompensation);
    if (m.hasEnhancementLayerInfo) v.Record("enhancementLayerInfo", m.enhancementLayerInfo);
    if (m.hasH263Options) v.Record("h263Options", m.h263Options);
  }
};

struct ExtendedVideoCapability {
  uint8_t videoCapabilityCount;
  VideoCapability* videoCapability;
  uint32_t hasVideoCapabilityExtension;
  uint8_t videoCapabilityExtensionCount;
  GenericCapability* videoCapabilityExtension;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.List("videoCapability", KELVRA_LIST(m.videoCapability));
    if (m.hasVideoCapabilityExtension) v.List("videoCapabilityExtension", KELVRA_LIST(m.videoCapabilityExtension));
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("genericVideoCapability", m.genericVideoCapability);
        case 1: return v.Pointer("extendedVideoCapability", KELVRA_SLOT(m.extendedVideoCapability));
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("h261VideoCapability", m.h261VideoCapability);
      case 2: return v.Record("h262VideoCapability", m.h262VideoCapability);
      case 3: return v.Record("h263VideoCapability", m.h263VideoCapability);
      case 4: return v.Record("is11172VideoCapability", m.is11172VideoCapability);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
