// A place in a text, and what is to be said of it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tools {

enum class Severity { kError, kWarning };

struct Problem {
  Severity severity = Severity::kError;
  std::int32_t line = 0;    // from 1
  std::int32_t column = 0;  // from 1
  std::string text;

  friend bool operator==(const Problem&, const Problem&) = default;
};

// "FILE:LINE:COLUMN: error: TEXT\n". In colours the words stand out, in the terminal's escape
// sequences (ECMA-48, select graphic rendition).
std::string Formatted(std::string_view file, const Problem& problem, bool colours);

// `bytes` in quotes, so that any terminal shows them: what is no printable ASCII as \x and two
// digits; a tab as \t, a line feed as \n.
std::string Quoted(std::string_view bytes);

}  // namespace tools
