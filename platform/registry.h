// The system's registry, to be read only.
#pragma once

#include <optional>
#include <string>

namespace platform {

enum class RegistryRoot { kClassesRoot, kCurrentUser, kLocalMachine, kUsers };

enum class RegistryType {
  kText,    // UTF-8, with any terminating zeros that are stored; variables such as "%TEMP%" are
            // replaced where the value asks for it
  kNumber,  // 32 bits: four bytes, the least significant first
  kOther,   // whatever else is stored, a number of another length, too
};

struct RegistryValue {
  RegistryType type = RegistryType::kOther;
  std::string data;
};

class Registry {
 public:
  virtual ~Registry() = default;

  // Nothing when the key cannot be opened or has no such value that could be read.
  virtual std::optional<RegistryValue> Read(RegistryRoot root, const std::string& key,
                                            const std::string& value) = 0;
};

}  // namespace platform
