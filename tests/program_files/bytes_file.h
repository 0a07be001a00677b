// Bytes as a file: for what reads a file without needing a file system.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>
#include <string_view>

#include "platform/files.h"

namespace program_files {

class BytesFile : public platform::InputFile {
 public:
  // `bytes` must outlive the file. A read yields at most `most_at_once` bytes.
  explicit BytesFile(std::string_view bytes,
                     std::size_t most_at_once = std::numeric_limits<std::size_t>::max())
      : bytes_(bytes), most_at_once_(most_at_once) {}

  std::size_t Read(std::span<char> buffer) override {
    const std::size_t count = std::min({buffer.size(), bytes_.size(), most_at_once_});
    std::copy_n(bytes_.begin(), count, buffer.begin());
    bytes_.remove_prefix(count);
    return count;
  }

 private:
  std::string_view bytes_;
  std::size_t most_at_once_;
};

}  // namespace program_files
