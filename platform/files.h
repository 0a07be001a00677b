// Files, as the program asks for them. Paths are UTF-8; contents are bytes.
//
// Errors are base::RuntimeError: 53 file not found, 57 device error, 61 disk full, 70 permission
// denied (also: held by another program), 75 path/file access error (read-only file, a folder),
// 76 path not found. An object that is destroyed closes its file without reporting anything.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_source.h"

namespace platform {

class InputFile : public base::ByteSource {};

class OutputFile {
 public:
  virtual ~OutputFile() = default;

  virtual void Write(std::string_view bytes) = 0;

  // Returns when what was written is on the disk.
  virtual void Flush() = 0;

  virtual void Close() = 0;
};

class FileSystem {
 public:
  virtual ~FileSystem() = default;

  // True for a file, false for a folder or nothing.
  virtual bool Exists(const std::string& path) = 0;

  // Null when there is no such file or folder, or a folder of that name in its place.
  virtual std::unique_ptr<InputFile> OpenForReading(const std::string& path) = 0;

  // Creates the file, or empties the one that is there; a link of that name is replaced by a new
  // file, and what it leads to stays as it is.
  virtual std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) = 0;

  // Gives `from` the name `to`, in one step, replacing a file of that name.
  virtual void Rename(const std::string& from, const std::string& to) = 0;

  // The files whose paths begin with `path`, which names a folder and the beginning of a name.
  virtual std::vector<std::string> Beginning(const std::string& path) = 0;

  // Returns whether there was such a file.
  virtual bool Delete(const std::string& path) = 0;

  // A new name beside `path` that nobody can foresee: `path`, a point, some more and ".tmp".
  virtual std::string TemporaryName(const std::string& path) = 0;
};

// The system's single-byte code page. What it cannot express becomes "?".
class CodePage {
 public:
  virtual ~CodePage() = default;

  virtual std::string Encode(std::string_view utf8) = 0;
  virtual std::string Decode(std::string_view bytes) = 0;
};

}  // namespace platform
