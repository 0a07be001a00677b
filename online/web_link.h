// Links that come from elsewhere, and the command that opens one in the user's browser.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace online {

inline constexpr std::size_t kLongestLink = 1500;        // characters
inline constexpr std::size_t kLongestMailAddress = 320;  // characters, "mailto:" counted

// Whether `link` may be opened: an http or https address of printable ASCII characters (RFC 3986
// allows no others), without a blank, a quote (" ' `) or an exclamation mark and without a user
// name before the host.
bool IsWebAddress(std::string_view link);

// Whether the news window may go to `address` itself: an http or https address without a user name,
// or the empty page. It is handed to no command.
bool IsPageAddress(std::string_view address);

// Whether `link` may be opened as a letter to somebody: "mailto:" and one address of letters,
// digits and "._+-", with nothing behind it.
bool IsMailAddress(std::string_view link);

// "cmd /c start " and the link. What the command interpreter would act on is marked so that it
// reaches the browser as part of the address; a percent sign that begins no escape sequence is
// written as one ("%25"). Commas, semicolons and equals signs only part the words before the link.
// `link` is a web or a mail address.
std::string StartCommand(std::string_view link);

}  // namespace online
