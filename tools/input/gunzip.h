// What gzip has compressed (RFC 1952), a piece at a time.
#pragma once

#include <zlib.h>

#include <cstdint>
#include <functional>
#include <span>
#include <stdexcept>
#include <vector>

class GzipError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Gunzip {
 public:
  // Fills a part of the span given, at least one octet unless there are no more, and returns how much.
  using Reader = std::function<size_t(std::span<uint8_t>)>;

  static constexpr size_t kMagicOctets = 4;
  static bool IsCompressed(std::span<const uint8_t> start);
  // What has come so far may be the start of something compressed.
  static bool MayBeCompressed(std::span<const uint8_t> start);

  // `start` holds the first octets of the file.
  explicit Gunzip(std::span<const uint8_t> start);
  ~Gunzip();
  Gunzip(const Gunzip&) = delete;
  Gunzip& operator=(const Gunzip&) = delete;

  // Returns how many octets it wrote, none at the end only. Throws GzipError.
  size_t Read(std::span<uint8_t> to, const Reader& reader);

 private:
  bool Refill(const Reader& reader);
  // Returns false where no member follows.
  bool StartMember(const Reader& reader);

  z_stream stream_{};
  std::vector<uint8_t> compressed_;
  bool member_ended_ = false;
};
