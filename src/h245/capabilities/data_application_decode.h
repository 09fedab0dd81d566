#pragma once

#include "h245/capabilities/data_application.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeNlpid(DataApplicationCapability::Application::Nlpid& m, PerReader& r);
void DecodeT38fax(DataApplicationCapability::Application::T38fax& m, PerReader& r);
void DecodeDataApplicationCapability(DataApplicationCapability& m, PerReader& r);

}  // namespace kelvra::h245
