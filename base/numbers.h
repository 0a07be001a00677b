// Number rules: how numbers become text and text becomes numbers, and the checked conversions to
// 16 and 32 bits. Every conversion that does not fit throws RuntimeError kOverflow.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace base {

// Signed-number rendering: a blank in the sign position, then the digits (" 440", "-5").
std::string SignedNumber(std::int32_t value);

// The digits alone, with a minus sign where needed ("440", "-5").
std::string BareNumber(std::int32_t value);

// Leading-number value: leading blanks are skipped, the longest prefix that is a decimal number
// (sign, digits, one point, exponent with E or D) counts, the rest is ignored; no number gives 0.
// A number beyond the range of double throws kOverflow.
double LeadingNumber(std::string_view text);

// The same, but a number beyond the range of double is infinite, with its sign.
double LeadingNumberOrInfinity(std::string_view text);

// The value of a text that must be a number as a whole (blanks around it allowed).
// Throws kTypeMismatch when it is none, kOverflow beyond the range of double.
double NumberFromText(std::string_view text);

// Whether NumberFromText takes the text for a number (of any size).
bool IsNumber(std::string_view text);

// `text`, written with `decimal_sign` for the point, as the functions above want it. A point in it
// is no number then.
std::string WithPoint(std::string_view text, char decimal_sign);

// The greatest whole number not above `value`.
double WholePart(double value);

// Nearest whole number, ties to even (IEEE 754 roundTiesToEven).
double RoundToEven(double value);

// Rounded with ties to even; throws kOverflow outside the type's range (and for NaN).
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

// Products and sums in 32 bits; throw kOverflow.
std::int32_t MultiplyInt32(std::int32_t a, std::int32_t b);
std::int32_t AddInt32(std::int32_t a, std::int32_t b);

}  // namespace base
