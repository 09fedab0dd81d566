#pragma once

#include "h245/capabilities/video_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH261VideoCapability(H261VideoCapability& m, PerReader& r);
void DecodeH262VideoCapability(H262VideoCapability& m, PerReader& r);
void DecodeIS11172VideoCapability(IS11172VideoCapability& m, PerReader& r);
void DecodeTransparencyParameters(TransparencyParameters& m, PerReader& r);
void DecodeRefPictureSelection(RefPictureSelection& m, PerReader& r);
void DecodeCustomPictureClockFrequency(CustomPictureClockFrequency& m, PerReader& r);
void DecodeCustomPictureFormat(CustomPictureFormat& m, PerReader& r);
void DecodeH263Version3Options(H263Version3Options& m, PerReader& r);
void DecodeH263ModeComboFlags(H263ModeComboFlags& m, PerReader& r);
void DecodeH263VideoModeCombos(H263VideoModeCombos& m, PerReader& r);
void DecodeH263Options(H263Options& m, PerReader& r);
void DecodeEnhancementOptions(EnhancementOptions& m, PerReader& r);
void DecodeBEnhancementParameters(BEnhancementParameters& m, PerReader& r);
void DecodeEnhancementLayerInfo(EnhancementLayerInfo& m, PerReader& r);
void DecodeH263VideoCapability(H263VideoCapability& m, PerReader& r);
void DecodeExtendedVideoCapability(ExtendedVideoCapability& m, PerReader& r);
void DecodeVideoCapability(VideoCapability& m, PerReader& r);

}  // namespace kelvra::h245
