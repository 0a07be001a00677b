#include "tools/system.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "tools/native.h"

namespace tools {
namespace {

constexpr char kStandard[] = "-";

struct Closing {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closing>;

[[noreturn]] void Fail(const std::string& name, int error) {
  throw Failure(name + ": " + std::strerror(error));
}

// Reads a file, or standard input if there is none.
class Source : public base::ByteSource {
 public:
  Source(std::string name, File file) : name_(std::move(name)), file_(std::move(file)) {}

  std::size_t Read(std::span<char> buffer) override {
    std::FILE* const from = file_ ? file_.get() : stdin;
    errno = 0;
    const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), from);
    if (count == 0 && std::ferror(from) != 0) Fail(name_, errno);
    return count;
  }

 private:
  std::string name_;
  File file_;
};

void WriteAll(std::FILE* file, std::string_view bytes, const std::string& name) {
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) Fail(name, errno);
}

// Standard output, a device or a pipe.
class Outlet : public Destination {
 public:
  Outlet(std::string name, File file) : name_(std::move(name)), file_(std::move(file)) {}

  Kind kind() const override {
    if (native::IsTerminal(Target())) return Kind::kTerminal;
    return native::KindOf(Target()) == native::Kind::kFile ? Kind::kFile : Kind::kStream;
  }

  void Write(std::string_view bytes) override { WriteAll(Target(), bytes, name_); }

  void Finish() override {
    errno = 0;
    if (std::fflush(Target()) != 0) Fail(name_, errno);
  }

 private:
  std::FILE* Target() const { return file_ ? file_.get() : stdout; }

  std::string name_;
  File file_;
};

class NewFile : public Destination {
 public:
  explicit NewFile(std::string name)
      : name_(std::move(name)), target_(native::Resolved(name_)), part_(target_ + ".part") {}
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile() override {
    if (!begun_) return;
    file_.reset();
    native::Remove(part_);
  }

  Kind kind() const override { return Kind::kFile; }

  void Write(std::string_view bytes) override {
    Begin();
    WriteAll(file_.get(), bytes, name_);
  }

  void Finish() override {
    Begin();
    errno = 0;
    // What is still in memory may not fit on the disk.
    if (std::fflush(file_.get()) != 0) Fail(name_, errno);
    file_.reset();
    const int error = native::Rename(part_, target_);
    if (error != 0) Fail(name_, error);
    begun_ = false;
  }

 private:
  void Begin() {
    if (begun_) return;
    errno = 0;
    file_.reset(native::OpenFile(part_, native::Open::kForWriting));
    if (!file_) Fail(name_, errno);
    begun_ = true;
  }

  std::string name_;
  std::string target_;
  std::string part_;
  File file_;
  bool begun_ = false;
};

}  // namespace

System::System() {
  native::BeBinary(stdin);
  native::BeBinary(stdout);
}

std::unique_ptr<base::ByteSource> System::Open(const std::string& name) {
  if (name == kStandard) return std::make_unique<Source>("standard input", nullptr);
  // Reading a folder fails in another way on each system.
  if (native::KindOf(name) == native::Kind::kFolder) Fail(name, EISDIR);
  errno = 0;
  File file(native::OpenFile(name, native::Open::kForReading));
  if (!file) Fail(name, errno);
  return std::make_unique<Source>(name, std::move(file));
}

std::unique_ptr<Destination> System::Create(const std::string& name) {
  if (name == kStandard) return std::make_unique<Outlet>("standard output", nullptr);
  switch (native::KindOf(name)) {
    case native::Kind::kFolder:
      Fail(name, EISDIR);
    case native::Kind::kOther: {
      errno = 0;
      File file(native::OpenFile(name, native::Open::kForWriting));
      if (!file) Fail(name, errno);
      return std::make_unique<Outlet>(name, std::move(file));
    }
    case native::Kind::kNothing:
    case native::Kind::kFile:
      break;
  }
  return std::make_unique<NewFile>(name);
}

void System::Print(Stream stream, std::string_view text) {
  native::PrintText(stream == Stream::kOutput ? stdout : stderr, text);
}

// https://no-color.org
bool System::ShowsColours(Stream stream) const {
  const char* const unwanted = std::getenv("NO_COLOR");
  if (unwanted != nullptr && *unwanted != '\0') return false;
  return native::ObeysEscapes(stream == Stream::kOutput ? stdout : stderr);
}

int System::Close(int code) {
  errno = 0;
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return code;
  // What failed was told already, unless it is of this moment.
  if (errno != 0) {
    Print(Stream::kErrors, std::string("tnf: standard output: ") + std::strerror(errno) + "\n");
  }
  return 2;
}

}  // namespace tools
