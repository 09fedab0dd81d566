// Makes the tree of a message from the walk of its record and from what the decode of it was observed to read. Both
// follow the same descriptions, so their members come in the same order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "decode/tree.h"
#include "kelvra/values.h"
#include "kelvra/walk.h"
#include "observer/observer.h"

// What a decode read, in its order.
class DecodeLog : public kelvra::DecodeObserver {
 public:
  struct Entry {
    const char* name;  // null: an element of a list
    BitRange bits;
    uint32_t end;  // the entry after those of its members
    bool isRead = false;
    bool isReached = true;  // it began where the decode had not stopped
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
  uint32_t open_ = 0;  // the innermost entry; the `end` of an open one is the one around it
  bool isStopped_ = false;
};

// Where the information elements stand that a Q.931 record holds.
class FramePlaces {
 public:
  virtual ~FramePlaces() = default;
  // Of the member of that name; none: it was not read.
  virtual std::optional<BitRange> Find(std::string_view member) const = 0;
};

// The visitor of a walk.
class TreeBuilder {
 public:
  // Takes every member that the record holds for read.
  explicit TreeBuilder(std::vector<NodeData>& nodes);
  // The bits of the log are counted from `firstBit` on. With `frame` the walk is that of a Q.931 record, whose
  // H323-UserInformation the log is of.
  TreeBuilder(std::vector<NodeData>& nodes, const DecodeLog& log, uint32_t firstBit,
              const FramePlaces* frame = nullptr);

  // Builds the tree of one record, whose walk this is.
  template <class R>
  void Build(R& record) {
    level_.isChoice = IsChoice<R>();
    R::Walk(record, *this);
    Finish(0);
  }

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
    const Level outer = level_;
    if (!Enter(name, NodeKind::kRecord)) return;
    level_.isChoice = IsChoice<R>();
    R::Walk(record, *this);
    Leave(outer);
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    if (R* record = slot.Get(); record != nullptr) Record(name, *record);
  }
  template <class L, class Show>
  void List(const char* name, L list, Show show) {
    const Level outer = level_;
    if (!Enter(name, NodeKind::kList)) return;
    for (auto& element : list) {
      if (!HasMore()) break;
      show(element);
    }
    Leave(outer);
  }

 private:
  using Entry = DecodeLog::Entry;

  // The record or list whose members are shown.
  struct Level {
    uint32_t node = 0;
    uint32_t next = 0;  // the entries that its members can have
    uint32_t end = 0;
    const Entry* entry = nullptr;
    bool isChoice = false;
    bool isWhole = false;   // all that it holds counts as read
    bool isFrame = false;   // of Q.931
    bool isMerged = false;  // it is the only member of a record, and takes the place of that
  };

  template <class R>
  static constexpr bool IsChoice() {
    if constexpr (requires { R::kForm; }) return R::kForm == kelvra::asn1::TypeForm::kChoice;
    return false;
  }

  const Entry* Take(const char* name);
  BitRange Placed(BitRange bits) const { return {firstBit_ + bits.first, firstBit_ + bits.end}; }
  bool IsLevelRead() const { return level_.isWhole || (level_.entry != nullptr && level_.entry->isRead); }
  NodeData& Add(const char* name, NodeKind kind, BitRange bits);
  void Finish(uint32_t node);
  NodeData* AddValue(const char* name, NodeKind kind, bool mayBeUnobserved = false);
  bool Enter(const char* name, NodeKind kind);
  void Leave(const Level& outer);
  bool HasMore() const { return level_.isWhole || level_.next < level_.end; }

  std::vector<NodeData>& nodes_;
  const Entry* entries_ = nullptr;
  uint32_t firstBit_ = 0;
  const FramePlaces* frame_ = nullptr;
  Level level_;
};
