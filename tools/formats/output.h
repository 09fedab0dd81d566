// Text on its way out. A call can take many megabytes of a page, which need not be in memory as a whole.
#pragma once

#include <functional>
#include <string>
#include <string_view>

class Output {
 public:
  using Write = std::function<void(std::string_view)>;

  // All text stays.
  explicit Output(std::string& text) : text_(text) {}
  // Text may be written before the rest is there.
  Output(std::string& text, const Write& write) : text_(text), write_(&write) {}

  // What has not been written yet; text is appended to it.
  std::string& Text() { return text_; }

  // Called after each part of a long text.
  void EndPart() {
    if (write_ == nullptr || text_.size() < kLongPart) return;
    (*write_)(text_);
    text_.clear();
  }

 private:
  static constexpr size_t kLongPart = 0x10000;

  std::string& text_;
  const Write* write_ = nullptr;
};
