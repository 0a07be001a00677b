// The version resource that the simulated program's file has, or has not.
#pragma once

#include <optional>

#include "base/errors.h"
#include "platform/version_resource.h"

namespace platform::simulated {

class FakeVersionResource : public VersionResource {
 public:
  std::optional<ProgramVersion> version{{"Tonmira", 2, 3, 6}};

  ProgramVersion Read() override {
    if (!version) throw base::RuntimeError(base::ErrorCode::kFileNotFound);
    return *version;
  }
};

}  // namespace platform::simulated
