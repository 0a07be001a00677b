// A text of wide characters in a fixed space: with nothing that allocates or throws, the helpers do
// without the runtime library's machinery for that and stay small.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace helpers {

// Holds the longest path and the longest command line that Windows knows. What does not fit is cut
// off: there is no such path.
class WideText {
 public:
  static constexpr std::size_t kLongest = 32767;

  // Lets `fill(space, size)` write a text into the space and return its length.
  template <typename Fill>
  static WideText FilledBy(Fill fill) {
    WideText text;
    text.size_ = fill(text.characters_.data(), text.characters_.size());
    if (text.size_ > kLongest) text.size_ = 0;
    text.characters_[text.size_] = L'\0';
    return text;
  }

  WideText& Append(std::wstring_view more);
  WideText& AppendAscii(std::string_view more);

  bool empty() const { return size_ == 0; }
  wchar_t* data() { return characters_.data(); }
  const wchar_t* c_str() const { return characters_.data(); }
  std::wstring_view view() const { return {characters_.data(), size_}; }

 private:
  std::array<wchar_t, kLongest + 1> characters_{};
  std::size_t size_ = 0;
};

}  // namespace helpers
