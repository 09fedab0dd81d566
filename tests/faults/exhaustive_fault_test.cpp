// Every carried message with every fault of a kind: cut at each octet, each bit flipped, each octet at its extremes, an
// octet inserted at each place, each allocation refused alone and with all after it. After each fault the test checks
// the record octet by octet and compares its digest with the known one.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>

#include "exact_buffer.h"
#include "families.h"
#include "faults/heap_double.h"
#include "faults/known_digests.h"
#include "faults/message_corpus.h"
#include "faults/record_digest.h"
#include "per/reader.h"
#ifdef KELVRA_PRINT_RECORDS
#include <nlohmann/json.hpp>

#include "decode/tree_builder.h"
#include "formats/json.h"
#endif

namespace kelvra::test {
namespace {

// A record between guard words, decoded from a block of exactly the message's size.
template <class RecordType>
class GuardedDecode {
 public:
  using Decode = int64_t (*)(RecordType*, const uint8_t*, size_t);

  GuardedDecode(Decode decode, const std::vector<uint8_t>& octets, uint8_t earlier)
      : octets_(octets), room_(new uint8_t[sizeof(RecordType) + 2 * kGuard]) {
    std::fill_n(room_.get(), kGuard, kGuardOctet);
    std::fill_n(room_.get() + kGuard, sizeof(RecordType), earlier);
    std::fill_n(room_.get() + kGuard + sizeof(RecordType), kGuard, kGuardOctet);
    result_ = decode(&Get(), octets_.Data(), octets_.Size());
  }

  RecordType& Get() { return *reinterpret_cast<RecordType*>(room_.get() + kGuard); }
  int64_t Result() const { return result_; }
  bool GuardsHold() const {
    const auto untouched = [](const uint8_t* guard) {
      return std::all_of(guard, guard + kGuard, [](uint8_t octet) { return octet == kGuardOctet; });
    };
    return untouched(room_.get()) && untouched(room_.get() + kGuard + sizeof(RecordType));
  }

 private:
  static constexpr size_t kGuard = 64;
  static constexpr uint8_t kGuardOctet = 0xC3;

  ExactBuffer octets_;
  std::unique_ptr<uint8_t[]> room_;
  int64_t result_ = 0;
};

// Owned by GoogleTest.
KnownDigests* const known_digests = [] {
  auto* const digests = new KnownDigests;
  testing::AddGlobalTestEnvironment(digests);
  return digests;
}();

template <class MessageFamily>
class ExhaustiveFaults : public testing::Test {
 protected:
  using Record = typename MessageFamily::Record;

  void TearDown() override { heap_.DropLiveBlocks(); }

  // Decodes twice, over different previous contents. `refuse` prepares the heap before each.
  void Try(
      const std::vector<uint8_t>& octets, const std::function<void()>& refuse = [] {}) {
    const uint64_t first = TryOnce(octets, 0xA5, refuse);
    if (HasFailure()) return;
    ASSERT_EQ(TryOnce(octets, 0x5A, refuse), first) << "another record on the second run";
    all_.AddWord(first);
  }

  // Calls `fault` with each carried message; stops at the first failure.
  void ForEachMessage(FaultKind kind, const std::function<void(const std::vector<uint8_t>&)>& fault) {
    std::string changed;
    for (const Message& message : Corpus()) {
      if (message.family != MessageFamily::kFamily) continue;
      all_ = Digest();
      fault(WithSpare(message.family, message.octets));
      if (this->HasFailure()) FAIL() << message.name;
      if (!known_digests->Accepts(message, kind, all_)) changed += "\n  " + message.name;
    }
    EXPECT_EQ(changed, "") << "With faults in them these decode into other records. `make digests` accepts that.";
  }

  HeapDouble& heap_ = HeapDouble::Instance();

 private:
  uint64_t TryOnce(const std::vector<uint8_t>& octets, uint8_t earlier, const std::function<void()>& refuse) {
    heap_.Reset();
    refuse();
    GuardedDecode<Record> decode(MessageFamily::Decode, octets, earlier);
    EXPECT_TRUE(MessageFamily::MayReturn(decode.Result())) << decode.Result();
    EXPECT_TRUE(decode.GuardsHold());
    EXPECT_LE(heap_.OctetsGranted(), kMaximumMessageMemory);
    const RecordBlocks blocks = BlocksOf(decode.Get());
    ExpectOwned(blocks, MessageFamily::MayOwnBlocks(decode.Result()));
    Digest digest;
    digest.AddWord(static_cast<uint64_t>(decode.Result()));
    blocks.AddTo(digest, &decode.Get(), sizeof(Record));
    if (++runs_ % kRunsPerPrint == 0) ExpectPrints(decode.Get());
    ExpectReleases(decode);
    return digest.Value();
  }

  void ExpectOwned(const RecordBlocks& blocks, bool mayOwn) {
    const std::vector<const void*> owned = blocks.Addresses();
    EXPECT_EQ(owned, heap_.LiveBlocks());
    EXPECT_TRUE(mayOwn || owned.empty());
  }

