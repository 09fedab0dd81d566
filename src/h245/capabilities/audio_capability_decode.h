#pragma once

#include "h245/capabilities/audio_capability.h"
#include "per/reader.h"

namespace kelvra::h245 {

void DecodeG723AnnexCAudioMode(G7231AnnexCCapability::G723AnnexCAudioMode& m, PerReader& r);
void DecodeGSMAudioCapability(GSMAudioCapability& m, PerReader& r);
void DecodeG729Extensions(G729Extensions& m, PerReader& r);
void DecodeAudioTelephonyEventCapability(AudioTelephonyEventCapability& m, PerReader& r);
void DecodeAudioToneCapability(AudioToneCapability& m, PerReader& r);
void DecodeAudioCapability(AudioCapability& m, PerReader& r);

}  // namespace kelvra::h245
