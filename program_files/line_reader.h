// The lines of a tone program file, read block by block.
//
// A line ends at CR LF or at a lone CR; a lone LF and every other byte stays in it. What follows
// the last line end is a line if there is any of it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "base/byte_source.h"

namespace program_files {

class LineReader {
 public:
  // At most `most_bytes` bytes of lines are handed out, so that no file fills the memory.
  LineReader(base::ByteSource& file, std::size_t most_bytes)
      : file_(file), bytes_left_(most_bytes) {}

  // The next line as it stands in the file, or nothing at its end. Throws base::RuntimeError
  // kOutOfMemory when the file has more text than may be handed out; also what reading throws.
  std::optional<std::string> Next();

  // Passes over the next line, however long it is; false at the end of the file.
  bool Skip();

 private:
  // Gives the next line's text to `take`, piece by piece; false at the end of the file.
  template <class Take>
  bool ReadLine(const Take& take);
  bool Fill();

  base::ByteSource& file_;
  std::size_t bytes_left_;
  std::array<char, 4096> block_{};
  std::size_t at_ = 0;
  std::size_t size_ = 0;
};

// The number of lines of a file, which is read to its end, or `most` if it has that many or more.
std::int32_t CountLines(base::ByteSource& file, std::int32_t most);

}  // namespace program_files