  // The remains of a message print as one JSON object.
  void ExpectPrints([[maybe_unused]] Record& record) {
#ifdef KELVRA_PRINT_RECORDS
    std::vector<NodeData> nodes;
    TreeBuilder(nodes).Build(record);
    std::string text;
    AppendJson(text, Node(nodes.data()));
    EXPECT_TRUE(nlohmann::json::accept(text));
#endif
  }

  void ExpectReleases(GuardedDecode<Record>& decode) {
    MessageFamily::Release(&decode.Get());
    EXPECT_TRUE(BlocksOf(decode.Get()).Blocks().empty());
    EXPECT_EQ(heap_.Releases().size(), heap_.Granted().size());
    EXPECT_EQ(heap_.WildReleases(), 0U);
    EXPECT_TRUE(heap_.LiveBlocks().empty());
    EXPECT_TRUE(decode.GuardsHold());
  }

  // Printing costs several times as much as decoding. An odd step reaches each bit of an octet in turn.
  static constexpr size_t kRunsPerPrint = 15;
  size_t runs_ = 0;
  Digest all_;
};

// The few long messages, mostly tables of similar elements, are tested at a few places only, each at another bit of its
// octet.
size_t StepOf(const std::vector<uint8_t>& octets) { return octets.size() < 400 ? 1 : 33; }

using Families = testing::Types<Ras, Q931, H245>;
class FamilyName {
 public:
  template <class MessageFamily>
  static std::string GetName(int) {
    return MessageFamily::kName;
  }
};
TYPED_TEST_SUITE(ExhaustiveFaults, Families, FamilyName);

TYPED_TEST(ExhaustiveFaults, CutAtEveryOctet) {
  this->ForEachMessage(FaultKind::kCut, [this](const std::vector<uint8_t>& octets) {
    std::vector<uint8_t> cut = octets;
    for (size_t size = octets.size(); size != 0 && !this->HasFailure(); --size) {
      cut.resize(size);
      if (size % StepOf(octets) == 0) this->Try(cut);
    }
  });
}

TYPED_TEST(ExhaustiveFaults, EveryBitFlipped) {
  this->ForEachMessage(FaultKind::kFlipped, [this](const std::vector<uint8_t>& octets) {
    std::vector<uint8_t> flipped = octets;
    for (size_t bit = 0; bit < octets.size() * 8 && !this->HasFailure(); bit += StepOf(octets)) {
      const auto mask = static_cast<uint8_t>(0x80 >> bit % 8);
      flipped[bit / 8] ^= mask;
      this->Try(flipped);
      flipped[bit / 8] ^= mask;
    }
  });
}

// No bit, the largest short length, a long length or an extension bit, all bits.
constexpr uint8_t kExtremes[] = {0x00, 0x7F, 0x80, 0xFF};

TYPED_TEST(ExhaustiveFaults, EveryOctetAtItsExtremes) {
  this->ForEachMessage(FaultKind::kExtremes, [this](const std::vector<uint8_t>& octets) {
    std::vector<uint8_t> changed = octets;
    for (size_t at = 0; at < octets.size(); at += StepOf(octets)) {
      for (const uint8_t extreme : kExtremes) {
        changed[at] = extreme;
        if (extreme != octets[at] && !this->HasFailure()) this->Try(changed);
      }
      changed[at] = octets[at];
    }
  });
}

TYPED_TEST(ExhaustiveFaults, AnOctetAddedAtEveryPlace) {
  this->ForEachMessage(FaultKind::kAdded, [this](const std::vector<uint8_t>& octets) {
    std::vector<uint8_t> longer = octets;
    longer.push_back(0x81);
    for (size_t place = octets.size(); !this->HasFailure(); --place) {
      if (place % StepOf(octets) == 0) this->Try(longer);
      if (place == 0) break;
      std::swap(longer[place], longer[place - 1]);
    }
  });
}

TYPED_TEST(ExhaustiveFaults, EveryAllocationRefused) {
  this->ForEachMessage(FaultKind::kRefused, [this](const std::vector<uint8_t>& octets) {
    this->Try(octets);
    const size_t allocations = this->heap_.Requests();
    for (size_t nth = 1; nth <= allocations && !this->HasFailure(); nth += StepOf(octets)) {
      this->Try(octets, [this, nth] { this->heap_.RefuseOnly(nth); });
      this->Try(octets, [this, nth] { this->heap_.RefuseFrom(nth); });
    }
  });
}

TEST(KnownDigestsTest, NameEachCarriedMessage) {
  std::vector<std::string> carried;
  for (const Message& message : Corpus()) carried.push_back(KnownDigests::NameOf(message));
  std::sort(carried.begin(), carried.end());
  EXPECT_EQ(known_digests->Names(), carried) << "`make digests` writes them.";
}

}  // namespace
}  // namespace kelvra::test
