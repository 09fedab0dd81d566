#include "h245/decode.h"
#include "h245/messages/h223_multiplex_reconfiguration_decode.h"

namespace kelvra::h245 {

void DecodeH223MultiplexReconfiguration(H223MultiplexReconfiguration& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 2);
  if (m.isExtension) return PerSkipOpenTypes(r, 1);
  switch (index) {
    case 0: return DecodeNullChoice(m.h223ModeChange, r);
    case 1: return DecodeNullChoice(m.h223AnnexADoubleFlag, r);
    default: return;
  }
}

}  // namespace kelvra::h245
