#include "ui/typed_number.h"

namespace ui {
namespace {

constexpr char32_t kBackspace = 8;
constexpr std::size_t kMostDigits = 9;  // as many as every 32-bit number can have

}  // namespace

bool TypedNumber::Press(char32_t key, std::uint32_t at_ms) {
  const bool digit = key >= U'0' && key <= U'9';
  if (!digit && key != kBackspace) return false;
  if (at_ms - last_ms_ > kPauseMs) Forget();
  last_ms_ = at_ms;
  if (digit && digits_.size() < kMostDigits) digits_ += static_cast<char>(key);
  if (!digit && !digits_.empty()) digits_.pop_back();
  return true;
}

std::optional<std::int32_t> TypedNumber::Number() const {
  if (digits_.empty()) return std::nullopt;
  std::int32_t number = 0;
  for (const char digit : digits_) number = number * 10 + (digit - '0');
  return number;
}

}  // namespace ui
