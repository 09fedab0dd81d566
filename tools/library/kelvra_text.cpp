#include "kelvra/kelvra_text.h"

#include <algorithm>
#include <deque>
#include <new>
#include <string>
#include <string_view>

#include "decode/decoded_message.h"
#include "formats/formats.h"
#include "input/capture.h"

namespace {

// Gives the caller a copy of the text; if memory is short, no text and another status.
int PassOn(int status, std::string_view text, char** to) noexcept {
  char* copy = new (std::nothrow) char[text.size() + 1];
  if (copy == nullptr) return KELVRA_TEXT_OUT_OF_MEMORY;
  *std::copy(text.begin(), text.end(), copy) = '\0';
  *to = copy;
  return status;
}

// Runs something that may throw. No exception leaves; its message becomes the text.
template <class Run>
int Guard(char** text, Run run) noexcept {
  if (text == nullptr) return KELVRA_TEXT_BAD_ARGUMENT;
  *text = nullptr;
  try {
    return run();
  } catch (const std::bad_alloc&) {
    return KELVRA_TEXT_OUT_OF_MEMORY;
  } catch (const InputError& error) {
    return PassOn(KELVRA_TEXT_UNREADABLE, error.what(), text);
  } catch (const std::exception& error) {
    return PassOn(KELVRA_TEXT_INTERNAL, error.what(), text);
  } catch (...) {
    return PassOn(KELVRA_TEXT_INTERNAL, "an unknown exception", text);
  }
}

bool IsFamily(int family) { return family >= KELVRA_TEXT_RAS && family <= KELVRA_TEXT_H245; }

// One JSON object on one line, without the line end.
std::string ToJson(const Message& message, const DecodedMessage& decoded) {
  std::string json;
  MakeJson()->Print(message, decoded, json);
  json.pop_back();
  return json;
}

}  // namespace

static_assert(static_cast<int>(Family::kRas) == KELVRA_TEXT_RAS &&
              static_cast<int>(Family::kQ931) == KELVRA_TEXT_Q931 &&
              static_cast<int>(Family::kH245) == KELVRA_TEXT_H245);

// A capture, read packet by packet as far as the next message needs.
struct kelvra_text_capture final : MessageSink {
 public:
  explicit kelvra_text_capture(const char* path) : source_(path), reader_(ports_, *this) { reader_.Open(source_); }

  int AddPort(Family family, uint16_t port) {
    if (has_begun_ || port == 0) return KELVRA_TEXT_BAD_ARGUMENT;
    switch (family) {
      case Family::kRas: ports_.ras.insert(port); break;
      case Family::kQ931: ports_.call_signalling.insert(port); break;
      case Family::kH245: ports_.h245.insert(port); break;
    }
    return KELVRA_TEXT_OK;
  }

  int Next(char** text) {
    has_begun_ = true;
    while (waiting_.empty() && !is_over_) ReadOn();
    if (waiting_.empty()) return end_.text.empty() ? end_.status : PassOn(end_.status, end_.text, text);
    const int status = PassOn(waiting_.front().status, waiting_.front().text, text);
    if (*text != nullptr) waiting_.pop_front();
    return status;
  }

  std::vector<Announced> OnMessage(const Message& message) override {
    const DecodedMessage decoded = DecodeMessage(message.family, message.octets);
    waiting_.push_back({KELVRA_TEXT_OK, ToJson(message, decoded)});
    return AnnouncedBy(decoded);
  }
  void OnLoss(const std::string& what, const FileName&) override { waiting_.push_back({KELVRA_TEXT_LOSS, what}); }
  void OnNotice(const std::string& what) override { waiting_.push_back({KELVRA_TEXT_NOTICE, what}); }

 private:
  struct Item {
    int status;
    std::string text;
  };

  // Reads a packet, or reaches the end.
  void ReadOn() {
    try {
      if (ReadPacket()) return;
    } catch (const std::bad_alloc&) {
      end_ = {KELVRA_TEXT_OUT_OF_MEMORY, {}};
    }
    is_over_ = true;
  }

  bool ReadPacket() {
    Item end{KELVRA_TEXT_END, {}};
    try {
      if (reader_.ReadPacket()) return true;
    } catch (const InputError& error) {
      end = {KELVRA_TEXT_UNREADABLE, error.what()};
    }
    reader_.Close();
    end_ = std::move(end);
    return false;
  }

  ByteSource source_;
  CapturePorts ports_;
  CaptureReader reader_;
  std::deque<Item> waiting_;
  bool has_begun_ = false;
  bool is_over_ = false;  // only the waiting items remain
  Item end_{KELVRA_TEXT_END, {}};
};

const char* KELVRA_TEXT_CALL kelvra_text_version(void) { return KELVRA_VERSION; }

int KELVRA_TEXT_CALL kelvra_text_decode(int family, const uint8_t* octets, size_t length, char** json) {
  return Guard(json, [&] {
    if (!IsFamily(family) || (octets == nullptr && length > 0)) return int{KELVRA_TEXT_BAD_ARGUMENT};
    const Message message{static_cast<Family>(family), {octets, octets + length}, std::nullopt};
    return PassOn(KELVRA_TEXT_OK, ToJson(message, DecodeMessage(message.family, message.octets)), json);
  });
}

void KELVRA_TEXT_CALL kelvra_text_free(char* text) { delete[] text; }

int KELVRA_TEXT_CALL kelvra_text_open_capture(const char* path, kelvra_text_capture** capture, char** error) {
  if (capture != nullptr) *capture = nullptr;
  return Guard(error, [&] {
    if (path == nullptr || capture == nullptr) return int{KELVRA_TEXT_BAD_ARGUMENT};
    *capture = new kelvra_text_capture(path);
    return int{KELVRA_TEXT_OK};
  });
}

int KELVRA_TEXT_CALL kelvra_text_add_port(kelvra_text_capture* capture, int family, uint16_t port) {
  char* reason = nullptr;
  const int status = Guard(&reason, [&] {
    if (capture == nullptr || !IsFamily(family)) return int{KELVRA_TEXT_BAD_ARGUMENT};
    return capture->AddPort(static_cast<Family>(family), port);
  });
  kelvra_text_free(reason);
  return status;
}

int KELVRA_TEXT_CALL kelvra_text_next(kelvra_text_capture* capture, char** text) {
  return Guard(text, [&] { return capture == nullptr ? int{KELVRA_TEXT_BAD_ARGUMENT} : capture->Next(text); });
}

void KELVRA_TEXT_CALL kelvra_text_close_capture(kelvra_text_capture* capture) { delete capture; }
