// Changes of an H.223 multiplex.
#pragma once

#include <stdint.h>

#include "../../record/null_choice.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct H223MultiplexReconfiguration {
  struct H223ModeChangeNames {
    static constexpr uint32_t kRoots = 4;
    static constexpr const char* kAlternatives[] = {"toLevel0", "toLevel1", "toLevel2", "toLevel2withOptionalHeader"};
  };
  using H223ModeChange = NullChoice<H223ModeChangeNames>;

  struct H223AnnexADoubleFlagNames {
    static constexpr uint32_t kRoots = 2;
    static constexpr const char* kAlternatives[] = {"start", "stop"};
  };
  using H223AnnexADoubleFlag = NullChoice<H223AnnexADoubleFlagNames>;

  uint32_t isExtension;
  uint8_t choiceTag;
  union {
    H223ModeChange h223ModeChange;
    H223AnnexADoubleFlag h223AnnexADoubleFlag;
  };

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    if (m.isExtension) return v.UnknownExtension(m.choiceTag);
    switch (m.choiceTag) {
      case 0: return v.Record("h223ModeChange", m.h223ModeChange);
      case 1: return v.Record("h223AnnexADoubleFlag", m.h223AnnexADoubleFlag);
      default: return v.UnknownRoot(m.choiceTag);
    }
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
