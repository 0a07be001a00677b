#include "helpers/destination.h"

#include <algorithm>
#include <charconv>

namespace helpers {
namespace {

constexpr std::uint16_t kHttpPort = 80;
constexpr std::uint16_t kHttpsPort = 443;

// Takes off what stands before the first of `marks`, or everything.
std::string_view TakeUntil(std::string_view& text, std::string_view marks) {
  const std::string_view before(text.data(), std::min(text.find_first_of(marks), text.size()));
  text.remove_prefix(before.size());
  return before;
}

}  // namespace

Destination DestinationOf(std::string_view base) {
  constexpr std::string_view kSlashes = "//";
  Destination destination;
  const std::string_view scheme = TakeUntil(base, ":");
  destination.encrypted = scheme.size() == std::string_view("https").size();
  destination.port = destination.encrypted ? kHttpsPort : kHttpPort;
  base.remove_prefix(std::min(1 + kSlashes.size(), base.size()));
  destination.host = TakeUntil(base, ":/");
  if (base.starts_with(':')) {
    base.remove_prefix(1);
    const std::string_view port = TakeUntil(base, "/");
    std::from_chars(port.data(), port.data() + port.size(), destination.port);
  }
  destination.folder = base;
  return destination;
}

}  // namespace helpers
