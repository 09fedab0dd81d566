#pragma once

#include "codec/status.h"
#include "h225/common/generic_data.h"
#include "per/reader.h"

namespace kelvra::h225 {

Status DecodeGenericIdentifier(GenericIdentifier& m, PerReader& r);
Status DecodeContent(Content& m, PerReader& r);
Status DecodeEnumeratedParameter(EnumeratedParameter& m, PerReader& r);
Status DecodeGenericData(GenericData& m, PerReader& r);
Status DecodeFeatureSet(FeatureSet& m, PerReader& r);

}  // namespace kelvra::h225
