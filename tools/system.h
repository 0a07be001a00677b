// The surroundings of tnf on a real machine.
//
// A file is written beside its name, as NAME.part, and renamed when it is complete: so whatever
// happens, what stands under the name is whole. A device or a pipe is written as it is.
#pragma once

#include "tools/surroundings.h"

namespace tools {

class System : public Surroundings {
 public:
  System();

  std::unique_ptr<base::ByteSource> Open(const std::string& name) override;
  std::unique_ptr<Destination> Create(const std::string& name) override;
  void Print(Stream stream, std::string_view text) override;
  bool ShowsColours(Stream stream) const override;

  // The exit code of the program, `code` unless standard output could not take what was printed.
  int Close(int code);
};

}  // namespace tools
