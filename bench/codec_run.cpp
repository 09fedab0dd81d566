#include "codec_run.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace kelvra::bench {
namespace {

size_t RecordSize(Family family) {
  switch (family) {
    case Family::kRas: return sizeof(h225::RasMessageRecord);
    case Family::kQ931: return sizeof(h225::Q931MessageRecord);
    case Family::kH245: return sizeof(h245::H245MessageRecord);
  }
  return 0;
}

// Keeps the compiler from removing the work that makes the value, or an allocation.
template <class Value>
void Use(const Value& value) {
  __asm__ volatile("" : : "g"(value) : "memory");
}

}  // namespace

void Decode(AnyRecord& record, const Message& message) {
  const uint8_t* octets = message.octets.data();
  const size_t size = message.octets.size();
  switch (message.family) {
    case Family::kRas: KelvraDecodeRASMessage(&record.ras, octets, static_cast<uint32_t>(size)); return;
    case Family::kQ931: KelvraDecodeQ931Message(&record.q931, octets, static_cast<int32_t>(size)); return;
    case Family::kH245: KelvraDecodeH245Message(&record.h245, octets, static_cast<uint32_t>(size)); return;
  }
}

void Release(AnyRecord& record, const Message& message) {
  switch (message.family) {
    case Family::kRas: KelvraFreeRASMessage(&record.ras); return;
    case Family::kQ931: KelvraFreeQ931Message(&record.q931); return;
    case Family::kH245: KelvraFreeH245Message(&record.h245); return;
  }
}

[[gnu::noinline]] void RunFloor(AnyRecord& record, const Message& message, std::vector<void*>& blocks) {
  std::memset(&record, 0, RecordSize(message.family));
  Use(&record);
  uint32_t sum = 0;
  for (const uint8_t octet : message.octets) sum += octet;
  Use(sum);
  void** next = blocks.data();
  for (const int32_t step : message.heapSteps) {
    if (step > 0) {
      *next = std::calloc(static_cast<size_t>(step), 1);
      Use(*next++);
    } else {
      std::free(blocks[static_cast<size_t>(-step - 1)]);
    }
  }
}

size_t MostBlocks(const Workload& workload) {
  size_t most = 0;
  for (const Message& message : workload.messages) {
    most = std::max(most, static_cast<size_t>(std::count_if(message.heapSteps.begin(), message.heapSteps.end(),
                                                            [](int32_t step) { return step > 0; })));
  }
  return most;
}

}  // namespace kelvra::bench
