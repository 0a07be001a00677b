#include "program_files/line_reader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "base/errors.h"

namespace program_files {

std::optional<std::string> LineReader::Next() {
  std::optional<std::string> line(std::in_place);
  const bool there = ReadLine([&](std::string_view piece) {
    if (piece.size() > bytes_left_) throw base::RuntimeError(base::ErrorCode::kOutOfMemory);
    bytes_left_ -= piece.size();
    *line += piece;
  });
  if (!there) line.reset();
  return line;
}

bool LineReader::Skip() {
  return ReadLine([](std::string_view) {});
}

template <class Take>
bool LineReader::ReadLine(const Take& take) {
  bool there = false;
  while (Fill()) {
    there = true;
    const std::string_view unread(block_.data() + at_, size_ - at_);
    const std::size_t end = std::min(unread.find('\r'), unread.size());
    take(unread.substr(0, end));
    at_ += end;
    if (at_ == size_) continue;
    ++at_;
    if (Fill() && block_[at_] == '\n') ++at_;
    break;
  }
  return there;
}

// Whether there is an unread byte, read from the file where needed.
bool LineReader::Fill() {
  if (at_ < size_) return true;
  at_ = 0;
  size_ = file_.Read(block_);
  return size_ != 0;
}

std::int32_t CountLines(base::ByteSource& file, std::int32_t most) {
  LineReader reader(file, 0);
  std::int32_t count = 0;
  while (count < most && reader.Skip()) ++count;
  return count;
}

}  // namespace program_files
