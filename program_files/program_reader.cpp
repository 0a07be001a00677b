#include "program_files/program_reader.h"

#include <iterator>
#include <optional>
#include <utility>

#include "base/errors.h"

namespace program_files {
namespace {

// One more than the line count can tell.
constexpr std::int32_t kUncountable = 32774;

Finding TooMuch(std::int32_t line, Expected expected, std::string_view found) {
  return {line, 1, expected, std::string(found.substr(0, kLongestFound)), Report::kIllegalFile};
}

void MoveInto(std::vector<Finding>& all, std::vector<Finding> more) {
  if (all.empty()) {
    all = std::move(more);
    return;
  }
  std::move(more.begin(), more.end(), std::back_inserter(all));
}

}  // namespace

FirstPass::Step FirstPass::ReadLine() {
  std::optional<std::string> line;
  try {
    line = reader_.Next();
  } catch (const base::RuntimeError& error) {
    if (error.code() != base::ErrorCode::kOutOfMemory) throw;
    return {Progress::kGivenUp, {TooMuch(lines_read_ + 1, Expected::kLessText, "")}};
  }
  return line ? TakeLine(*std::move(line)) : Step{Progress::kDone, {}};
}

FirstPass::Step FirstPass::TakeLine(std::string&& line) {
  // The table is full.
  if (lines_read_ == kLastIndex) return {Progress::kGivenUp, {}};
  ++lines_read_;
  Step step{Progress::kGoesOn, {}};
  if (lines_read_ > kMostLines) {
    step.findings.push_back(TooMuch(lines_read_, Expected::kFewerLines, line));
  }
  lines_[lines_read_] = decode_ ? decode_(std::move(line)) : std::move(line);
  return step;
}

std::int32_t SecondPass(base::ByteSource& file) {
  return CountLines(file, kUncountable);
}

ReadProgram ReadToneProgram(base::ByteSource& bytes) {
  ReadProgram result;
  ParseState state;
  FirstPass first(bytes, state.lines);
  auto progress = FirstPass::Progress::kGoesOn;
  while (progress == FirstPass::Progress::kGoesOn) {
    FirstPass::Step step = first.ReadLine();
    progress = step.progress;
    MoveInto(result.findings, std::move(step.findings));
  }
  result.lines = first.LinesRead();
  result.given_up = progress == FirstPass::Progress::kGivenUp;
  // A second pass over the same bytes would find the same lines.
  if (!result.given_up) {
    MoveInto(result.findings, CheckProgram(state, result.program, result.lines));
    if (state.position == result.lines) result.ignored_line = state.lines[state.position];
  }
  return result;
}

ReadProgram ReadToneProgram(std::string_view bytes) {
  base::BytesInMemory source(bytes);
  return ReadToneProgram(source);
}

}  // namespace program_files
