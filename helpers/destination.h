// The base of the maker's site, taken apart as the system's HTTP functions want it.
#pragma once

#include <cstdint>
#include <string_view>

namespace helpers {

struct Destination {
  bool encrypted = false;  // https
  std::string_view host;
  std::uint16_t port = 0;
  std::string_view folder;  // begins with a slash and does not end with one, or is empty
};

// `base` is one that online::SiteBase gives. The result's texts lie in it.
Destination DestinationOf(std::string_view base);

}  // namespace helpers
