#include "helpers/wide_text.h"

#include <algorithm>

namespace helpers {

WideText& WideText::Append(std::wstring_view more) {
  const std::size_t added = std::min(more.size(), kLongest - size_);
  std::copy_n(more.data(), added, characters_.data() + size_);
  size_ += added;
  characters_[size_] = L'\0';
  return *this;
}

WideText& WideText::AppendAscii(std::string_view more) {
  for (const char c : more) {
    const wchar_t wide = static_cast<unsigned char>(c);
    Append({&wide, 1});
  }
  return *this;
}

}  // namespace helpers
