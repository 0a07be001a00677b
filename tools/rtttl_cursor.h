// A way through a text that passes over blanks and line ends, and knows where it is.
#pragma once

#include <cstdint>
#include <string_view>

namespace tools {

class RtttlCursor {
 public:
  struct Place {
    std::int32_t line = 1;
    std::int32_t column = 1;  // in UTF-8 characters
  };

  explicit RtttlCursor(std::string_view text) : text_(text) { PassBlanks(); }

  bool AtEnd() const { return at_ == text_.size(); }
  // The next character, a capital letter made small; '\0' at the end.
  char Peek() const;
  char Take();
  bool TakeIf(char c);
  // Digits, blanks between them left out; -1 if there are none, at most 99999.
  std::int32_t TakeNumber();

  Place place() const { return place_; }
  std::size_t offset() const { return at_; }

 private:
  void Step();
  void PassBlanks();

  std::string_view text_;
  std::size_t at_ = 0;
  Place place_;
};

}  // namespace tools
