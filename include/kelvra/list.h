// Pointers and lists in packed records. Pointers may be unaligned, so they are copied by memcpy.
#pragma once

#include <stdint.h>
#include <string.h>

namespace kelvra {

// The place of a pointer inside a packed record.
template <class T>
class Slot {
 public:
  explicit Slot(const void* address) : address_(const_cast<void*>(address)) {}

  T* Get() const {
    T* pointer = nullptr;
    memcpy(static_cast<void*>(&pointer), address_, sizeof(T*));
    return pointer;
  }
  void Set(T* pointer) const { memcpy(address_, static_cast<const void*>(&pointer), sizeof(T*)); }
  void* Address() const { return address_; }

 private:
  void* address_;
};

// A list in a record: its element count and the slot of the pointer to its block. A list whose block was refused
// iterates over no element.
template <class ElementType, class Count>
class ListView {
 public:
  using Element = ElementType;
  static constexpr uint32_t kCountOctets = sizeof(Count);

  ListView(const void* count, const void* elements) : count_(const_cast<void*>(count)), elements_(elements) {}

  uint32_t Size() const {
    Count count;
    memcpy(&count, count_, sizeof count);
    return count;
  }
  // Keeps as many low bits as the record has room for.
  void SetSize(uint32_t size) const {
    const Count count = static_cast<Count>(size);
    memcpy(count_, &count, sizeof count);
  }
  void* CountAddress() const { return count_; }
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

namespace detail {

template <class Pointer, class Count>
struct ListViewOf;
template <class Element, class Count>
struct ListViewOf<Element*, Count> {
  using Type = ListView<Element, Count>;
};

}  // namespace detail

// A list by the addresses of its count and its pointer.
template <class Count, class Pointer>
typename detail::ListViewOf<Pointer, Count>::Type ListAt(const void* count, const void* elements) {
  return {count, elements};
}

// A list by its place.
template <class Element, class Count>
ListView<Element, Count> ListOf(ListView<Element, Count> list) {
  return list;
}
// A list that is a record with `count` and `elements`, such as an alternative of a CHOICE.
template <class Record>
auto ListOf(Record& list) {
  return ListAt<decltype(list.count), decltype(list.elements)>(&list.count, &list.elements);
}

}  // namespace kelvra
