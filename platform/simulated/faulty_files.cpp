#include "platform/simulated/faulty_files.h"

#include <cstddef>
#include <span>
#include <utility>

namespace platform::simulated {
namespace {

using base::ErrorCode;

class FaultyInput : public InputFile {
 public:
  FaultyInput(std::unique_ptr<InputFile> file, std::string path, Calls& calls)
      : file_(std::move(file)), path_(std::move(path)), calls_(calls) {}

  std::size_t Read(std::span<char> buffer) override {
    calls_.Enter("file.Read", path_, ErrorCode::kDeviceError);
    return file_->Read(buffer);
  }

 private:
  std::unique_ptr<InputFile> file_;
  std::string path_;
  Calls& calls_;
};

class FaultyOutput : public OutputFile {
 public:
  FaultyOutput(std::unique_ptr<OutputFile> file, std::string path, Calls& calls)
      : file_(std::move(file)), path_(std::move(path)), calls_(calls) {}

  // Half of it gets to the disk.
  void Write(std::string_view bytes) override {
    file_->Write(bytes.substr(0, bytes.size() / 2));
    calls_.Enter("file.Write", path_, ErrorCode::kDiskFull);
    file_->Write(bytes.substr(bytes.size() / 2));
  }
  void Flush() override {
    calls_.Enter("file.Flush", path_, ErrorCode::kDeviceError);
    file_->Flush();
  }
  void Close() override {
    calls_.Enter("file.Close", path_, ErrorCode::kDiskFull);
    file_->Close();
  }

 private:
  std::unique_ptr<OutputFile> file_;
  std::string path_;
  Calls& calls_;
};

}  // namespace

bool FaultyFiles::Exists(const std::string& path) {
  return !calls_.Next("files.Exists", path) && files_.Exists(path);
}

std::unique_ptr<InputFile> FaultyFiles::OpenForReading(const std::string& path) {
  calls_.Enter("files.OpenForReading", path, ErrorCode::kDeviceError);
  auto file = files_.OpenForReading(path);
  if (file) file = std::make_unique<FaultyInput>(std::move(file), path, calls_);
  return file;
}

std::unique_ptr<OutputFile> FaultyFiles::OpenForWriting(const std::string& path) {
  calls_.Enter("files.OpenForWriting", path, ErrorCode::kPathFileAccess);
  return std::make_unique<FaultyOutput>(files_.OpenForWriting(path), path, calls_);
}

void FaultyFiles::Rename(const std::string& from, const std::string& to) {
  calls_.Enter("files.Rename", to, ErrorCode::kPathFileAccess);
  files_.Rename(from, to);
}

std::vector<std::string> FaultyFiles::Beginning(const std::string& path) {
  return calls_.Next("files.Beginning", path) ? std::vector<std::string>{} : files_.Beginning(path);
}

bool FaultyFiles::Delete(const std::string& path) {
  calls_.Enter("files.Delete", path, ErrorCode::kPathFileAccess);
  return files_.Delete(path);
}

std::string FaultyFiles::TemporaryName(const std::string& path) {
  calls_.Enter("files.TemporaryName", path);
  return files_.TemporaryName(path);
}

std::string FaultyCodePage::Encode(std::string_view utf8) {
  calls_.Enter("code_page.Encode");
  return code_page_.Encode(utf8);
}

std::string FaultyCodePage::Decode(std::string_view bytes) {
  calls_.Enter("code_page.Decode");
  return code_page_.Decode(bytes);
}

}  // namespace platform::simulated
