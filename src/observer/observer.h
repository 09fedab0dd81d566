// Decodes that report what they read: each component with its path, kind and bits, and for a stop the component, bit
// and cause. They follow the same descriptions as the library's decoders and leave the same record, status and
// position, unless the rules say otherwise. For tools and tests; the shared library does not contain them.
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

// Positions are in bits from the first octet of the decode's input. None is past the end of the input, or past the open
// type that holds the component.
struct Component {
  const char* name;  // the ASN.1 identifier; null: an element of a list
  ComponentKind kind;
  uint64_t firstBit;
  const void* place;  // of the value in the record
};

struct Fault {
  std::string path;  // of the component at which the decode stopped: "a.b[2].c"; empty: the message itself
  uint64_t bit;      // where that component begins
  uint64_t reached;  // the bit up to which the message was read, `bit` or later
  PerCause cause;
};

class DecodeObserver {
 public:
  virtual ~DecodeObserver() = default;

  virtual void Begin(const Component&) {}
  // `isRead`: the decode did not stop in the component, which then ends before `endBit`.
  virtual void End(const Component&, uint64_t /*endBit*/, bool /*isRead*/) {}
  // The decode stops here. Nothing more is read unless it resumes.
  virtual void Stopped(const Fault&) {}
  // The decode stopped in an open type and resumes after it, at `bit`.
  virtual void Resumed(uint64_t /*bit*/) {}
};

// How an observed decode differs from the library's; by default it does not.
struct ObserverRules {
  // A registration of a later version, which the library refuses, is read as version 4.
  bool readsLaterVersions = false;
  // A SEQUENCE skips the unknown additions that its own bitmap announces (X.691 18.8), even if a SEQUENCE inside it has
  // overwritten the counter that all SEQUENCEs of an H.225.0 message share.
  bool countsAdditionsApart = false;
};

// The end of a decode, as in the library's own.
struct DecodeEnd {
  Status status;
  uint64_t bit;           // the reader's position
  bool isAtEnd;           // the reader is at the end of its input, or past it
  bool departed = false;  // a rule made it read differently from the library
};

// Each decodes into a cleared record, which the caller releases whatever the result. The buffer is that of the matching
// function in kelvra.h, but a RAS message needs no spare octet. For Q.931 only the H323-UserInformation is decoded, and
// bits are counted from its first octet; a frame without a user-user element gives kExhausted.
DecodeEnd ObserveRas(h225::RasMessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer,
                     const ObserverRules& rules = {});
DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* buffer, int32_t length,
                                 DecodeObserver& observer);
// Decodes only the H323-UserInformation: `octets` are the contents of the user-user element after its protocol
// discriminator. The input ends with them, while the library reads up to two octets further.
DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* octets, uint32_t length,
                                 DecodeObserver& observer, const ObserverRules& rules);
DecodeEnd ObserveH245(h245::H245MessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer,
                      const ObserverRules& rules = {});

}  // namespace kelvra
