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

}  // namespace helpers
