// Bytes as a file, without a file system, and both passes over it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/byte_source.h"
#include "program_files/line_reader.h"

namespace program_files {

class BytesFile : public base::ByteSource {
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

// The first pass over a file.
inline std::vector<std::string> LinesIn(BytesFile file) {
  LineReader reader(file, std::numeric_limits<std::size_t>::max());
  std::vector<std::string> lines;
  while (auto line = reader.Next()) lines.push_back(*std::move(line));
  return lines;
}

// The second pass.
inline std::int32_t CountIn(std::string_view bytes, std::int32_t most) {
  BytesFile file(bytes);
  return CountLines(file, most);
}

}  // namespace program_files
