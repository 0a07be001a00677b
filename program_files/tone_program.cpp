#include "program_files/tone_program.h"

#include <utility>

#include "base/numbers.h"
#include "base/text.h"

namespace program_files {
namespace {

constexpr std::int32_t kHeadLines = 6;
constexpr std::int16_t kFirstEntry = 8;
constexpr double kLatestVersion = 236;
constexpr double kLargestValue = 32000;

}  // namespace

std::vector<Report> ProgramChecks::CheckHead() {
  program_.position = 1;
  Clean("%");
  Expect(Line() == "valid");
  program_.position = 2;
  Expect(Line() == "[info]");
  program_.position = 3;
  Clean("{}");
  Expect(base::LeadingNumberOrInfinity(Line()) <= kLatestVersion, Report::kVersion);
  program_.position = 5;
  Clean("{}");
  const std::string visibility = base::ToLower(Line());
  Expect(visibility == "visible" || visibility == "invisible");
  program_.hidden_flag = visibility == "invisible" ? 1 : 0;
  program_.position = 6;
  Expect(Line() == "[sound]");
  program_.position = 7;
  Clean("{}");
  Store(0, program_.extra_time_ms);
  return std::exchange(reports_, {});
}

void ProgramChecks::BeginEntries(std::int32_t lines_in_file) {
  program_.line_count = base::ToInt16(lines_in_file - kHeadLines);
  lines_in_file_ = lines_in_file;
  program_.position = kFirstEntry;
  program_.entry_index = 1;
}

std::vector<Report> ProgramChecks::CheckEntry() {
  if (Line().starts_with('<')) {
    Clean("<>");
    Store(1, program_.pitch_hz[program_.entry_index]);
    ++program_.position;
    Expect(Line().starts_with('\\'));
    Clean("\\");
    Store(0, program_.duration_ms[program_.entry_index]);
    ++program_.entry_index;
    ++program_.tone_count;
  } else {
    Expect(false);
  }
  ++program_.position;
  return std::exchange(reports_, {});
}

std::string ProgramChecks::WithoutMarker(std::int16_t position, char marker) const {
  return base::RemoveAll(program_.lines[position], marker);
}

void ProgramChecks::Clean(std::string_view markers) {
  for (const char marker : markers) {
    program_.lines[program_.position] = WithoutMarker(program_.position, marker);
  }
}

void ProgramChecks::Expect(bool passes, Report report) {
  if (!passes) reports_.push_back(report);
}

// Too large and too small are two checks, of which at most one fails.
void ProgramChecks::Store(double above, std::int16_t& value) {
  const double number = base::LeadingNumberOrInfinity(Line());
  const bool passes = number > above && number <= kLargestValue;
  Expect(passes);
  if (passes) value = base::ToInt16(number);
}

std::vector<Report> CheckProgram(ToneProgram& program, std::int32_t lines_in_file) {
  ProgramChecks checks(program);
  std::vector<Report> reports = checks.CheckHead();
  checks.BeginEntries(lines_in_file);
  while (checks.HasEntry()) {
    const std::vector<Report> more = checks.CheckEntry();
    reports.insert(reports.end(), more.begin(), more.end());
  }
  return reports;
}

}  // namespace program_files
