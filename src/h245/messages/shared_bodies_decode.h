#pragma once

#include "h245/messages/shared_bodies.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeEmptyBody(EmptyBody& m, PerReader& r);
void DecodeSequenceNumberBody(SequenceNumberBody& m, PerReader& r);
void DecodeForwardLogicalChannelNumberBody(ForwardLogicalChannelNumberBody& m, PerReader& r);

}  // namespace kelvra::h245
