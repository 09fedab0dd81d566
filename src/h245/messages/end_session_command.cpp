#include "h245/common/non_standard_decode.h"
#include "h245/decode.h"
#include "h245/messages/end_session_command_decode.h"

namespace kelvra::h245 {

void DecodeEndSessionCommand(EndSessionCommand& m, PerReader& r) {
  const uint32_t index = ReadChoice(m, r, 3);
  if (m.isExtension) {
    switch (index) {
      case 0: return DecodeOpen(m.isdnOptions, r, DecodeNullChoice);
      default: return PerSkipOpenTypes(r, 1);
    }
  }
  switch (index) {
    case 0: return DecodeNonStandardParameter(m.nonStandard, r);
    case 2: return DecodeNullChoice(m.gstnOptions, r);
    default: return;
  }
}

}  // namespace kelvra::h245
