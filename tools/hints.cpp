#include "tools/hints.h"

#include <string_view>

#include "base/text.h"
#include "tools/problem.h"

namespace tools {
namespace {

using program_files::Expected;
using program_files::Finding;

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

bool IsFigure(char c) {
  return c >= '0' && c <= '9';
}

bool HasDecimalComma(std::string_view text) {
  const std::size_t comma = text.find(',');
  return comma != std::string_view::npos && comma > 0 && comma + 1 < text.size() &&
         IsFigure(text[comma - 1]) && IsFigure(text[comma + 1]);
}

// Behind markers and blanks.
bool BeginsNumber(std::string_view text) {
  const std::size_t begin = text.find_first_not_of("<>{}\\ \t");
  return begin != std::string_view::npos &&
         std::string_view("+-.0123456789").find(text[begin]) != std::string_view::npos;
}

const char* HintForWord(std::string_view found, std::string_view word) {
  const std::string trimmed(WithoutBlanks(found));
  if (trimmed == word) return "there is a blank too many";
  if (base::ToLower(trimmed) == word) return "small letters only";
  return "";
}

const char* HintForFirstLine(std::string_view found) {
  if (found.starts_with("\xEF\xBB\xBF")) {
    return "the file begins with the mark of UTF-8; save it as ANSI";
  }
  if (found.starts_with("\xFF\xFE") || found.starts_with("\xFE\xFF")) {
    return "the file is UTF-16; save it as ANSI";
  }
  return HintForWord(base::RemoveAll(found, '%'), "valid");
}

const char* HintForNumber(std::string_view found, Expected expected) {
  if (HasDecimalComma(found)) return "the decimal sign is a point";
  if (!BeginsNumber(found)) return "there is no number";
  if (found.find('-') != std::string_view::npos) return "";
  if (expected == Expected::kPitch) return "a rest is <22050>";
  if (expected == Expected::kExtraTime) return "the least is {1}";
  return "";
}

const char* HintForPitchMark(std::string_view found) {
  if (found.empty()) return "no line may be empty between the entries";
  const std::string_view text = WithoutBlanks(found);
  if (text.empty()) return "a line of blanks";
  if (text.starts_with('\\')) return "this duration has no pitch before it";
  if (text.starts_with('<')) return "there is a blank before the \"<\"";
  if (IsFigure(text.front())) return "the \"<\" is missing";
  if (text.front() == '#' || text.front() == ';' || text.front() == '/') {
    return "there are no comments";
  }
  return "";
}

const char* HintForDurationMark(std::string_view found) {
  const std::string_view text = WithoutBlanks(found);
  if (text.empty()) return "the duration is missing";
  if (text.starts_with('\\')) return "there is a blank before the \"\\\"";
  if (text.starts_with('/')) return "a \"/\" is no \"\\\"";
  if (IsFigure(text.front())) return "the \"\\\" is missing";
  return "";
}

const char* HintFor(const Finding& finding) {
  switch (finding.expected) {
    case Expected::kValid:
      return HintForFirstLine(finding.found);
    case Expected::kInfo:
      return HintForWord(finding.found, "[info]");
    case Expected::kSound:
      return HintForWord(finding.found, "[sound]");
    case Expected::kExtraTime:
    case Expected::kPitch:
    case Expected::kDuration:
      return HintForNumber(finding.found, finding.expected);
    case Expected::kPitchMark:
      return HintForPitchMark(finding.found);
    case Expected::kDurationMark:
      return HintForDurationMark(finding.found);
    case Expected::kVersion:
    case Expected::kVisibility:
    case Expected::kFewerLines:
    case Expected::kLessText:
      return "";
  }
  return "";
}

}  // namespace

std::string WhatFailed(const Finding& finding) {
  std::string text = std::string("expected ") + program_files::Description(finding.expected);
  const bool of_a_line =
      finding.expected != Expected::kFewerLines && finding.expected != Expected::kLessText;
  if (of_a_line) text += ", found " + Quoted(finding.found);
  const std::string hint = HintFor(finding);
  return hint.empty() ? text : text + ": " + hint;
}

}  // namespace tools
