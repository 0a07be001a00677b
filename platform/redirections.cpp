#include "platform/redirections.h"

#include <algorithm>

namespace platform {
namespace {

// `beginning` is in lower case.
bool BeginsWith(std::wstring_view text, std::wstring_view beginning) {
  return text.size() >= beginning.size() &&
         std::equal(beginning.begin(), beginning.end(), text.begin(), [](wchar_t a, wchar_t b) {
           return a == (b >= L'A' && b <= L'Z' ? b - L'A' + L'a' : b);
         });
}

}  // namespace

bool MayFollow(std::wstring_view from, std::wstring_view to) {
  if (BeginsWith(to, L"https://")) return true;
  return BeginsWith(to, L"http://") && BeginsWith(from, L"http://");
}

}  // namespace platform
