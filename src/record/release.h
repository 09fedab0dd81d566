// Releases a record's blocks, as a visitor of its walk: present members only, children before the block that holds
// them. Pointers become null; everything else is unchanged.
#pragma once

#include "codec/memory.h"
#include "codec/trace.h"
#include "kelvra/walk.h"

namespace kelvra {

class ReleaseVisitor;

// Releases the blocks of a record; releasing it again does nothing. Defined in record/define_release.h, and
// instantiated once per named type.
template <class R>
void Release(R& record, ReleaseVisitor visitor);

// The source paths for releases of whole messages.
namespace h225 {
inline constexpr char kReleasePath[] = "codec/h323free";
}
namespace h245 {
inline constexpr char kReleasePath[] = "codec/freeintr";
}

class ReleaseVisitor : public EmptyVisitor {
 public:
  // `sourcePath` is passed to every release, for diagnosis.
  explicit ReleaseVisitor(const char* sourcePath) : sourcePath_(sourcePath) {}

  void UnknownExtension(uint32_t) { TraceUnknownTag(__LINE__); }
  void UnknownRoot(uint32_t) { TraceUnknownTag(__LINE__); }

  void ObjectIdentifier(const char*, ObjectIdentifierValue& value) { Free(&value.arcs, __LINE__); }
  void WideCharacters(const char*, BMPStringValue& value) { Free(&value.data, __LINE__); }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t, OctetNotation) { Free(slot.Address(), __LINE__); }
  template <class R>
  void Record(const char*, R& record) {
    Release(record, *this);
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    if (R* record = slot.Get()) Release(*record, *this);
    Free(slot.Address(), __LINE__);
  }
  template <class L, class Show>
  void List(const char*, L list, Show show) {
    for (auto& element : list) show(element);
    Free(list.Elements().Address(), __LINE__);
  }

 private:
  static void TraceUnknownTag(int32_t line) {
    CodecTrace(kTraceDecoder, kTraceError, kReasonNullRecord, kSourceRelease, line);
  }
  void Free(void* slot, int line) const { CodecFree(slot, sourcePath_, line); }

  const char* sourcePath_;
};

}  // namespace kelvra
