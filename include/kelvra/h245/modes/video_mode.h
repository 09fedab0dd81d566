// Requested video modes.
#pragma once

#include "../capabilities/video_capability.h"

#include "../../begin_descriptions.h"
#pragma pack(push, 1)

namespace kelvra::h245 {

struct H261VideoMode {
  KELVRA_NULL_CHOICE(UnextensibleNullChoice, Resolution, 2, "qcif", "cif");

  Resolution resolution;
  uint16_t bitRate;
  uint32_t stillImageTransmission;
  uint32_t isExtended;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(resolution, DefinedType());
    KELVRA_MEMBER(bitRate, Integer(1, 19200));
    KELVRA_MEMBER(stillImageTransmission, Boolean());
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H262VideoMode {
  KELVRA_NULL_CHOICE(NullChoice, ProfileAndLevel, 11, "profileAndLevel-SPatML", "profileAndLevel-MPatLL",
                     "profileAndLevel-MPatML", "profileAndLevel-MPatH-14", "profileAndLevel-MPatHL",
                     "profileAndLevel-SNRatLL", "profileAndLevel-SNRatML", "profileAndLevel-SpatialatH-14",
                     "profileAndLevel-HPatML", "profileAndLevel-HPatH-14", "profileAndLevel-HPatHL");

  ProfileAndLevel profileAndLevel;
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(profileAndLevel, DefinedType());
    KELVRA_OPTIONAL(hasVideoBitRate, videoBitRate, Integer(0, 1073741823));
    KELVRA_OPTIONAL(hasVbvBufferSize, vbvBufferSize, Integer(0, 262143));
    KELVRA_OPTIONAL(hasSamplesPerLine, samplesPerLine, Integer(0, 16383));
    KELVRA_OPTIONAL(hasLinesPerFrame, linesPerFrame, Integer(0, 16383));
    KELVRA_OPTIONAL(hasFramesPerSecond, framesPerSecond, Integer(0, 15));
    KELVRA_OPTIONAL(hasLuminanceSampleRate, luminanceSampleRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct H263VideoMode {
  KELVRA_NULL_CHOICE(NullChoice, Resolution, 5, "sqcif", "qcif", "cif", "cif4", "cif16", "custom");

  Resolution resolution;
  uint16_t bitRate;
  uint32_t unrestrictedVector;
  uint32_t arithmeticCoding;
  uint32_t advancedPrediction;
  uint32_t pbFrames;
  uint32_t isExtended;
  uint32_t hasErrorCompensation;
  uint32_t errorCompensation;
  uint32_t hasEnhancementLayerInfo;
  EnhancementLayerInfo enhancementLayerInfo;
  uint32_t hasH263Options;
  H263Options h263Options;

  KELVRA_SEQUENCE
    KELVRA_MEMBER(resolution, DefinedType());
    KELVRA_MEMBER(bitRate, Integer(1, 19200));
    KELVRA_MEMBER(unrestrictedVector, Boolean());
    KELVRA_MEMBER(arithmeticCoding, Boolean());
    KELVRA_MEMBER(advancedPrediction, Boolean());
    KELVRA_MEMBER(pbFrames, Boolean());
    KELVRA_EXTENSION(isExtended);
    KELVRA_ADDITION(hasErrorCompensation, errorCompensation, Boolean());
    KELVRA_ADDITION(hasEnhancementLayerInfo, enhancementLayerInfo, DefinedType());
    KELVRA_ADDITION(hasH263Options, h263Options, DefinedType());
  KELVRA_END
};

struct IS11172VideoMode {
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

  KELVRA_SEQUENCE
    KELVRA_MEMBER(constrainedBitstream, Boolean());
    KELVRA_OPTIONAL(hasVideoBitRate, videoBitRate, Integer(0, 1073741823));
    KELVRA_OPTIONAL(hasVbvBufferSize, vbvBufferSize, Integer(0, 262143));
    KELVRA_OPTIONAL(hasSamplesPerLine, samplesPerLine, Integer(0, 16383));
    KELVRA_OPTIONAL(hasLinesPerFrame, linesPerFrame, Integer(0, 16383));
    KELVRA_OPTIONAL(hasPictureRate, pictureRate, Integer(0, 15));
    KELVRA_OPTIONAL(hasLuminanceSampleRate, luminanceSampleRate, Integer(0, kUnsigned32Maximum));
    KELVRA_EXTENSION(isExtended);
  KELVRA_END
};

struct VideoMode {
  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    H261VideoMode h261VideoMode;
    H262VideoMode h262VideoMode;
    H263VideoMode h263VideoMode;
    IS11172VideoMode is11172VideoMode;
    GenericCapability genericVideoMode;
  };

  KELVRA_CHOICE(choiceTag)
    KELVRA_ALTERNATIVE(nonStandard, DefinedType());
    KELVRA_ALTERNATIVE(h261VideoMode, DefinedType());
    KELVRA_ALTERNATIVE(h262VideoMode, DefinedType());
    KELVRA_ALTERNATIVE(h263VideoMode, DefinedType());
    KELVRA_ALTERNATIVE(is11172VideoMode, DefinedType());
    KELVRA_EXTENSION(isExtension);
    KELVRA_ALTERNATIVE(genericVideoMode, DefinedType());
  KELVRA_END
};

}  // namespace kelvra::h245

#pragma pack(pop)
#include "../../end_descriptions.h"
