// The rule by which a record's blocks are given back, as a visitor of its walk: present members only,
// children before the block that holds them, every pointer left null and everything else left as it is.
#pragma once

#include "codec/memory.h"
#include "codec/trace.h"
#include "per/walk.h"

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
  void Pointer(const char* name, Slot<R> slot) {
    List(name, slot, 1);
  }
  template <class R>
  void List(const char*, Slot<R> slot, uint32_t count) {
    R* elements = slot.Get();
    if (elements == nullptr) return;
    for (uint32_t i = 0; i < count; ++i) R::Walk(elements[i], *this);
    Free(slot.Address(), __LINE__);
  }
  void OctetStrings(const char*, Slot<OctetStringValue> slot, uint32_t count, OctetNotation) {
    ReleaseStrings(slot, count, [](OctetStringValue& value) -> void* { return &value.data; });
  }
  void FixedOctetStrings(const char*, Slot<OctetStringValue> slot, uint32_t count, uint32_t) {
    ReleaseStrings(slot, count, [](OctetStringValue& value) -> void* { return &value.data; });
  }
  void ObjectIdentifiers(const char*, Slot<ObjectIdentifierValue> slot, uint32_t count) {
    ReleaseStrings(slot, count, [](ObjectIdentifierValue& value) -> void* { return &value.arcs; });
  }
  template <class Number>
  void Numbers(const char*, Slot<Number> slot, uint32_t) {
    Free(slot.Address(), __LINE__);
  }

 private:
  template <class Value, class SlotOf>
  void ReleaseStrings(Slot<Value> slot, uint32_t count, SlotOf slotOf) {
    Value* values = slot.Get();
    if (values == nullptr) return;
    for (uint32_t i = 0; i < count; ++i) Free(slotOf(values[i]), __LINE__);
    Free(slot.Address(), __LINE__);
  }
  static void TraceUnknownTag(int32_t line) {
    CodecTrace(kTraceDecoder, kTraceError, kReasonNullRecord, kSourceRelease, line);
  }
  void Free(void* slot, int line) const { CodecFree(slot, sourcePath_, line); }

  const char* sourcePath_;
};

}  // namespace kelvra
