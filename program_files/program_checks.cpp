#include "program_files/program_checks.h"

#include <algorithm>
#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace program_files {
namespace {

constexpr std::int32_t kHeadLines = 6;
constexpr std::int16_t kFirstEntry = 8;

bool IsOneOf(std::string_view characters, char c) {
  return characters.find(c) != std::string_view::npos;
}

// The column at which `line`, its markers left out, is no longer the beginning of `text`.
std::size_t ColumnOfDifference(std::string_view line, std::string_view markers,
                               std::string_view text) {
  std::size_t same = 0;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (IsOneOf(markers, line[at])) continue;
    if (same == text.size() || line[at] != text[same]) return at + 1;
    ++same;
  }
  return line.size() + 1;
}

// The column of what stands behind markers and blanks; 1 where nothing does.
std::size_t ColumnOfValue(std::string_view line, std::string_view markers) {
  const auto value = std::find_if(line.begin(), line.end(), [&](char c) {
    return !IsOneOf(markers, c) && c != ' ' && c != '\t';
  });
  return value == line.end() ? 1 : static_cast<std::size_t>(value - line.begin()) + 1;
}

}  // namespace

std::span<const Finding> ProgramChecks::CheckHead() {
  const std::size_t before = findings_.size();
  state_.position = 1;
  ExpectText("valid", "%", Expected::kValid);
  state_.position = 2;
  ExpectText("[info]", "", Expected::kInfo);
  state_.position = 3;
  const std::string version = Clean("{}");
  if (base::LeadingNumberOrInfinity(Line()) > kLatestVersion) {
    Fail(Expected::kVersion, version, ColumnOfValue(version, "{}"));
  }
  state_.position = 4;
  program_.name = Line();
  state_.position = 5;
  CheckVisibility();
  state_.position = 6;
  ExpectText("[sound]", "", Expected::kSound);
  state_.position = 7;
  Store(0, "{}", Expected::kExtraTime, program_.extra_time_ms);
  return std::span(findings_).subspan(before);
}

void ProgramChecks::CheckVisibility() {
  const std::string line = Clean("{}");
  const std::string visibility = base::ToLower(Line());
  program_.hidden_flag = visibility == "invisible" ? 1 : 0;
  if (visibility == "visible" || visibility == "invisible") return;
  const std::string lower = base::ToLower(line);
  Fail(Expected::kVisibility, line,
       std::max(ColumnOfDifference(lower, "{}", "visible"),
                ColumnOfDifference(lower, "{}", "invisible")));
}

void ProgramChecks::BeginEntries(std::int32_t lines_in_file) {
  state_.line_count = base::ToInt16(lines_in_file - kHeadLines);
  lines_in_file_ = lines_in_file;
  state_.position = kFirstEntry;
  state_.entry_index = 1;
}

std::span<const Finding> ProgramChecks::CheckEntry() {
  const std::size_t before = findings_.size();
  if (Line().starts_with('<')) {
    CheckEntryLines();
  } else {
    Fail(Expected::kPitchMark, Line(), 1);
  }
  ++state_.position;
  return std::span(findings_).subspan(before);
}

void ProgramChecks::CheckEntryLines() {
  program_.unfinished.line = state_.position;
  Store(1, "<>", Expected::kPitch, program_.unfinished.pitch_hz);
  ++state_.position;
  ExpectStart('\\', Expected::kDurationMark);
  Tone tone = program_.unfinished;
  Store(0, "\\", Expected::kDuration, tone.duration_ms);
  program_.tones.push_back(tone);
  program_.unfinished = {};
  ++state_.entry_index;
}

std::string ProgramChecks::Clean(std::string_view markers) {
  std::string before = Line();
  if (before.find_first_of(markers) != std::string::npos) {
    std::erase_if(state_.lines[state_.position], [&](char c) { return IsOneOf(markers, c); });
  }
  return before;
}

void ProgramChecks::ExpectText(std::string_view text, std::string_view markers, Expected expected) {
  const std::string line = Clean(markers);
  if (Line() != text) Fail(expected, line, ColumnOfDifference(line, markers, text));
}

void ProgramChecks::ExpectStart(char mark, Expected expected) {
  if (!Line().starts_with(mark)) Fail(expected, Line(), 1);
}

// Too large and too small are two checks, of which at most one fails.
void ProgramChecks::Store(double above, std::string_view markers, Expected expected,
                          std::int16_t& value) {
  const std::string line = Clean(markers);
  const double number = base::LeadingNumberOrInfinity(Line());
  if (number > above && number <= kLargestValue) {
    value = base::ToInt16(number);
  } else {
    Fail(expected, line, ColumnOfValue(line, markers));
  }
}

void ProgramChecks::Fail(Expected expected, std::string_view found, std::size_t column) {
  findings_.push_back({state_.position, static_cast<std::int32_t>(column), expected,
                       std::string(found.substr(0, kLongestFound)),
                       expected == Expected::kVersion ? Report::kVersion : Report::kIllegalFile});
}

const std::string& ProgramChecks::Line() const {
  return std::as_const(state_.lines)[state_.position];
}

std::vector<Finding> CheckProgram(ParseState& state, ToneProgram& program,
                                  std::int32_t lines_in_file) {
  ProgramChecks checks(state, program);
  checks.CheckHead();
  checks.BeginEntries(lines_in_file);
  while (checks.HasEntry()) checks.CheckEntry();
  return checks.TakeFindings();
}

}  // namespace program_files
