// Files in memory and the two streams, for tests of tnf.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tools/command_line.h"
#include "tools/surroundings.h"

namespace tools {

class FakeSurroundings : public Surroundings {
 public:
  std::map<std::string, std::string> files;
  std::string output;  // what went to standard output, samples included
  std::string errors;
  std::set<Stream> colours;
  Destination::Kind kind_of_output = Destination::Kind::kStream;
  std::size_t room = 1UL << 30;    // bytes that a file can take
  std::vector<std::string> begun;  // files that something was written to

  // What `arguments` end with.
  int Run(const std::vector<std::string>& arguments) {
    output.clear();
    errors.clear();
    return RunTnf(arguments, *this);
  }

  std::unique_ptr<base::ByteSource> Open(const std::string& name) override {
    const auto file = files.find(name);
    if (file == files.end()) throw Failure(name + ": it is not there");
    return std::make_unique<base::BytesInMemory>(file->second);
  }

  std::unique_ptr<Destination> Create(const std::string& name) override {
    return std::make_unique<FakeDestination>(*this, name);
  }

  void Print(Stream stream, std::string_view text) override {
    (stream == Stream::kOutput ? output : errors) += text;
  }

  bool ShowsColours(Stream stream) const override { return colours.count(stream) > 0; }

 private:
  class FakeDestination : public Destination {
   public:
    FakeDestination(FakeSurroundings& around, std::string name)
        : around_(around), name_(std::move(name)) {}

    Kind kind() const override { return IsFile() ? Kind::kFile : around_.kind_of_output; }
    void Write(std::string_view bytes) override {
      if (bytes_.empty()) around_.begun.push_back(name_);
      bytes_ += bytes;
      if (bytes_.size() > around_.room) throw Failure(name_ + ": it is full");
    }
    void Finish() override {
      if (IsFile()) {
        around_.files[name_] = bytes_;
      } else {
        around_.output += bytes_;
      }
    }

   private:
    bool IsFile() const { return name_ != "-"; }

    FakeSurroundings& around_;
    std::string name_;
    std::string bytes_;
  };
};

}  // namespace tools
