// Owners of COM objects.
#pragma once

#include <memory>

namespace platform::windows {

struct ComReleaser {
  template <typename Interface>
  void operator()(Interface* object) const {
    object->Release();
  }
};
template <typename Interface>
using ComOwner = std::unique_ptr<Interface, ComReleaser>;

}  // namespace platform::windows
