// Values of the registry as text.
#pragma once

#include <string>

#include "platform/registry.h"

namespace about {

// A text up to its terminating zero, or whole where it has none; a number as "&h" and the digits of
// its four bytes, the most significant first ("&h0000002A"); anything else as its raw bytes.
std::string ValueText(const platform::RegistryValue& value);

}  // namespace about
