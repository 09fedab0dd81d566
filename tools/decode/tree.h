// What was read of a message, as a tree. The values point into the record.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "text/endpoint.h"

enum class NodeKind : uint8_t {
  kRecord,  // SEQUENCE or CHOICE
  kList,    // SEQUENCE OF, SET OF
  kNull,
  kBoolean,
  kNumber,
  kEnumerated,
  kObjectIdentifier,
  kCharacters,      // 8 bits each
  kWideCharacters,  // BMPString
  kDigits,          // 4-bit codes: '#', '*', ',' and the digits from 0 on
  kOctets,
  kBits,       // BIT STRING of variable size
  kFixedBits,  // BIT STRING of fixed size
};

// Bits of the whole message, counted from its first octet.
struct BitRange {
  uint32_t first = 0;
  uint32_t end = 0;
};

// A stored node. The nodes of a message are contiguous, each before its children.
struct NodeData {
  const char* name;
  NodeKind kind;
  uint32_t count;   // number of children
  uint32_t size;    // number of nodes, itself and all descendants
  uint32_t length;  // of the value, in octets, code units, arcs or bits; the number of an ENUMERATED
  BitRange bits;
  union {
    int64_t number;
    const void* value;
    const char* identifier;  // of an ENUMERATED; null if it has none
  };
};

// A handle to a node, or to none if the member is absent or was not read. Every accessor of an empty handle returns
// nothing.
class Node {
 public:
  Node() = default;
  explicit Node(const NodeData* data) : data_(data) {}

  explicit operator bool() const { return data_ != nullptr; }
  // The ASN.1 identifier ("h323-uu-pdu"); empty for a list element or a whole message.
  std::string_view Name() const { return data_ != nullptr ? data_->name : std::string_view(); }
  NodeKind Kind() const { return data_ != nullptr ? data_->kind : NodeKind::kNull; }
  bool Is(NodeKind kind) const { return data_ != nullptr && data_->kind == kind; }

  Node operator[](std::string_view member) const;
  Node Find(std::initializer_list<std::string_view> path) const;
  // The chosen alternative of a CHOICE: its first child.
  Node Chosen() const { return Count() > 0 ? Node(data_ + 1) : Node(); }
  std::string_view Alternative() const { return Chosen().Name(); }

  class Iterator {
   public:
    explicit Iterator(const NodeData* data) : data_(data) {}
    Node operator*() const { return Node(data_); }
    Iterator& operator++() {
      data_ += data_->size;
      return *this;
    }
    bool operator==(const Iterator&) const = default;

   private:
    const NodeData* data_;
  };
  // The children, in ASN.1 order.
  Iterator begin() const { return Iterator(data_ != nullptr ? data_ + 1 : nullptr); }
  Iterator end() const { return Iterator(data_ != nullptr ? data_ + data_->size : nullptr); }
  size_t Count() const { return data_ != nullptr ? data_->count : 0; }

  // The value of an INTEGER, ENUMERATED or BOOLEAN.
  std::optional<int64_t> Number() const;
  // The identifier of an ENUMERATED value; empty if it has none.
  std::string_view Identifier() const;
  // The octets of a string or a BIT STRING, or the codes of digits.
  std::span<const uint8_t> Octets() const;
  uint32_t BitCount() const;
  std::span<const uint16_t> CodeUnits() const;
  std::span<const uint32_t> Arcs() const;

  // The value in UTF-8: characters and digits, an object identifier with dots, octets in hexadecimal, the identifier of
  // an ENUMERATED, a decimal number, "true" or "false".
  std::string Text() const;
  void AppendText(std::string& text) const;

  BitRange Bits() const { return data_ != nullptr ? data_->bits : BitRange(); }

 private:
  bool IsEightBitString() const;

  const NodeData* data_ = nullptr;
};

// The endpoint in an H.225.0 or H.245 TransportAddress, or in one of its alternatives.
std::optional<Endpoint> ToEndpoint(Node address);
