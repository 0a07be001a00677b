// Files and their code page, counted.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/simulated/calls.h"

namespace platform::simulated {

class FaultyFiles : public FileSystem {
 public:
  FaultyFiles(FileSystem& files, Calls& calls) : files_(files), calls_(calls) {}

  bool Exists(const std::string& path) override;
  std::unique_ptr<InputFile> OpenForReading(const std::string& path) override;
  std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
  void Rename(const std::string& from, const std::string& to) override;
  std::vector<std::string> Beginning(const std::string& path) override;
  bool Delete(const std::string& path) override;
  std::string TemporaryName(const std::string& path) override;

 private:
  FileSystem& files_;
  Calls& calls_;
};

class FaultyCodePage : public CodePage {
 public:
  FaultyCodePage(CodePage& code_page, Calls& calls) : code_page_(code_page), calls_(calls) {}

  std::string Encode(std::string_view utf8) override;
  std::string Decode(std::string_view bytes) override;

 private:
  CodePage& code_page_;
  Calls& calls_;
};

}  // namespace platform::simulated
