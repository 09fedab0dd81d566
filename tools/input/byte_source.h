// A file or standard input, read once from front to end.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>
#include <vector>

class ByteSource {
 public:
  // "-" names standard input. Throws InputError.
  explicit ByteSource(const std::string& path);

  // The next octets without consuming them, fewer than `count` only at the end.
  std::span<const uint8_t> Peek(size_t count);
  // Fewer than `count` only at the end. Throws InputError.
  size_t Read(uint8_t* to, size_t count);
  // The next line without its line feed; false at the end. Throws InputError for a line of more
  // than `limit` characters.
  bool ReadLine(std::string& line, size_t limit);

  const std::string& Name() const { return name_; }

 private:
  struct Close {
    void operator()(std::FILE* file) const;
  };

  size_t ReadFile(uint8_t* to, size_t count);
  int NextOctet();

  std::string name_;
  std::unique_ptr<std::FILE, Close> file_;
  std::vector<uint8_t> peeked_;
  size_t peeked_used_ = 0;
};
