// The end of a session.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"
#include "../common/non_standard.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct EndSessionCommand {
  struct GstnOptionsNames {
    static constexpr uint32_t kRoots = 5;
    static constexpr const char* kAlternatives[] = {"telephonyMode", "v8bis", "v34DSVD", "v34DuplexFAX", "v34H324"};
  };
  using GstnOptions = NullChoice<GstnOptionsNames>;

  struct IsdnOptionsNames {
    static constexpr uint32_t kRoots = 3;
    static constexpr const char* kAlternatives[] = {"telephonyMode", "v140", "terminalOnHold"};
  };
  using IsdnOptions = NullChoice<IsdnOptionsNames>;

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    NonStandardParameter nonStandard;
    GstnOptions gstnOptions;
    IsdnOptions isdnOptions;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) {
      switch (m.choiceTag) {
        case 0: return v.Record("isdnOptions", m.isdnOptions);
        default: return v.UnknownExtension(m.choiceTag);
      }
    }
    switch (m.choiceTag) {
      case 0: return v.Record("nonStandard", m.nonStandard);
      case 1: return v.Null("disconnect");
      case 2: return v.Record("gstnOptions", m.gstnOptions);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
