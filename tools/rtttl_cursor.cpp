#include "tools/rtttl_cursor.h"

#include <algorithm>

namespace tools {
namespace {

constexpr std::int32_t kLargestNumber = 99999;

bool IsBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

char RtttlCursor::Peek() const {
  if (AtEnd()) return '\0';
  const char c = text_[at_];
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

char RtttlCursor::Take() {
  const char c = Peek();
  if (!AtEnd()) Step();
  PassBlanks();
  return c;
}

bool RtttlCursor::TakeIf(char c) {
  if (AtEnd() || Peek() != c) return false;
  Take();
  return true;
}

std::int32_t RtttlCursor::TakeNumber() {
  if (!IsDigit(Peek())) return -1;
  std::int32_t number = 0;
  while (IsDigit(Peek())) number = std::min(10 * number + (Take() - '0'), kLargestNumber);
  return number;
}

// CR LF is one line end; the bytes that go on a UTF-8 character are no columns.
void RtttlCursor::Step() {
  const char c = text_[at_++];
  const bool follows = at_ < text_.size();
  if (c == '\n' || (c == '\r' && !(follows && text_[at_] == '\n'))) {
    ++place_.line;
    place_.column = 1;
  } else if (!follows || (static_cast<unsigned char>(text_[at_]) & 0xC0) != 0x80) {
    ++place_.column;
  }
}

void RtttlCursor::PassBlanks() {
  while (!AtEnd() && IsBlank(text_[at_])) Step();
}

}  // namespace tools
