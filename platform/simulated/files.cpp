#include "platform/simulated/files.h"

#include <algorithm>
#include <utility>

#include "base/text.h"

namespace platform::simulated {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('\\');
  return slash == std::string::npos ? "" : path.substr(0, slash);
}

bool ChangesTheDisk(Operation operation) {
  return operation == Operation::kOpenForWriting || operation == Operation::kWrite ||
         operation == Operation::kRename || operation == Operation::kDelete;
}

}  // namespace

class MemoryInput : public InputFile {
 public:
  MemoryInput(Files& files, std::string path, std::string bytes)
      : files_(files), path_(std::move(path)), bytes_(std::move(bytes)) {}

  std::size_t Read(std::span<char> buffer) override {
    files_.Check(Operation::kRead, path_);
    const std::size_t count = std::min(buffer.size(), bytes_.size() - at_);
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), count, buffer.begin());
    at_ += count;
    return count;
  }

 private:
  Files& files_;
  std::string path_;
  std::string bytes_;
  std::size_t at_ = 0;
};

class MemoryOutput : public OutputFile {
 public:
  MemoryOutput(Files& files, std::string path) : files_(files), path_(std::move(path)) {}

  void Write(std::string_view bytes) override { files_.Write(path_, bytes); }
  void Flush() override { files_.Check(Operation::kFlush, path_); }
  void Close() override { files_.Check(Operation::kClose, path_); }

 private:
  Files& files_;
  std::string path_;
};

void Files::AddFolder(const std::string& path) {
  folders_.insert(base::ToLower(path));
}

void Files::RemoveFolder(const std::string& path) {
  folders_.erase(base::ToLower(path));
}

void Files::Put(const std::string& path, const std::string& bytes) {
  files_[base::ToLower(path)] = File{path, bytes};
}

std::optional<std::string> Files::Get(const std::string& path) const {
  const auto file = files_.find(base::ToLower(path));
  if (file == files_.end()) return std::nullopt;
  return file->second.bytes;
}

std::vector<std::string> Files::PathsIn(const std::string& folder) const {
  std::vector<std::string> paths;
  for (const auto& [key, file] : files_) {
    if (FolderOf(key) == base::ToLower(folder)) paths.push_back(file.path);
  }
  return paths;
}

std::map<std::string, std::string> Files::All() const {
  std::map<std::string, std::string> all;
  for (const auto& [key, file] : files_) all[file.path] = file.bytes;
  return all;
}

void Files::Fail(Operation operation, const std::string& path, base::ErrorCode code) {
  faults_[{operation, base::ToLower(path)}] = code;
}

void Files::FailTimes(int times, Operation operation, const std::string& path,
                      base::ErrorCode code) {
  Fail(operation, path, code);
  times_left_[{operation, base::ToLower(path)}] = times;
}

void Files::Lock(const std::string& path) {
  for (const Operation operation : {Operation::kOpenForReading, Operation::kOpenForWriting,
                                    Operation::kRename, Operation::kDelete}) {
    Fail(operation, path, base::ErrorCode::kPermissionDenied);
  }
}

void Files::FailWritesIn(const std::string& folder, base::ErrorCode code) {
  folder_faults_[base::ToLower(folder)] = code;
}

void Files::FailAt(int n, base::ErrorCode code) {
  operations_ = 0;
  fault_at_ = n;
  fault_code_ = code;
}

void Files::KillAt(int n) {
  operations_ = 0;
  fault_at_ = n;
  fault_code_.reset();
}

void Files::Heal() {
  faults_.clear();
  times_left_.clear();
  folder_faults_.clear();
  operations_ = 0;
  fault_at_ = 0;
}

bool Files::Exists(const std::string& path) {
  return files_.contains(base::ToLower(path));
}

std::unique_ptr<InputFile> Files::OpenForReading(const std::string& path) {
  Check(Operation::kOpenForReading, path);
  const auto file = files_.find(base::ToLower(path));
  if (file == files_.end()) return nullptr;
  return std::make_unique<MemoryInput>(*this, path, file->second.bytes);
}

