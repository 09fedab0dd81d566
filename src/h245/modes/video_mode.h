// Video modes that a peer asks for.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../capabilities/video_capability.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct H261VideoMode {
  struct ResolutionNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"qcif", "cif"};
  };
  using Resolution = RootNullChoice<ResolutionNames>;

  Resolution resolution;
  uint16_t bitRate;
  uint32_t stillImageTransmission;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("resolution", m.resolution);
    v.Number("bitRate", m.bitRate);
    v.Boolean("stillImageTransmission", m.stillImageTransmission);
  }
};

struct H262VideoMode {
  struct ProfileAndLevelNames {
    static constexpr uint32_t kRoots = 11;
    static constexpr const char* kAlternatives[] = {
        "profileAndLevel-SPatML",   "profileAndLevel-MPatLL",        "profileAndLevel-MPatML",
        "profileAndLevel-MPatH-14", "profileAndLevel-MPatHL",        "profileAndLevel-SNRatLL",
        "profileAndLevel-SNRatML",  "profileAndLevel-SpatialatH-14", "profileAndLevel-HPatML",
        "profileAndLevel-HPatH-14", "profileAndLevel-HPatHL"};
  };
  using ProfileAndLevel = NullChoice<ProfileAndLevelNames>;

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("profileAndLevel", m.profileAndLevel);
    if (m.hasVideoBitRate) v.Number("videoBitRate", m.videoBitRate);
    if (m.hasVbvBufferSize) v.Number("vbvBufferSize", m.vbvBufferSize);
    if (m.hasSamplesPerLine) v.Number("samplesPerLine", m.samplesPerLine);
    if (m.hasLinesPerFrame) v.Number("linesPerFrame", m.linesPerFrame);
    if (m.hasFramesPerSecond) v.Number("framesPerSecond", m.framesPerSecond);
    if (m.hasLuminanceSampleRate) v.Number("luminanceSampleRate", m.luminanceSampleRate);
  }
};

struct H263VideoMode {
  struct ResolutionNames {
    static constexpr uint32_t kRoots = 5;
    static constexpr const char* kAlternatives[] = {"sqcif", "qcif", "cif", "cif4", "cif16", "custom"};
  };
  using Resolution = NullChoice<ResolutionNames>;

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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("resolution", m.resolution);
    v.Number("bitRate", m.bitRate);
    v.Boolean("unrestrictedVector", m.unrestrictedVector);
    v.Boolean("arithmeticCoding", m.arithmeticCoding);
    v.Boolean("advancedPrediction", m.advancedPrediction);
    v.Boolean("pbFrames", m.pbFrames);
    if (m.hasErrorCompensation) v.Boolean("errorCompensation", m.errorCompensation);
    if (m.hasEnhancementLayerInfo) v.Record("enhancementLayerInfo", m.enhancementLayerInfo);
    if (m.hasH263Options) v.Record("h263Options", m.h263Options);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Boolean("constrainedBitstream", m.constrainedBitstream);
    if (m.hasVideoBitRate) v.Number("videoBitRate", m.videoBitRate);
    if (m.hasVbvBufferSize) v.Number("vbvBufferSize", m.vbvBufferSize);
    if (m.hasSamplesPerLine) v.Number("samplesPerLine", m.samplesPerLine);
    if (m.hasLinesPerFrame) v.Number("linesPerFrame", m.linesPerFrame);
    if (m.hasPictureRate) v.Number("pictureRate", m.pictureRate);
    if (m.hasLuminanceSampleRate) v.Number("luminanceSampleRate", m.luminanceSampleRate);
  }
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

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("genericVideoMode", m.genericVideoMode);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Record("h261VideoMode", m.h261VideoMode);
      case 2: return v.Record("h262VideoMode", m.h262VideoMode);
      case 3: return v.Record("h263VideoMode", m.h263VideoMode);
      case 4: return v.Record("is11172VideoMode", m.is11172VideoMode);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
