// Files in memory that fail on demand.
//
// Paths are compared without regard to case. Every open, read, write, flush, close, rename and
// delete is one operation; faults are set on kinds of operations, on paths, or on the n-th
// operation from now.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/errors.h"
#include "platform/files.h"
#include "platform/simulated/journal.h"

namespace platform::simulated {

enum class Operation {
  kOpenForReading,
  kRead,
  kOpenForWriting,
  kWrite,
  kFlush,
  kClose,
  kRename,
  kDelete
};

class Files : public FileSystem {
 public:
  explicit Files(Journal& journal) : journal_(journal) {}

  // What the disk holds.
  void AddFolder(const std::string& path);
  void RemoveFolder(const std::string& path);
  void Put(const std::string& path, const std::string& bytes);
  std::optional<std::string> Get(const std::string& path) const;
  std::vector<std::string> PathsIn(const std::string& folder) const;
  std::map<std::string, std::string> All() const;  // contents by path

  // Every `operation` on `path` fails with `code` until Heal().
  void Fail(Operation operation, const std::string& path, base::ErrorCode code);

  // The next `times` ones do, and no more.
  void FailTimes(int times, Operation operation, const std::string& path, base::ErrorCode code);

  // Another program holds the file: opening, renaming onto and deleting it are denied.
  void Lock(const std::string& path);

  // Every attempt to create or change a file in the folder fails with `code`.
  void FailWritesIn(const std::string& folder, base::ErrorCode code);

  // The n-th operation from now (1 = the next) fails, or the program is ended there. A write gets
  // half of its bytes to the file before.
  void FailAt(int n, base::ErrorCode code);
  void KillAt(int n);

  void Heal();

  // Operations since the last FailAt, KillAt or Heal.
  int operations() const { return operations_; }

  bool Exists(const std::string& path) override;
  std::unique_ptr<InputFile> OpenForReading(const std::string& path) override;
  std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
  void Rename(const std::string& from, const std::string& to) override;
  std::vector<std::string> Beginning(const std::string& path) override;
  bool Delete(const std::string& path) override;
  std::string TemporaryName(const std::string& path) override;

 private:
  friend class MemoryInput;
  friend class MemoryOutput;

  struct File {
    std::string path;  // as it was first spelled
    std::string bytes;
  };

  void Check(Operation operation, const std::string& path);
  void CheckFolder(const std::string& path) const;
  void CheckNoFolder(const std::string& path) const;  // a folder stands in its place
  void Write(const std::string& path, std::string_view bytes);

  Journal& journal_;
  std::map<std::string, File> files_;
  std::set<std::string> folders_;
  std::map<std::pair<Operation, std::string>, base::ErrorCode> faults_;
  std::map<std::pair<Operation, std::string>, int> times_left_;  // of the faults that pass
  std::map<std::string, base::ErrorCode> folder_faults_;
  int operations_ = 0;
  int fault_at_ = 0;
  std::optional<base::ErrorCode> fault_code_;  // none: the program is ended
};

// Characters up to U+00FF are one byte each.
class Latin1 : public CodePage {
 public:
  std::string Encode(std::string_view utf8) override;
  std::string Decode(std::string_view bytes) override;
};

}  // namespace platform::simulated
