// A log as it was at one moment, in memory.
#pragma once

#include <memory>
#include <span>

#include "helpers/wide_text.h"
#include "platform/windows/api/windows_api.h"

namespace helpers {

class LogFile {
 public:
  // Reads the file at `path`. Without content afterwards if it cannot be read, is empty or larger
  // than kLargestLog, is a folder, a device or a link to another file, or is rewritten again and
  // again while it is read.
  explicit LogFile(const WideText& path);

  std::span<char> content() { return {memory_.get(), size_}; }

 private:
  struct HeapReleaser {
    void operator()(char* memory) const { HeapFree(GetProcessHeap(), 0, memory); }
  };

  std::unique_ptr<char, HeapReleaser> memory_;
  std::size_t size_ = 0;
};

}  // namespace helpers
