#pragma once

#include "h245/capabilities/video_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeH263Options(H263Options& m, PerReader& r);
void DecodeEnhancementLayerInfo(EnhancementLayerInfo& m, PerReader& r);
void DecodeVideoCapability(VideoCapability& m, PerReader& r);

}  // namespace kelvra::h245
