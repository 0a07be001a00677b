#include "platform/simulated/registry.h"

#include "base/text.h"

namespace platform::simulated {

void FakeRegistry::Put(RegistryRoot root, const std::string& key, const std::string& value,
                       RegistryType type, const std::string& data) {
  values_[{root, base::ToLower(key), base::ToLower(value)}] = {type, data};
}

std::optional<RegistryValue> FakeRegistry::Read(RegistryRoot root, const std::string& key,
                                                const std::string& value) {
  const auto found = values_.find({root, base::ToLower(key), base::ToLower(value)});
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

}  // namespace platform::simulated
