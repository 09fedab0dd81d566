// Builds the tree of a message from the walk of its record and the log of its decode. Both follow the same
// descriptions, so members come in the same order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "decode/tree.h"
#include "kelvra/kelvra.h"
#include "kelvra/values.h"
#include "kelvra/walk.h"
#include "observer/observer.h"

// What a decode read, in order.
class DecodeLog : public kelvra::DecodeObserver {
 public:
  struct Entry {
    const char* name = nullptr;  // null for a list element
    BitRange bits;
    uint32_t end = 0;  // the entry after the last member
    bool isRead = false;
    bool isReached = true;  // it began before the decode stopped
    bool hasUndefinedIndex = false;
  };
  struct Stop {
    kelvra::Fault fault;
    bool resumed;
  };

  void Clear();
  void Begin(const kelvra::Component& component) override;
  void End(const kelvra::Component& component, uint64_t endBit, bool isRead) override;
  void Stopped(const kelvra::Fault& fault) override;
  void Resumed(uint64_t bit) override;

  const std::vector<Entry>& Entries() const { return entries_; }
  const std::vector<Stop>& Stops() const { return stops_; }

 private:
  std::vector<Entry> entries_;
  std::vector<Stop> stops_;
  uint32_t open_ = 0;  // the innermost open entry; the `end` of an open entry is its parent
  bool isStopped_ = false;
};

// The positions of the information elements in a Q.931 record.
class FramePlaces {
 public:
  virtual ~FramePlaces() = default;
  // The bits of the named member; empty if it was not read.
  virtual std::optional<BitRange> Find(std::string_view member) const = 0;
};

// The visitor that walks the record.
class TreeBuilder {
 public:
  // Treats every member that the record holds as read.
  explicit TreeBuilder(std::vector<NodeData>& nodes);
  // The log counts bits from `firstBit`. With `frame`, the walk is of a Q.931 record and the log is of its
  // H323-UserInformation.
  TreeBuilder(std::vector<NodeData>& nodes, const DecodeLog& log, uint32_t firstBit,
              const FramePlaces* frame = nullptr);

  // Builds the tree of one message.
  void Build(kelvra::h225::RasMessageRecord& message) { BuildMessage(message); }
  void Build(kelvra::h225::Q931MessageRecord& message) { BuildMessage(message); }
  void Build(kelvra::h245::H245MessageRecord& message) { BuildMessage(message); }

  void Number(const char* name, int64_t value);
  void Boolean(const char* name, uint32_t value);
  void EnumeratedValue(uint32_t value, const char* identifier);
  void Null(const char* name);
  void UnknownExtension(uint32_t index);
  void UnknownRoot(uint32_t index);
  void ObjectIdentifier(const char* name, const kelvra::ObjectIdentifierValue& value);
  void WideCharacters(const char* name, const kelvra::BMPStringValue& value);
  void Octets(const char* name, kelvra::Slot<uint8_t> slot, uint32_t count, kelvra::OctetNotation notation) {
    EmbeddedOctets(name, slot.Get(), count, notation);
  }
  void EmbeddedOctets(const char* name, const uint8_t* octets, uint32_t count, kelvra::OctetNotation notation);

  template <class R>
  void Record(const char* name, R& record) {
    Level inner;
    if (!Enter(name, NodeKind::kRecord, inner)) return;
    inner.isChoice = IsChoice<R>();
    R::Walk(record, *this);
    Leave();
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    if (R* record = slot.Get(); record != nullptr) Record(name, *record);
  }
  template <class L, class Show>
  void List(const char* name, L list, Show show) {
    Level inner;
    if (!Enter(name, NodeKind::kList, inner)) return;
    for (auto& element : list) {
      if (!HasMore()) break;
      show(element);
    }
    Leave();
  }

 private:
  using Entry = DecodeLog::Entry;

  // The record or list being walked.
  struct Level {
    Level* outer = nullptr;
    uint32_t node = 0;
    uint32_t next = 0;  // the first entry that its members can have
    uint32_t end = 0;
    const Entry* entry = nullptr;
    bool isChoice = false;
    bool isWhole = false;   // everything in it counts as read
    bool isFrame = false;   // it is the Q.931 frame
    bool isMerged = false;  // it is the only member of its record and replaces it
  };

  template <class R>
  static constexpr bool IsChoice() {
    if constexpr (requires { R::kForm; }) return R::kForm == kelvra::asn1::TypeForm::kChoice;
    return false;
  }

  // Walks the whole record, which takes long to compile, so only tree_builder.cpp does.
  template <class R>
  void BuildMessage(R& message);
  const Entry* Take(const char* name);
  BitRange Placed(BitRange bits) const { return {firstBit_ + bits.first, firstBit_ + bits.end}; }
  bool IsLevelRead() const { return level_->isWhole || (level_->entry != nullptr && level_->entry->isRead); }
  NodeData& Add(const char* name, NodeKind kind, BitRange bits);
  void Finish(uint32_t node);
  NodeData* AddValue(const char* name, NodeKind kind, bool mayBeUnobserved = false);
  bool Enter(const char* name, NodeKind kind, Level& inner);
  void Leave();
  bool HasMore() const { return level_->isWhole || level_->next < level_->end; }

  std::vector<NodeData>& nodes_;
  const Entry* entries_ = nullptr;
  uint32_t firstBit_ = 0;
  const FramePlaces* frame_ = nullptr;
  Level whole_;  // of the message
  Level* level_ = &whole_;
};
