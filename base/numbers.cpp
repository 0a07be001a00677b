#include "base/numbers.h"

#include <cmath>
#include <cstdlib>
#include <limits>

#include "base/characters.h"
#include "base/errors.h"

namespace base {
namespace {

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

std::size_t SkipSign(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

bool IsExponentMark(char c) {
  return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}

// Length of the longest prefix of `text` that is a decimal number; 0 when there is none.
std::size_t NumberLength(std::string_view text) {
  const std::size_t start = SkipSign(text, 0);
  std::size_t end = SkipDigits(text, start);
  std::size_t digits = end - start;
  if (end < text.size() && text[end] == '.') {
    const std::size_t fraction_end = SkipDigits(text, end + 1);
    digits += fraction_end - (end + 1);
    end = fraction_end;
  }
  if (digits == 0) return 0;
  if (end < text.size() && IsExponentMark(text[end])) {
    const std::size_t exponent = SkipSign(text, end + 1);
    const std::size_t exponent_end = SkipDigits(text, exponent);
    if (exponent_end > exponent) end = exponent_end;
  }
  return end;
}

std::string_view TrimLeft(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

std::string_view Trim(std::string_view text) {
  text = TrimLeft(text);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

double Convert(std::string_view number) {
  std::string digits(number);
  for (char& c : digits) {
    if (c == 'd' || c == 'D') c = 'e';
  }
  return std::strtod(digits.c_str(), nullptr);
}

double Finite(double value) {
  if (!std::isfinite(value)) throw RuntimeError(ErrorCode::kOverflow);
  return value;
}

template <class Integer>
Integer Checked(double value) {
  const double rounded = RoundToEven(value);
  if (!(rounded >= std::numeric_limits<Integer>::min() &&
        rounded <= std::numeric_limits<Integer>::max())) {
    throw RuntimeError(ErrorCode::kOverflow);
  }
  return static_cast<Integer>(rounded);
}

std::int32_t Narrow(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max()) {
    throw RuntimeError(ErrorCode::kOverflow);
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace

std::string SignedNumber(std::int32_t value) {
  return value < 0 ? BareNumber(value) : " " + BareNumber(value);
}

std::string BareNumber(std::int32_t value) {
  return std::to_string(value);
}

double LeadingNumber(std::string_view text) {
  return Finite(LeadingNumberOrInfinity(text));
}

double LeadingNumberOrInfinity(std::string_view text) {
  text = TrimLeft(text);
  const std::size_t length = NumberLength(text);
  return length == 0 ? 0.0 : Convert(text.substr(0, length));
}

double NumberFromText(std::string_view text) {
  if (!IsNumber(text)) throw RuntimeError(ErrorCode::kTypeMismatch);
  return Finite(Convert(Trim(text)));
}

bool IsNumber(std::string_view text) {
  text = Trim(text);
  const std::size_t length = NumberLength(text);
  return length != 0 && length == text.size();
}

std::string WithPoint(std::string_view text, char decimal_sign) {
  std::string result(text);
  for (char& c : result) {
    if (c == decimal_sign) {
      c = '.';
    } else if (c == '.') {
      c = decimal_sign;
    }
  }
  return result;
}

double WholePart(double value) {
  return std::floor(value);
}

double RoundToEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1.0;
  return std::fmod(below, 2.0) == 0.0 ? below : below + 1.0;
}

std::int16_t ToInt16(double value) {
  return Checked<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
  return Checked<std::int32_t>(value);
}

std::int32_t MultiplyInt32(std::int32_t a, std::int32_t b) {
  return Narrow(static_cast<std::int64_t>(a) * b);
}

std::int32_t AddInt32(std::int32_t a, std::int32_t b) {
  return Narrow(static_cast<std::int64_t>(a) + b);
}

}  // namespace base
