// The version resource of the program's own executable file.
#pragma once

#include <cstdint>
#include <string>

namespace platform {

struct ProgramVersion {
  std::string title;  // the product's name
  std::uint16_t major = 0;
  std::uint16_t minor = 0;
  std::uint16_t revision = 0;
};

class VersionResource {
 public:
  virtual ~VersionResource() = default;

  // Throws base::RuntimeError 53 when the file has no such resource.
  virtual ProgramVersion Read() = 0;
};

}  // namespace platform
