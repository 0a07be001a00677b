// What tnf asks of its surroundings: files by their UTF-8 names, the standard streams, a terminal.
//
// "-" as a name is standard input or standard output. What fails throws Failure with the name and
// the system's reason, in a text for the user.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "base/byte_source.h"

namespace tools {

// Something could not be read or written.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Where a command's result goes, piece by piece. A file stands under its name, whole, when Finish
// has returned; an object that is destroyed earlier leaves what was there before. What goes to
// standard output, a device or a pipe cannot be taken back.
class Destination {
 public:
  enum class Kind { kFile, kStream, kTerminal };

  virtual ~Destination() = default;

  virtual Kind kind() const = 0;
  virtual void Write(std::string_view bytes) = 0;
  virtual void Finish() = 0;
};

class Surroundings {
 public:
  enum class Stream { kOutput, kErrors };

  virtual ~Surroundings() = default;

  virtual std::unique_ptr<base::ByteSource> Open(const std::string& name) = 0;
  // Nothing is created or written before the first Write or Finish.
  virtual std::unique_ptr<Destination> Create(const std::string& name) = 0;

  // UTF-8 text with "\n" at the end of its lines.
  virtual void Print(Stream stream, std::string_view text) = 0;
  // Whether a person looks at the stream, on a terminal that shows colours, and wants any.
  virtual bool ShowsColours(Stream stream) const = 0;
};

}  // namespace tools
