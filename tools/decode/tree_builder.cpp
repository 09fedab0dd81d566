#include "decode/tree_builder.h"

#include <array>
#include <cstring>

namespace {

bool IsSame(const char* a, const char* b) { return a == b || (a != nullptr && b != nullptr && std::strcmp(a, b) == 0); }

// Names for alternatives without one: "extension-0" to "extension-255" and similar.
class NumberedNames {
 public:
  explicit NumberedNames(const std::string& stem) {
    for (size_t i = 0; i < names_.size(); ++i) names_[i] = stem + std::to_string(i);
  }
  const char* Of(uint32_t index) const { return names_[index % names_.size()].c_str(); }

 private:
  std::array<std::string, 256> names_;  // a CHOICE index has 8 bits
};

NodeKind KindOf(kelvra::OctetNotation notation) {
  switch (notation) {
    case kelvra::OctetNotation::kOctets: return NodeKind::kOctets;
    case kelvra::OctetNotation::kCharacters: return NodeKind::kCharacters;
    case kelvra::OctetNotation::kDigits: return NodeKind::kDigits;
    case kelvra::OctetNotation::kBits: return NodeKind::kBits;
    case kelvra::OctetNotation::kFixedBits: break;
  }
  return NodeKind::kFixedBits;
}

}  // namespace

// --- DecodeLog ---

void DecodeLog::Clear() {
  entries_.clear();
  stops_.clear();
  open_ = 0;
  isStopped_ = false;
}

void DecodeLog::Begin(const kelvra::Component& component) {
  const auto first = static_cast<uint32_t>(component.firstBit);
  const auto index = static_cast<uint32_t>(entries_.size());
  Entry& entry = entries_.emplace_back();
  entry.name = component.name;
  entry.bits = {first, first};
  entry.end = open_;
  entry.isReached = !isStopped_;
  open_ = index;
}

void DecodeLog::End(const kelvra::Component&, uint64_t endBit, bool isRead) {
  Entry& entry = entries_[open_];
  open_ = entry.end;
  entry.bits.end = static_cast<uint32_t>(endBit);
  entry.isRead = isRead;
  entry.end = static_cast<uint32_t>(entries_.size());
}

void DecodeLog::Stopped(const kelvra::Fault& fault) {
  isStopped_ = true;
  if (fault.cause == kelvra::PerCause::kUndefinedIndex) entries_[open_].hasUndefinedIndex = true;
  stops_.push_back({fault, false});
}

void DecodeLog::Resumed(uint64_t) {
  isStopped_ = false;
  stops_.back().resumed = true;
}

// --- TreeBuilder ---

TreeBuilder::TreeBuilder(std::vector<NodeData>& nodes) : nodes_(nodes) {
  level_->isWhole = true;
  Add("", NodeKind::kRecord, {});
}

TreeBuilder::TreeBuilder(std::vector<NodeData>& nodes, const DecodeLog& log, uint32_t firstBit,
                         const FramePlaces* frame)
    : nodes_(nodes), entries_(log.Entries().data()), firstBit_(firstBit), frame_(frame) {
  const auto count = static_cast<uint32_t>(log.Entries().size());
  nodes_.reserve(count + count / 4 + 2);  // alternatives that are empty have a node and no entry
  level_->end = count;
  level_->isFrame = frame != nullptr;
  if (!level_->isFrame && count > 0) {
    level_->entry = entries_;
    level_->next = 1;
  }
  Add("", NodeKind::kRecord, level_->entry != nullptr ? Placed(level_->entry->bits) : BitRange());
}

// Finds the entry of a member, which may be absent. Entries before it belong to members that the record does not hold.
const TreeBuilder::Entry* TreeBuilder::Take(const char* name) {
  for (uint32_t i = level_->next; i < level_->end; i = entries_[i].end) {
    if (!IsSame(entries_[i].name, name)) continue;
    level_->next = entries_[i].end;
    return &entries_[i];
  }
  return nullptr;
}

NodeData& TreeBuilder::Add(const char* name, NodeKind kind, BitRange bits) {
  NodeData& node = nodes_.emplace_back();  // all zero
  node.name = name != nullptr ? name : "";
  node.kind = kind;
  node.size = 1;
  node.bits = bits;
  return node;
}

template <class R>
void TreeBuilder::BuildMessage(R& message) {
  level_->isChoice = IsChoice<R>();
  R::Walk(message, *this);
  Finish(0);
}

template void TreeBuilder::BuildMessage(kelvra::h225::RasMessageRecord& message);
template void TreeBuilder::BuildMessage(kelvra::h225::Q931MessageRecord& message);
template void TreeBuilder::BuildMessage(kelvra::h245::H245MessageRecord& message);

void TreeBuilder::Finish(uint32_t node) { nodes_[node].size = static_cast<uint32_t>(nodes_.size()) - node; }

