// Sixteen threads decode and release different messages at the same time, each into its own records. Also built with
// ThreadSanitizer, which reports shared data.
#include <gtest/gtest.h>

#include <thread>

#include "families.h"
#include "faults/message_corpus.h"

namespace kelvra::test {
namespace {

uint64_t DecodeAndRelease(const Message& message) {
  switch (message.family) {
    case Family::kRas: return DigestOf<Ras>(WithSpare(message.family, message.octets));
    case Family::kQ931: return DigestOf<Q931>(message.octets);
    default: return DigestOf<H245>(message.octets);
  }
}

TEST(Threads, SixteenDecodeAsEachDoesAlone) {
  std::vector<Message> messages = Corpus();
  const std::vector<Message> earlier = EarlierRegistrations();
  messages.insert(messages.end(), earlier.begin(), earlier.end());
  std::vector<uint64_t> alone;
  for (const Message& message : messages) alone.push_back(DecodeAndRelease(message));

  constexpr size_t kThreads = 16;
  std::vector<size_t> differences(kThreads, 0);
  std::vector<std::thread> threads;
  for (size_t thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      // Each starts at a different message, and every second one goes backwards.
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
