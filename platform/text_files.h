// Whole text files: UTF-8 in memory, the system's code page on disk.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace platform {

// How far a replaced file must have got when Replace returns.
enum class Durability {
  kVisible,  // other programs see the new content
  kOnDisk,   // a power failure leaves it, too
};

class TextFiles {
 public:
  TextFiles(FileSystem& files, CodePage& code_page) : files_(files), code_page_(code_page) {}

  // Nothing when the file does not exist.
  std::optional<std::string> Read(const std::string& path);
  std::optional<std::string> ReadBytes(const std::string& path);

  // Empties the file and writes `text`. On failure whatever was written stays.
  void Write(const std::string& path, std::string_view text);

  // Replaces the file in one step: whatever fails or whenever the program is ended, either the old
  // or the new content is there, whole.
  void Replace(const std::string& path, std::string_view text, Durability durability);

 private:
  FileSystem& files_;
  CodePage& code_page_;
};

}  // namespace platform
