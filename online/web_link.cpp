#include "online/web_link.h"

#include <algorithm>

#include "base/characters.h"
#include "base/text.h"

namespace online {
namespace {

bool MayStandInLink(char c) {
  return c > ' ' && c < '\x7F' && c != '"' && c != '\'' && c != '`' && c != '!';
}

// What stands between the scheme's "//" and the path; empty when the scheme is another.
std::string_view Authority(std::string_view link) {
  const std::size_t slashes = link.find("//");
  if (slashes == std::string_view::npos) return {};
  const std::string scheme = base::ToLower(link.substr(0, slashes));
  if (scheme != "http:" && scheme != "https:") return {};
  link.remove_prefix(slashes + 2);
  return link.substr(0, link.find_first_of("/?#\\"));
}

bool IsHexDigit(char c) {
  return base::IsDigit(c) || (base::Lower(c) >= 'a' && base::Lower(c) <= 'f');
}

std::string WithWholeEscapes(std::string_view link) {
  std::string whole;
  for (std::size_t i = 0; i < link.size(); ++i) {
    whole += link[i];
    if (link[i] != '%') continue;
    if (i + 2 >= link.size() || !IsHexDigit(link[i + 1]) || !IsHexDigit(link[i + 2])) whole += "25";
  }
  return whole;
}

}  // namespace

bool IsWebAddress(std::string_view link) {
  if (link.size() > kLongestLink || !std::all_of(link.begin(), link.end(), MayStandInLink)) {
    return false;
  }
  const std::string_view authority = Authority(link);
  return !authority.empty() && authority.front() != ':' &&
         authority.find('@') == std::string_view::npos;
}

bool IsPageAddress(std::string_view address) {
  if (address == "about:blank") return true;
  const std::string_view authority = Authority(address);
  return !authority.empty() && authority.find('@') == std::string_view::npos;
}

bool IsMailAddress(std::string_view link) {
  constexpr std::string_view kScheme = "mailto:";
  constexpr std::string_view kMarks = "._+-@";
  if (link.size() > kLongestMailAddress ||
      base::ToLower(link.substr(0, kScheme.size())) != kScheme) {
    return false;
  }
  link.remove_prefix(kScheme.size());
  const std::size_t at = link.find('@');
  return at != std::string_view::npos && at > 0 && at + 1 < link.size() && at == link.rfind('@') &&
         std::all_of(link.begin(), link.end(), [&](char c) {
           return base::IsLetter(c) || base::IsDigit(c) || kMarks.find(c) != std::string_view::npos;
         });
}

// The mark is a caret before the character. Some interpreters put in the values of variables before
// they look at carets: the name after a percent sign gets one as well, for no variable is called
// that. Others do it afterwards: no name between two percent signs stands in the address then, as
// each of them begins an escape sequence.
std::string StartCommand(std::string_view link) {
  constexpr std::string_view kActedOn = "&|<>^()%";
  std::string command = "cmd /c start ";
  bool in_name = false;
  for (const char c : WithWholeEscapes(link)) {
    if (in_name || kActedOn.find(c) != std::string_view::npos) command += '^';
    command += c;
    in_name = c == '%';
  }
  return command;
}

}  // namespace online
