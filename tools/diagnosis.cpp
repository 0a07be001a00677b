#include "tools/diagnosis.h"

#include <algorithm>
#include <optional>
#include <span>

#include "tools/hints.h"
#include "tools/warnings.h"

namespace tools {
namespace {

using program_files::Expected;
using program_files::Finding;

constexpr std::int32_t kHeadLines = 7;
constexpr std::int32_t kSoundLine = 6;

class Errors {
 public:
  Errors(std::span<const Finding> findings, std::int32_t lines)
      : findings_(findings), lines_(lines), shift_(ShiftOfHead()) {}

  std::vector<Problem> Tell() {
    for (; at_ < findings_.size(); ++at_) {
      const Finding& finding = findings_[at_];
      if (!Follows(finding)) Add(finding, TextFor(finding));
    }
    return std::move(errors_);
  }

 private:
  // Whether the finding is of a mistake that was told already.
  bool Follows(const Finding& finding) const {
    if (finding.expected == Expected::kFewerLines || !last_) return false;
    if (finding.line == last_->line) return true;
    // The head is told once: behind the end of the file, and when its lines are not in their
    // places.
    if (last_->line > lines_) return true;
    if (last_->found.find('\n') != std::string::npos) return finding.line > lines_;
    if (shift_ != 0 && last_->line <= kHeadLines) return finding.line <= kHeadLines + 1;
    return FollowsInEntry(finding);
  }

  // The line behind a wrong one is the other half of its entry.
  bool FollowsInEntry(const Finding& finding) const {
    if (finding.expected != Expected::kPitchMark || finding.line != last_->line + 1) return false;
    const bool is_duration = finding.found.starts_with('\\');
    if (last_->expected == Expected::kDurationMark) {
      return is_duration && last_->found.starts_with('<');
    }
    return is_duration && last_->expected == Expected::kPitchMark &&
           !last_->found.starts_with('\\') && !last_->found.empty();
  }

  std::string TextFor(const Finding& finding) const {
    if (lines_ == 0) return "the file is empty";
    if (finding.line > lines_) {
      return std::string("the file ends before ") + Description(finding.expected);
    }
    if (finding.line == 1 && finding.found.find('\n') != std::string::npos) {
      return "a line ends with LF alone; it must end with CR LF or CR";
    }
    if (finding.expected == Expected::kDurationMark && finding.found.starts_with('<')) {
      return "the duration of the pitch in line " + std::to_string(finding.line - 1) +
             " is missing: " + WhatFailed(finding);
    }
    if (shift_ != 0 && finding.line <= kHeadLines) {
      return WhatFailed(finding) + "; the head has a line too " + (shift_ < 0 ? "few" : "many") +
             ": [sound] stands in line " + std::to_string(kSoundLine + shift_) + ", not 6";
    }
    return WhatFailed(finding);
  }

  void Add(const Finding& finding, std::string text) {
    errors_.push_back({Severity::kError, finding.line, finding.column, std::move(text)});
    if (finding.expected != Expected::kFewerLines) last_ = finding;
  }

  // By how many lines the end of the head lies below its place, where a check met it.
  int ShiftOfHead() const {
    for (const Finding& finding : findings_) {
      if (finding.found != "[sound]") continue;
      if (finding.expected == Expected::kVisibility) return -1;
      if (finding.expected == Expected::kExtraTime) return 1;
    }
    return 0;
  }

  std::span<const Finding> findings_;
  std::int32_t lines_;
  int shift_;
  std::size_t at_ = 0;
  std::optional<Finding> last_;  // that was told
  std::vector<Problem> errors_;
};

std::size_t CountOf(const std::vector<Finding>& findings, program_files::Report report) {
  return static_cast<std::size_t>(
      std::count_if(findings.begin(), findings.end(),
                    [report](const Finding& finding) { return finding.report == report; }));
}

std::string Message(std::size_t times, const std::string& text) {
  if (times == 0) return "";
  const std::string count = times == 1 ? "" : " (" + std::to_string(times) + " times)";
  return "  " + text + count + "\n";
}

}  // namespace

std::vector<Problem> Diagnose(const program_files::ReadProgram& read) {
  std::vector<Problem> problems = Errors(read.findings, read.lines).Tell();
  const std::vector<Problem> warnings = WarningsOf(read);
  problems.insert(problems.end(), warnings.begin(), warnings.end());
  std::stable_sort(problems.begin(), problems.end(),
                   [](const Problem& a, const Problem& b) { return a.line < b.line; });
  return problems;
}

std::string PlayersMessages(std::string_view file, const std::vector<Finding>& findings) {
  using program_files::Report;
  return Message(CountOf(findings, Report::kIllegalFile),
                 std::string(file) + " is not a legal tnf file!") +
         Message(CountOf(findings, Report::kVersion),
                 "Your Tonmira version is not compatible with this file!");
}

}  // namespace tools
