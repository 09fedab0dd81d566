// The rule by which a record's blocks are given back, as a visitor of its walk: present members only,
// children before the block that holds them, every pointer left null and everything else left as it is.
#pragma once

#include "codec/memory.h"
#include "codec/trace.h"
#include "record/walk.h"

namespace kelvra {

class ReleaseVisitor {
 public:
  // `sourcePath` goes along with every release, for diagnosis.
  explicit ReleaseVisitor(const char* sourcePath) : sourcePath_(sourcePath) {}

  void Number(const char*, int64_t) {}
  void Boolean(const char*, uint32_t) {}
  void EnumeratedValue(uint32_t, const char*) {}
  void Null(const char*) {}
  void Embedded(const char*, const uint8_t*, uint32_t, OctetNotation) {}
  void UnknownExtension(uint32_t) { TraceUnknownTag(__LINE__); }
  void UnknownRoot(uint32_t) { TraceUnknownTag(__LINE__); }

  template <class Value>
  void ObjectIdentifier(const char*, Value& value) {
    Free(&value.arcs, __LINE__);
  }
  template <class Value>
  void Characters16(const char*, Value& value) {
    Free(&value.data, __LINE__);
  }
  void Octets(const char*, Slot<uint8_t> slot, uint32_t, OctetNotation) { Free(slot.Address(), __LINE__); }

  template <class R>
  void Record(const char*, R& record) {
    R::Walk(record, *this);
  }
  template <class R>
  void Pointer(const char*, Slot<R> slot) {
    if (R* record = slot.Get()) R::Walk(*record, *this);
    Free(slot.Address(), __LINE__);
  }

  template <class L>
  void List(const char*, L list) {
    for (auto& element : list) L::Element::Walk(element, *this);
    Free(list.Elements().Address(), __LINE__);
  }
  template <class L>
  void Numbers(const char*, L list) {
    Free(list.Elements().Address(), __LINE__);
  }
  template <class L>
  void ObjectIdentifiers(const char*, L list) {
    for (auto& element : list) Free(&element.arcs, __LINE__);
    Free(list.Elements().Address(), __LINE__);
  }
  template <class L>
  void OctetStrings(const char*, L list, OctetNotation) {
    for (auto& element : list) Free(&element.data, __LINE__);
    Free(list.Elements().Address(), __LINE__);
  }
  template <class L>
  void FixedOctetStrings(const char* name, L list, uint32_t) {
    OctetStrings(name, list, OctetNotation::kOctets);
  }

 private:
  static void TraceUnknownTag(int32_t line) {
    CodecTrace(kTraceDecoder, kTraceError, kReasonNullRecord, kSourceRelease, line);
  }
  void Free(void* slot, int line) const { CodecFree(slot, sourcePath_, line); }

  const char* sourcePath_;
};

}  // namespace kelvra
