// Links that come from elsewhere, and the command that opens one in the user's browser.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace online {

inline constexpr std::size_t kLongestLink = 1500;  // characters

// Whether `link` may be opened: an http or https address of printable ASCII characters (RFC 3986
// allows no others), without a blank, a quote (" ' `) and without a user name before the host.
bool IsWebAddress(std::string_view link);

// "cmd /c start " and the link. What the command interpreter would act on is marked so that it
// reaches the browser as part of the address; a percent sign that begins no escape sequence is
// written as one ("%25"). `link` is a web address.
std::string StartCommand(std::string_view link);

}  // namespace online
