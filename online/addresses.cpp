#include "online/addresses.h"

#include <algorithm>

#include "base/characters.h"

namespace online {
namespace {

bool IsLetterOrDigit(char c) {
  return base::IsLetter(c) || base::IsDigit(c);
}

// Takes `beginning`, in lower case, off `text`, whatever the case there.
bool TakeOff(std::string_view& text, std::string_view beginning) {
  const bool begins = text.size() >= beginning.size() &&
                      std::equal(beginning.begin(), beginning.end(), text.begin(),
                                 [](char a, char b) { return a == base::Lower(b); });
  if (begins) text.remove_prefix(beginning.size());
  return begins;
}

// What stands before the first `mark`, or everything.
std::string_view Until(std::string_view text, char mark) {
  return {text.data(), std::min(text.find(mark), text.size())};
}

bool IsHost(std::string_view text) {
  return !text.empty() && IsLetterOrDigit(text.front()) && IsLetterOrDigit(text.back()) &&
         text.find("..") == std::string_view::npos &&
         std::all_of(text.begin(), text.end(),
                     [](char c) { return IsLetterOrDigit(c) || c == '-' || c == '.'; });
}

bool IsPort(std::string_view text) {
  constexpr std::size_t kMostDigits = 5;
  constexpr int kHighest = 65535;
  if (text.empty() || text.size() > kMostDigits) return false;
  int port = 0;
  for (const char c : text) {
    if (!base::IsDigit(c)) return false;
    port = port * 10 + (c - '0');
  }
  return port >= 1 && port <= kHighest;
}

bool IsFolder(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) {
    return IsLetterOrDigit(c) || std::string_view("/-._~").find(c) != std::string_view::npos;
  });
}

bool IsBase(std::string_view text) {
  if (!TakeOff(text, "http://") && !TakeOff(text, "https://")) return false;
  const std::string_view authority = Until(text, '/');
  const std::string_view host = Until(authority, ':');
  std::string_view port = authority;
  port.remove_prefix(host.size());
  text.remove_prefix(authority.size());
  return IsHost(host) && (port.empty() || (TakeOff(port, ":") && IsPort(port))) && IsFolder(text);
}

}  // namespace

std::string_view SiteBase(std::string_view named) {
  if (named.size() > kLongestSite || !IsBase(named)) return kBuiltInSite;
  named.remove_suffix(named.size() - (named.find_last_not_of('/') + 1));
  return named;
}

}  // namespace online
