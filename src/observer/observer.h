// Decodes that report what they read: each component with its path, its kind and its bits, and where a decode stops the
// component, the place and the cause. They follow the same descriptions as the library's own decoders, and leave the
// same record, status and position, unless the rules say otherwise. For tools and tests; the shared library does not
// contain them.
#pragma once

#include <stdint.h>

#include <string>

#include "codec/status.h"
#include "kelvra/kelvra.h"
#include "per/reader.h"

namespace kelvra {

// What a component is in the ASN.1.
enum class ComponentKind : uint8_t {
  kRecord,  // SEQUENCE, CHOICE or ENUMERATED, and CHOICEs of NULLs
  kList,    // SEQUENCE OF, SET OF
  kBoolean,
  kNull,
  kInteger,
  kObjectIdentifier,
  kString,
};

// Places are counted in bits from the first octet that the decode was given.
struct Component {
  const char* name;  // the ASN.1 identifier; null: an element of a list
  ComponentKind kind;
  uint64_t firstBit;
  const void* place;  // of the value in the record
};

struct Fault {
  std::string path;  // of the component at which the decode stopped: "a.b[2].c"; empty: the message itself
  uint64_t bit;      // where that component begins
  uint64_t reached;  // the bit, there or further on, up to which the message was read before it stopped
  PerCause cause;
};

class DecodeObserver {
 public:
  virtual ~DecodeObserver() = default;

  virtual void Begin(const Component&) {}
  // `isRead`: the decode did not stop in the component, which then ends before `endBit`.
  virtual void End(const Component&, uint64_t /*endBit*/, bool /*isRead*/) {}
  // The decode stops here. What follows is not read, unless it resumes.
  virtual void Stopped(const Fault&) {}
  // The decode stopped in an open type and resumes after it, at `bit`.
  virtual void Resumed(uint64_t /*bit*/) {}
};

// Where an observed decode departs from the library's own; by default it does not.
struct ObserverRules {
  // A registration of a later version is read as one of version 4, which the library refuses.
  bool readsLaterVersions = false;
  // A SEQUENCE skips as many unknown additions as its own bitmap announces (X.691 18.8), also where one inside it has
  // overwritten the counter that all of an H.225.0 message share.
  bool countsAdditionsApart = false;
};

// What the decode has ended with, as the library's own does.
struct DecodeEnd {
  Status status;
  uint64_t bit;           // where the reader stands
  bool isAtEnd;           // of what it was given
  bool departed = false;  // a rule made it read otherwise than the library does
};

// Each decodes into a cleared record, which the caller releases whatever the result. The buffer is that of the function
// of the same message in kelvra.h; that of a RAS message needs no spare octet here. For Q.931 only the
// H323-UserInformation is decoded, and its bits are counted from its own first octet; a frame without a user-user
// element ends as kExhausted.
DecodeEnd ObserveRas(h225::RasMessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer,
                     const ObserverRules& rules = {});
DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* buffer, int32_t length,
                                 DecodeObserver& observer);
// The H323-UserInformation alone: `octets` are the contents of the user-user element after its protocol discriminator.
// It ends with them, where the library reads up to two octets further.
DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* octets, uint32_t length,
                                 DecodeObserver& observer, const ObserverRules& rules);
DecodeEnd ObserveH245(h245::H245MessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer,
                      const ObserverRules& rules = {});

}  // namespace kelvra