// Null if the value was not read. A member that the decoder reads without showing it may be unobserved; then it counts
// as read if its container was.
NodeData* TreeBuilder::AddValue(const char* name, NodeKind kind, bool mayBeUnobserved) {
  BitRange bits = nodes_[level_->node].bits;
  if (level_->isFrame) {
    const auto place = frame_->Find(name);
    if (!place) return nullptr;
    bits = *place;
  } else if (!level_->isWhole) {
    const Entry* entry = Take(name);
    if (entry == nullptr ? !(mayBeUnobserved && IsLevelRead()) : !entry->isRead) return nullptr;
    if (entry != nullptr) bits = Placed(entry->bits);
  }
  ++nodes_[level_->node].count;
  return &Add(name, kind, bits);
}

bool TreeBuilder::Enter(const char* name, NodeKind kind, Level& inner) {
  BitRange bits = nodes_[level_->node].bits;
  if (level_->isWhole) {
    inner.isWhole = true;
  } else if (level_->isFrame) {  // the whole log belongs to the H323-UserInformation
    inner.entry = level_->end > 0 ? entries_ : nullptr;
    inner.next = 1;
    inner.end = level_->end;
    if (inner.entry == nullptr) return false;
    bits = Placed(inner.entry->bits);
  } else if (const Entry* entry = Take(name); entry != nullptr) {
    inner.entry = entry;
    inner.next = static_cast<uint32_t>(entry - entries_) + 1;
    inner.end = entry->end;
    bits = Placed(entry->bits);
  } else {  // read without a description
    if (!IsLevelRead()) return false;
    inner.isWhole = true;
  }
  inner.isMerged = name != nullptr && *name == '\0';
  if (inner.isMerged) {
    inner.node = level_->node;
    nodes_[inner.node].kind = kind;
  } else {
    inner.node = static_cast<uint32_t>(nodes_.size());
    ++nodes_[level_->node].count;
    Add(name, kind, bits);
  }
  inner.outer = level_;
  level_ = &inner;
  return true;
}

// Drops what was not read. Of an empty record, only whether it was chosen is known.
void TreeBuilder::Leave() {
  const Level& inner = *level_;
  Level& outer = *inner.outer;
  level_ = &outer;
  if (inner.isMerged) return;
  Finish(inner.node);
  const NodeData& node = nodes_[inner.node];
  const bool isUnread = inner.entry != nullptr && !inner.entry->isRead;
  const bool isChosen = outer.isChoice && inner.entry != nullptr && inner.entry->isReached;
  if (node.count > 0 || !isUnread || isChosen) return;
  nodes_.resize(inner.node);
  --nodes_[outer.node].count;
}

void TreeBuilder::Number(const char* name, int64_t value) {
  if (NodeData* node = AddValue(name, NodeKind::kNumber)) node->number = value;
}

void TreeBuilder::Boolean(const char* name, uint32_t value) {
  if (NodeData* node = AddValue(name, NodeKind::kBoolean)) node->number = value;
}

// The record of an ENUMERATED holds nothing else.
void TreeBuilder::EnumeratedValue(uint32_t value, const char* identifier) {
  if (!IsLevelRead()) return;
  NodeData& node = nodes_[level_->node];
  node.kind = NodeKind::kEnumerated;
  node.length = value;
  node.identifier = identifier;
}

void TreeBuilder::Null(const char* name) { AddValue(name, NodeKind::kNull, true); }

void TreeBuilder::UnknownExtension(uint32_t index) {
  static const NumberedNames names("extension-");
  Null(names.Of(index));
}

void TreeBuilder::UnknownRoot(uint32_t index) {
  static const NumberedNames names("unknown-");
  if (level_->entry == nullptr || !level_->entry->hasUndefinedIndex) return Null(names.Of(index));
  ++nodes_[level_->node].count;
  Add(names.Of(index), NodeKind::kNull, nodes_[level_->node].bits);
}

void TreeBuilder::ObjectIdentifier(const char* name, const kelvra::ObjectIdentifierValue& value) {
  if (NodeData* node = AddValue(name, NodeKind::kObjectIdentifier)) {
    node->value = value.arcs;
    node->length = value.arcs != nullptr ? value.count : 0;
  }
}

void TreeBuilder::WideCharacters(const char* name, const kelvra::BMPStringValue& value) {
  if (NodeData* node = AddValue(name, NodeKind::kWideCharacters)) {
    node->value = value.data;
    node->length = value.data != nullptr ? value.length : 0;
  }
}

void TreeBuilder::EmbeddedOctets(const char* name, const uint8_t* octets, uint32_t count,
                                 kelvra::OctetNotation notation) {
  if (NodeData* node = AddValue(name, KindOf(notation), true)) {
    node->value = octets;
    node->length = octets != nullptr ? count : 0;
  }
}
