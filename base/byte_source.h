// Where bytes come from, one block after the other.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

namespace base {

class ByteSource {
 public:
  virtual ~ByteSource() = default;

  // Fills `buffer` from the source; returns the number of bytes read, 0 at its end.
  virtual std::size_t Read(std::span<char> buffer) = 0;
};

class BytesInMemory : public ByteSource {
 public:
  // `bytes` must outlive the source.
  explicit BytesInMemory(std::string_view bytes) : bytes_(bytes) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t count = std::min(buffer.size(), bytes_.size());
    std::copy_n(bytes_.begin(), count, buffer.begin());
    bytes_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view bytes_;
};

}  // namespace base
