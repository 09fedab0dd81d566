// Data modes that a peer asks for.
#pragma once

#include <stdint.h>

#include "../capabilities/data_application.h"

namespace kelvra::h245 {

#pragma pack(push, 1)

struct DataMode {
  struct Application {
    using Nlpid = DataApplicationCapability::Application::Nlpid;
    using T38fax = DataApplicationCapability::Application::T38fax;

    uint32_t isExtension;
    uint8_t choiceTag;
    union {
      NonStandardParameter nonStandard;
      DataProtocolCapability t120;
      DataProtocolCapability dsmCc;
      DataProtocolCapability userData;
      DataProtocolCapability t84;
      DataProtocolCapability t434;
      DataProtocolCapability h224;
      Nlpid nlpid;
      DataProtocolCapability h222DataPartitioning;
      DataProtocolCapability t30fax;
      DataProtocolCapability t140;
      T38fax t38fax;
      GenericCapability genericDataMode;
    };

    template <class Record, class Visitor>
    static void Walk(Record& m, Visitor& v) {
      if (m.isExtension) {
        switch (m.choiceTag) {
          case 0: return v.Record("t30fax", m.t30fax);
          case 1: return v.Record("t140", m.t140);
          case 2: return v.Record("t38fax", m.t38fax);
          case 3: return v.Record("genericDataMode", m.genericDataMode);
          default: return v.UnknownExtension(m.choiceTag);
        }
      }
      switch (m.choiceTag) {
        case 0: return v.Record("nonStandard", m.nonStandard);
        case 1: return v.Record("t120", m.t120);
        case 2: return v.Record("dsm-cc", m.dsmCc);
        case 3: return v.Record("userData", m.userData);
        case 4: return v.Record("t84", m.t84);
        case 5: return v.Record("t434", m.t434);
        case 6: return v.Record("h224", m.h224);
        case 7: return v.Record("nlpid", m.nlpid);
        case 8: return v.Null("dsvdControl");
        case 9: return v.Record("h222DataPartitioning", m.h222DataPartitioning);
        default: return v.UnknownRoot(m.choiceTag);
      }
    }
  };

  Application application;
  uint32_t bitRate;
  uint32_t isExtended;

  template <class Record, class Visitor>
  static void Walk(Record& m, Visitor& v) {
    v.Record("application", m.application);
    v.Number("bitRate", m.bitRate);
  }
};

#pragma pack(pop)

}  // namespace kelvra::h245
