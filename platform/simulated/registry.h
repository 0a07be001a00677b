// A registry that holds what a test puts there. Names are compared without regard to case.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <tuple>

#include "platform/registry.h"

namespace platform::simulated {

class FakeRegistry : public Registry {
 public:
  void Put(RegistryRoot root, const std::string& key, const std::string& value, RegistryType type,
           const std::string& data);

  std::optional<RegistryValue> Read(RegistryRoot root, const std::string& key,
                                    const std::string& value) override;

 private:
  std::map<std::tuple<RegistryRoot, std::string, std::string>, RegistryValue> values_;
};

}  // namespace platform::simulated
