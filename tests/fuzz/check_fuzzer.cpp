// Any bytes as a tone program, as tnf check and tnf info tell of them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "program_files/program_reader.h"
#include "program_files/tone_renderer.h"
#include "tests/fuzz/require.h"
#include "tools/diagnosis.h"
#include "tools/information.h"
#include "tools/sounding.h"

namespace tools {
namespace {

using fuzz::Require;
using program_files::Finding;

std::vector<Problem> ErrorsIn(std::vector<Problem> problems) {
  std::erase_if(problems, [](const Problem& p) { return p.severity == Severity::kWarning; });
  return problems;
}

// One line that any terminal shows.
void CheckShown(const Problem& problem) {
  const std::string shown = Formatted("f", problem, false);
  Require(shown.ends_with('\n'), "a problem ends its line");
  Require(std::all_of(shown.begin(), shown.end() - 1, [](char c) { return c >= ' ' && c <= '~'; }),
          "a problem is plain text in one line");
}

void CheckErrors(const std::vector<Problem>& errors, const std::vector<Finding>& findings) {
  Require(errors.empty() == findings.empty(),
          "an error where the player finds one, and only there");
  Require(errors.size() <= findings.size(), "no more errors than findings");
  for (const Problem& error : errors) {
    Require(std::any_of(findings.begin(), findings.end(),
                        [&](const Finding& finding) {
                          return finding.line == error.line && finding.column == error.column;
                        }),
            "an error is where a check failed");
  }
  // What the player met first in the file's order is always told.
  const auto first =
      std::min_element(findings.begin(), findings.end(),
                       [](const Finding& a, const Finding& b) { return a.line < b.line; });
  Require(errors.empty() || errors.front().line == first->line, "the first one is told");
}

void CheckFile(std::string_view bytes) {
  const program_files::ReadProgram read = program_files::ReadToneProgram(bytes);
  const std::vector<Problem> problems = Diagnose(read);
  CheckErrors(ErrorsIn(problems), read.findings);
  std::int32_t last_line = 1;
  for (const Problem& problem : problems) {
    Require(problem.line >= last_line && problem.column >= 1, "problems are in order");
    last_line = problem.line;
    CheckShown(problem);
  }
  Require(PlayersMessages("f", read.findings).empty() == read.findings.empty(),
          "the player speaks of a bad file alone");
  const Sounding sounding = SoundingOf(read.program);
  Require(sounding.length_ms == program_files::ToneRenderer(read.program).LengthMs(),
          "the length is what is rendered");
  Require(sounding.played_ms <= sounding.length_ms, "no more is played than there is");
  Require(sounding.rests <= sounding.tones && sounding.lowest_hz <= sounding.highest_hz,
          "rests are tones, and the lowest is not above the highest");
  Require(!InformationOn("f", read.program).empty(), "something is told");
}

}  // namespace
}  // namespace tools

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  tools::CheckFile(bytes);
  return 0;
}
