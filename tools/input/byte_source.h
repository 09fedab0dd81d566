// Reads a file or standard input once, from start to end, as its octets arrive.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

class Gunzip;

// Decompresses gzip input.
class ByteSource {
 public:
  // "-" is standard input. Throws InputError.
  explicit ByteSource(const std::string& path);
  ~ByteSource();
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;

  // Each of these waits for exactly the octets that it needs, and throws InputError.

  // The next octets, not consumed: everything available, fewer than `least` only at the end.
  std::span<const uint8_t> Peek(size_t least);
  // The same, up to a line feed, the end, or `most` octets.
  std::span<const uint8_t> PeekLine(size_t most);
  // Returns fewer than `count` only at the end.
  size_t Read(uint8_t* to, size_t count);
  // False if there were fewer.
  bool Skip(uint64_t count);
  // The next line without its line feed; false at the end. Throws InputError for a line of more than `limit`
  // characters.
  bool ReadLine(std::string& line, size_t limit);

  const std::string& Name() const { return name_; }
  // Otherwise another program writes the octets while they are read.
  bool IsRegularFile() const { return file_.IsRegular(); }

 private:
  class File {
   public:
    explicit File(const std::string& path);
    ~File();
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    // Returns at least one octet unless the file is at its end; negative after an error.
    int Read(std::span<uint8_t> to) const;
    bool IsRegular() const;

   private:
    int descriptor_;
  };

  std::span<const uint8_t> Held() const { return std::span(buffer_).subspan(begin_, end_ - begin_); }
  // Reads more octets; false at the end.
  bool Fill();
  size_t ReadFile(std::span<uint8_t> to);
  size_t ReadContent(std::span<uint8_t> to);

  std::string name_;
  File file_;
  std::unique_ptr<Gunzip> gunzip_;  // if the file is compressed
  std::vector<uint8_t> buffer_;
  size_t begin_ = 0;
  size_t end_ = 0;
};
