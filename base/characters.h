// Kinds of single characters, and their case. ASCII alone: what the locale says does not matter.
#pragma once

#include <string_view>

namespace base {

inline constexpr std::string_view kBlanks = " \t";

constexpr bool IsBlank(char c) {
  return kBlanks.find(c) != std::string_view::npos;
}

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

constexpr char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool IsLetter(char c) {
  return Lower(c) >= 'a' && Lower(c) <= 'z';
}

}  // namespace base
