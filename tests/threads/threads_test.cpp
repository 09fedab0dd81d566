// Sixteen threads that decode and release different messages at the same time, each into records of its
// own. Built with ThreadSanitizer too, which reports what they share.
#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include "doubles/message_corpus.h"
#include "doubles/message_family.h"
#include "doubles/record_digest.h"

namespace kelvra::test {
namespace {

// Of the result, the record and what is left after the release.
template <class MessageFamily>
uint64_t DigestOf(const std::vector<uint8_t>& octets) {
  typename MessageFamily::Record record;
  Digest digest;
  digest.AddWord(static_cast<uint64_t>(MessageFamily::Decode(&record, octets.data(), octets.size())));
  BlocksOf(record).AddTo(digest, &record, sizeof record);
  MessageFamily::Release(&record);
  digest.AddWord(BlocksOf(record).Blocks().size());
  return digest.Value();
}

uint64_t DecodeAndRelease(const Message& message) {
  switch (message.family) {
    case Family::kRas: return DigestOf<Ras>(WithSpare(message.family, message.octets));
    case Family::kQ931: return DigestOf<Q931>(message.octets);
    default: return DigestOf<H245>(message.octets);
  }
}

// The registrations among the messages once more, as of earlier versions of H.225.0: the version decides
// how a registration is read, and must be that of the message itself.
void AddEarlierVersions(std::vector<Message>& messages) {
  constexpr uint8_t kProtocolIdentifier[] = {0x06, 0x00, 0x08, 0x91, 0x4A, 0x00, 0x04};
  const size_t count = messages.size();
  for (size_t i = 0; i < count; ++i) {
    if (messages[i].family != Family::kRas || messages[i].name.find("registration") == std::string::npos) continue;
    Message earlier = messages[i];
    const auto found = std::search(earlier.octets.begin(), earlier.octets.end(), std::begin(kProtocolIdentifier),
                                   std::end(kProtocolIdentifier));
    if (found == earlier.octets.end()) continue;
    for (const uint8_t version : {uint8_t{2}, uint8_t{3}}) {
      found[sizeof kProtocolIdentifier - 1] = version;
      messages.push_back(earlier);
    }
  }
  EXPECT_GT(messages.size(), count);
}

TEST(Threads, SixteenDecodeAsEachDoesAlone) {
  std::vector<Message> messages = Corpus();
  AddEarlierVersions(messages);
  std::vector<uint64_t> alone;
  for (const Message& message : messages) alone.push_back(DecodeAndRelease(message));

  constexpr size_t kThreads = 16;
  std::vector<size_t> differences(kThreads, 0);
  std::vector<std::thread> threads;
  for (size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      // Each goes through all of them from a place of its own, every second one backwards.
      const size_t count = messages.size();
      for (size_t i = 0; i < count; ++i) {
        const size_t step = thread % 2 == 0 ? i : count - 1 - i;
        const size_t which = (step + thread * count / kThreads) % count;
        if (DecodeAndRelease(messages[which]) != alone[which]) ++differences[thread];
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(differences, std::vector<size_t>(kThreads, 0));
}

}  // namespace
}  // namespace kelvra::test