std::unique_ptr<OutputFile> Files::OpenForWriting(const std::string& path) {
  CheckFolder(path);
  CheckNoFolder(path);
  Check(Operation::kOpenForWriting, path);
  journal_.Add(Kind::kFile, "create " + path);
  Put(path, "");
  return std::make_unique<MemoryOutput>(*this, path);
}

void Files::Rename(const std::string& from, const std::string& to) {
  Check(Operation::kRename, to);
  CheckNoFolder(to);
  const auto file = files_.find(base::ToLower(from));
  if (file == files_.end()) throw base::RuntimeError(base::ErrorCode::kFileNotFound);
  journal_.Add(Kind::kFile, "rename " + from + " to " + to);
  const std::string bytes = file->second.bytes;
  files_.erase(file);
  Put(to, bytes);
}

std::vector<std::string> Files::Beginning(const std::string& path) {
  std::vector<std::string> paths;
  for (const auto& [key, file] : files_) {
    if (key.starts_with(base::ToLower(path)) && FolderOf(key) == base::ToLower(FolderOf(path))) {
      paths.push_back(file.path);
    }
  }
  return paths;
}

bool Files::Delete(const std::string& path) {
  Check(Operation::kDelete, path);
  if (files_.erase(base::ToLower(path)) == 0) return false;
  journal_.Add(Kind::kFile, "delete " + path);
  return true;
}

std::string Files::TemporaryName(const std::string& path) {
  return path + ".1a2b.tmp";
}

void Files::Check(Operation operation, const std::string& path) {
  ++operations_;
  if (operations_ == fault_at_) {
    if (!fault_code_) throw ProcessEnded{};
    throw base::RuntimeError(*fault_code_);
  }
  const auto fault = faults_.find({operation, base::ToLower(path)});
  if (fault != faults_.end()) {
    const base::ErrorCode code = fault->second;
    const auto times = times_left_.find(fault->first);
    if (times != times_left_.end() && --times->second == 0) {
      times_left_.erase(times);
      faults_.erase(fault);
    }
    throw base::RuntimeError(code);
  }
  const auto folder_fault = folder_faults_.find(base::ToLower(FolderOf(path)));
  if (folder_fault != folder_faults_.end() && ChangesTheDisk(operation)) {
    throw base::RuntimeError(folder_fault->second);
  }
}

void Files::CheckNoFolder(const std::string& path) const {
  if (folders_.contains(base::ToLower(path))) {
    throw base::RuntimeError(base::ErrorCode::kPathFileAccess);
  }
}

void Files::CheckFolder(const std::string& path) const {
  if (!folders_.contains(base::ToLower(FolderOf(path)))) {
    throw base::RuntimeError(base::ErrorCode::kPathNotFound);
  }
}

void Files::Write(const std::string& path, std::string_view bytes) {
  std::string& content = files_[base::ToLower(path)].bytes;
  content.append(bytes.substr(0, bytes.size() / 2));
  Check(Operation::kWrite, path);
  content.append(bytes.substr(bytes.size() / 2));
  journal_.Add(Kind::kFile, "write " + path + ", " + std::to_string(bytes.size()) + " bytes");
}

std::string Latin1::Encode(std::string_view utf8) {
  std::string bytes;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    if (lead < 0x80) {
      bytes += utf8[i];
    } else if ((lead == 0xC2 || lead == 0xC3) && i + 1 < utf8.size()) {
      bytes += static_cast<char>((lead & 0x03) << 6 | (utf8[++i] & 0x3F));
    } else if (lead >= 0xC0) {
      bytes += '?';
    }
  }
  return bytes;
}

std::string Latin1::Decode(std::string_view bytes) {
  std::string utf8;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x80) {
      utf8 += byte;
    } else {
      utf8 += static_cast<char>(0xC0 | code >> 6);
      utf8 += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
  return utf8;
}

}  // namespace platform::simulated
