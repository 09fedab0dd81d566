// A decoded message as a tree of what was read of it. The values point into its record.
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
  kCharacters,      // of 8 bits
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

// A node as it is stored: the nodes of a message stand one after the other, each before its children.
struct NodeData {
  const char* name;
  NodeKind kind;
  uint32_t count;   // of children
  uint32_t size;    // of the node with its descendants, in nodes
  uint32_t length;  // of the value, in octets, code units, arcs or bits; of an ENUMERATED the number
  BitRange bits;
  union {
    int64_t number;
    const void* value;
    const char* identifier;  // of an ENUMERATED; null: it has none
  };
};

// A handle on a node, or on none: a member that is absent or was not read. Then everything is empty.
class Node {
 public:
  Node() = default;
  explicit Node(const NodeData* data) : data_(data) {}

  explicit operator bool() const { return data_ != nullptr; }
  // The ASN.1 identifier ("h323-uu-pdu"); empty: an element of a list, or a message.
  std::string_view Name() const { return data_ != nullptr ? data_->name : std::string_view(); }
  NodeKind Kind() const { return data_ != nullptr ? data_->kind : NodeKind::kNull; }
  bool Is(NodeKind kind) const { return data_ != nullptr && data_->kind == kind; }

  Node operator[](std::string_view member) const;
  Node Find(std::initializer_list<std::string_view> path) const;
  // The alternative of a CHOICE, which is its first child.
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
  // The children, in the order of the ASN.1.
  Iterator begin() const { return Iterator(data_ != nullptr ? data_ + 1 : nullptr); }
  Iterator end() const { return Iterator(data_ != nullptr ? data_ + data_->size : nullptr); }
  size_t Count() const { return data_ != nullptr ? data_->count : 0; }

  // Of a number, an ENUMERATED or a BOOLEAN.
  std::optional<int64_t> Number() const;
  // Of an ENUMERATED; empty: its number has none.
  std::string_view Identifier() const;
  // The octets of a string, and of a BIT STRING; the codes of digits.
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

// The endpoint in a TransportAddress of H.225.0 or H.245, or in one of its alternatives.
std::optional<Endpoint> ToEndpoint(Node address);
