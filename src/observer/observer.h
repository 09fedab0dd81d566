// Decodes that report what they read: each component with its path, its kind and its bits, and where a decode stops the
// component, the place and the cause. They follow the same descriptions as the library's own decoders, and leave the
// same record, status and position. For tools and tests; the shared library does not contain them.
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

// What the library's own decode has ended with.
struct DecodeEnd {
  Status status;
  uint64_t bit;  // where the reader stands
  bool isAtEnd;  // of what it was given
};

// Each decodes into a cleared record, which the caller releases whatever the result. The buffer is that of the function
// of the same message in kelvra.h; that of a RAS message needs no spare octet here. For Q.931 only the
// H323-UserInformation is decoded, and its bits are counted from its own first octet; a frame without a user-user
// element ends as kExhausted.
DecodeEnd ObserveRas(h225::RasMessageRecord& record, const uint8_t* buffer, uint32_t length, DecodeObserver& observer);
DecodeEnd ObserveUserInformation(h225::H323UserInformation& record, const uint8_t* buffer, int32_t length,
                                 DecodeObserver& observer);
DecodeEnd ObserveH245(h245::H245MessageRecord& record, const uint8_t* buffer, uint32_t length,
                      DecodeObserver& observer);

}  // namespace kelvra
