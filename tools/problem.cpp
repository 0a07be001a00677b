#include "tools/problem.h"

namespace tools {
namespace {

constexpr char kBold[] = "\x1b[1m";
constexpr char kRed[] = "\x1b[1;31m";
constexpr char kMagenta[] = "\x1b[1;35m";
constexpr char kPlain[] = "\x1b[0m";

std::string Escaped(char c) {
  if (c == '\t') return "\\t";
  if (c == '\n') return "\\n";
  constexpr char kDigits[] = "0123456789ABCDEF";
  const auto byte = static_cast<unsigned char>(c);
  return {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 15]};
}

}  // namespace

std::string Formatted(std::string_view file, const Problem& problem, bool colours) {
  const bool is_error = problem.severity == Severity::kError;
  std::string place(file);
  place += ":" + std::to_string(problem.line) + ":" + std::to_string(problem.column) + ": ";
  std::string word = is_error ? "error: " : "warning: ";
  if (colours) {
    place = kBold + place + kPlain;
    word = (is_error ? kRed : kMagenta) + word + kPlain;
  }
  return place + word + problem.text + "\n";
}

std::string Quoted(std::string_view bytes) {
  std::string text = "\"";
  for (const char c : bytes) {
    if (c >= ' ' && c <= '~') {
      text += c;
    } else {
      text += Escaped(c);
    }
  }
  return text + "\"";
}

}  // namespace tools
