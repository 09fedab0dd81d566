#pragma once

#include "h245/channels/h2250_parameters.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeTerminalLabel(TerminalLabel& m, PerReader& r);
void DecodeQOSCapability(QOSCapability& m, PerReader& r);
void DecodeTransportCapability(TransportCapability& m, PerReader& r);
void DecodeH2250LogicalChannelParameters(H2250LogicalChannelParameters& m, PerReader& r);
void DecodeH2250LogicalChannelAckParameters(H2250LogicalChannelAckParameters& m, PerReader& r);

}  // namespace kelvra::h245
