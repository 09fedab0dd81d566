// Pointers and lists in packed records. A pointer is moved by its octets, because it may stand at any
// address.
#pragma once

#include <stdint.h>

namespace kelvra {

// The place of a pointer inside a packed record.
template <class T>
class Slot {
 public:
  explicit Slot(const void* address) : address_(const_cast<void*>(address)) {}

  T* Get() const {
    T* pointer = nullptr;
    Move(&pointer, address_);
    return pointer;
  }
  void Set(T* pointer) const { Move(address_, &pointer); }
  void* Address() const { return address_; }

 private:
  static void Move(void* to, const void* from) { __builtin_memcpy(to, from, sizeof(T*)); }

  void* address_;
};

// The slot of a pointer member, its type taken from the member.
#define KELVRA_SLOT(pointer) ::kelvra::SlotOf<decltype(pointer)>::Make(&(pointer))

template <class Pointer>
struct SlotOf;

template <class T>
struct SlotOf<T*> {
  static Slot<T> Make(const void* address) { return Slot<T>(address); }
};

// A list in a record: how many elements a block holds, and the slot of the pointer to it. Going through
// a list whose block was refused meets no element.
template <class ElementType, class Count>
class ListIn {
 public:
  using Element = ElementType;

  ListIn(const void* count, const void* elements) : count_(const_cast<void*>(count)), elements_(elements) {}

  uint32_t Size() const {
    Count count;
    __builtin_memcpy(&count, count_, sizeof count);
    return count;
  }
  // Keeps as many of the low bits as the record has room for.
  void SetSize(uint32_t size) const {
    const Count count = static_cast<Count>(size);
    __builtin_memcpy(count_, &count, sizeof count);
  }
  Slot<Element> Elements() const { return elements_; }

  Element* begin() const { return elements_.Get(); }
  Element* end() const {
    Element* first = elements_.Get();
    return first == nullptr ? nullptr : first + Size();
  }

 private:
  void* count_;
  Slot<Element> elements_;
};

// The list whose elements `member` points to and whose count is the member before it, `memberCount`.
// Element type and width of the count are those of the record.
#define KELVRA_LIST(member) KELVRA_COUNTED_LIST(member##Count, member)

// The same where the count has a name of its own.
#define KELVRA_COUNTED_LIST(count, member) \
  ::kelvra::MakeList<decltype(member), decltype(count)>::Of(&(count), &(member))

template <class Pointer, class Count>
struct MakeList;

template <class Element, class Count>
struct MakeList<Element*, Count> {
  static ListIn<Element, Count> Of(const void* count, const void* elements) { return {count, elements}; }
};

// A list that is a record of its own, with `count` and `elements`, as an alternative of a CHOICE is.
template <class Record>
auto ListOf(Record& list) {
  return KELVRA_COUNTED_LIST(list.count, list.elements);
}

}  // namespace kelvra
