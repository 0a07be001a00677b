// Files through the system's wide functions. Every file is opened so that other programs may read,
// rename and delete it meanwhile, and write it if it is not being written. A file that is held for
// an instant is tried again for about an eighth of a second before the error counts.
#pragma once

#include "platform/files.h"

namespace platform::windows {

class WindowsFileSystem final : public FileSystem {
 public:
  bool Exists(const std::string& path) override;
  std::unique_ptr<InputFile> OpenForReading(const std::string& path) override;
  std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
  void Rename(const std::string& from, const std::string& to) override;
  std::vector<std::string> Beginning(const std::string& path) override;
  bool Delete(const std::string& path) override;
  std::string TemporaryName(const std::string& path) override;
};

class WindowsCodePage final : public CodePage {
 public:
  std::string Encode(std::string_view utf8) override;
  std::string Decode(std::string_view bytes) override;
};

}  // namespace platform::windows
