// kelvra_text when memory runs out, and in several threads. The library allocates with this program's operator new.
#include <gtest/gtest.h>
#include <kelvra/kelvra_text.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include "text/hex.h"

namespace {

std::atomic<long> held{0};             // blocks
thread_local long until_failure = -1;  // allocations; negative: none fails

void* Allocate(size_t size) noexcept {
  if (until_failure == 0) return nullptr;
  if (until_failure > 0) --until_failure;
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++held;
  return block;
}

}  // namespace

void* operator new(size_t size) {
  if (void* block = Allocate(size)) return block;
  throw std::bad_alloc();
}
void* operator new(size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](size_t size) { return operator new(size); }
void* operator new[](size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* block) noexcept {
  if (block != nullptr) --held;
  std::free(block);
}
void operator delete(void* block, size_t) noexcept { operator delete(block); }
void operator delete[](void* block) noexcept { operator delete(block); }
void operator delete[](void* block, size_t) noexcept { operator delete(block); }

namespace {

const std::string kSample = std::string(KELVRA_SAMPLES) + "/call.pcap";

struct Reply {
  int status = KELVRA_TEXT_INTERNAL;
  std::string text;
};

Reply Take(int status, char* text) {
  Reply reply{status, text != nullptr ? text : ""};
  kelvra_text_free(text);
  return reply;
}

// Runs with the n-th allocation failing, for each n, until none fails; returns the number of failures. A failed run
// returns KELVRA_TEXT_OUT_OF_MEMORY and leaves at most `kept` blocks.
template <class Run>
long FailEachAllocation(long kept, Run run) {
  run();  // What the thread keeps now exists.
  long n = 0;
  for (int status = KELVRA_TEXT_OUT_OF_MEMORY; status != KELVRA_TEXT_OK; ++n) {
    const long before = held;
    until_failure = n;
    status = run();
    until_failure = -1;
    run();  // recreates what the thread keeps if it was released
    EXPECT_LE(held, before + kept) << n;
    EXPECT_TRUE(status == KELVRA_TEXT_OK || status == KELVRA_TEXT_OUT_OF_MEMORY) << status;
    if (testing::Test::HasFailure()) break;
  }
  return n - 1;
}

struct Sample {
  int family;
  std::vector<uint8_t> octets;
  bool isWhole = true;
};
std::vector<Sample> Samples() {
  return {{KELVRA_TEXT_RAS, FromHex("04800000060008914a0004060047004b002d003100c000020106b7")},
          {KELVRA_TEXT_Q931, FromHex("03000033080212675a080280907e00230525c0060008914a000458880011"
                                     "00202122232425262728292a2b2c2d2e2f10800100")},
          {KELVRA_TEXT_H245, FromHex("22c000640480101c0000c0000214177600c00002141777")},
          {KELVRA_TEXT_RAS, FromHex("0480000006"), false}};
}

TEST(TextMemory, DecodeReportsEachFailedAllocation) {
  for (const Sample& sample : Samples()) {
    // The decoders are compiled without exceptions, so one that passes through them leaks the blocks of a fault's path.
    const long kept = sample.isWhole ? 0 : 3;
    const long failed = FailEachAllocation(kept, [&sample] {
      char* json = nullptr;
      const int status = kelvra_text_decode(sample.family, sample.octets.data(), sample.octets.size(), &json);
      EXPECT_EQ(status == KELVRA_TEXT_OK, json != nullptr);
      kelvra_text_free(json);
      return status;
    });
    EXPECT_GT(failed, 2);
  }
}

TEST(TextMemory, CaptureReportsEachFailedAllocation) {
  int whole = 0;
  const long failed = FailEachAllocation(0, [&whole] {
    kelvra_text_capture* capture = nullptr;
    char* text = nullptr;
    int status = kelvra_text_open_capture(kSample.c_str(), &capture, &text);
    kelvra_text_free(text);
    if (status == KELVRA_TEXT_UNREADABLE)
      return int{KELVRA_TEXT_OUT_OF_MEMORY};  // a failure inside the C++ library looks like this
    int messages = 0;
    bool failed_once = status == KELVRA_TEXT_OUT_OF_MEMORY;
    while (status == KELVRA_TEXT_OK) {
      status = kelvra_text_next(capture, &text);
      kelvra_text_free(text);
      messages += status == KELVRA_TEXT_OK ? 1 : 0;
      if (status != KELVRA_TEXT_OUT_OF_MEMORY || failed_once) continue;
      // If there is no memory for its text, the message is not lost.
      failed_once = true;
      until_failure = -1;
      status = KELVRA_TEXT_OK;
    }
    whole = std::max(whole, messages);
    EXPECT_TRUE(status != KELVRA_TEXT_END || messages == whole) << messages;
    kelvra_text_close_capture(capture);
    return failed_once ? int{KELVRA_TEXT_OUT_OF_MEMORY} : int{KELVRA_TEXT_OK};
  });
  EXPECT_GT(failed, 50);
}

TEST(TextThreads, EachDecodesAsOneAlone) {
  const auto decode_all = [] {
    std::vector<std::string> objects;
    for (const Sample& sample : Samples()) {
      char* json = nullptr;
      const int status = kelvra_text_decode(sample.family, sample.octets.data(), sample.octets.size(), &json);
      const Reply reply = Take(status, json);
      objects.push_back(reply.text);
    }
    kelvra_text_capture* capture = nullptr;
    char* text = nullptr;
    if (kelvra_text_open_capture(kSample.c_str(), &capture, &text) != KELVRA_TEXT_OK) return objects;
    for (int status = KELVRA_TEXT_OK; status == KELVRA_TEXT_OK;) {
      status = kelvra_text_next(capture, &text);
      objects.push_back(Take(status, text).text);
    }
    kelvra_text_close_capture(capture);
    return objects;
  };
  const std::vector<std::string> alone = decode_all();
  EXPECT_GT(alone.size(), 10u);
  std::atomic<int> differences{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 20; ++round) differences += decode_all() != alone ? 1 : 0;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(differences, 0);
}

}  // namespace
