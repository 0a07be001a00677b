#include "about/value_text.h"

namespace about {
namespace {

std::string HexadecimalDigits(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string digits;
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    const unsigned value = static_cast<unsigned char>(*byte);
    digits += kDigits[value / 16];
    digits += kDigits[value % 16];
  }
  return digits;
}

}  // namespace

std::string ValueText(const platform::RegistryValue& value) {
  switch (value.type) {
    case platform::RegistryType::kText:
      return value.data.substr(0, value.data.find('\0'));
    case platform::RegistryType::kNumber:
      return "&h" + HexadecimalDigits(value.data);
    case platform::RegistryType::kOther:
      break;
  }
  return value.data;
}

}  // namespace about
