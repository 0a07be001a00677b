// What docs/tone-programs.md tells of mistakes and of notes is so.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "tests/program_files/tone_files.h"
#include "tools/diagnosis.h"

namespace tools {
namespace {

using program_files::FileOf;
using program_files::Lines;
using program_files::ProgramWith;

// The cells of the rows of a table, by the beginning of its heading.
std::vector<Lines> TableOf(const std::string& heading) {
  std::ifstream document(std::string(TONMIRA_DOCUMENTS) + "/tone-programs.md");
  std::vector<Lines> rows;
  bool here = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with(heading)) here = true;
    if (!line.starts_with("| ")) {
      here = here && line.starts_with("|--");
      continue;
    }
    if (!here || line.starts_with(heading)) continue;
    Lines cells;
    std::istringstream rest(line.substr(2));
    for (std::string cell; std::getline(rest, cell, '|');) {
      const std::size_t begin = cell.find_first_not_of(' ');
      cells.push_back(cell.substr(begin, cell.find_last_not_of(' ') - begin + 1));
    }
    rows.push_back(cells);
  }
  return rows;
}

struct Mistake {
  std::function<void(Lines&)> make;
  std::size_t messages;
};

// In the order of the table.
std::vector<Mistake> Mistakes() {
  const auto put = [](std::size_t line, const char* text) {
    return [=](Lines& lines) { lines[line - 1] = text; };
  };
  const auto insert = [](const char* text) {
    return [=](Lines& lines) { lines.insert(lines.begin() + 9, text); };
  };
  const auto erase = [](std::ptrdiff_t line) {
    return [=](Lines& lines) { lines.erase(lines.begin() + line - 1); };
  };
  return {{erase(9), 3},
          {put(9, "500"), 1},
          {put(9, "/500"), 2},
          {put(8, "440"), 2},
          {put(8, " <440>"), 2},
          {insert(""), 1},
          {insert("; chorus"), 1},
          {put(8, "<0>"), 1},
          {put(8, "<2>"), 0},
          {put(8, "<A4>"), 1},
          {put(8, "<0,5>"), 1},
          {put(7, "{0}"), 1},
          {put(2, "[Info]"), 1},
          {put(2, "[info] "), 1},
          {erase(4), 4},
          {[](Lines& lines) {
             std::string all;
             for (const std::string& line : lines) all += line + "\n";
             lines = {all};
           },
           5},
          {put(1, "\xEF\xBB\xBF%valid%"), 1},
          {[](Lines& lines) { lines.emplace_back("<660>"); }, 0}};
}

// The text in the first pair of backticks.
std::string Code(const std::string& cell) {
  const std::size_t begin = cell.find('`') + 1;
  return cell.substr(begin, cell.rfind('`') - begin);
}

TEST(ToneProgramsDocument, TheUsualMistakesAreToldAsItSays) {
  const std::vector<Lines> rows = TableOf("| What is written |");
  const std::vector<Mistake> mistakes = Mistakes();
  ASSERT_EQ(rows.size(), mistakes.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    SCOPED_TRACE(rows[i][0]);
    Lines lines = ProgramWith({{440, 500}, {880, 250}, {660, 250}});
    mistakes[i].make(lines);
    const auto read = program_files::ReadToneProgram(FileOf(lines));
    EXPECT_EQ(read.findings.size(), mistakes[i].messages);
    const std::string count = std::to_string(mistakes[i].messages);
    EXPECT_NE(rows[i][1].find(mistakes[i].messages == 0 ? "nothing" : count), std::string::npos);
    const auto problems = Diagnose(read);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].severity == Severity::kWarning, mistakes[i].messages == 0);
    EXPECT_NE(problems[0].text.find(Code(rows[i][2])), std::string::npos) << problems[0].text;
  }
}

// ISO 16: A of octave 4 is 440 Hz; twelve equal steps to an octave.
TEST(ToneProgramsDocument, ThePitchesAreThoseOfTheNotes) {
  const std::vector<Lines> rows = TableOf("| Octave |");
  ASSERT_EQ(rows.size(), 10u);
  for (std::size_t octave = 0; octave < rows.size(); ++octave) {
    ASSERT_EQ(rows[octave].size(), 13u);
    for (std::size_t semitone = 0; semitone < 12; ++semitone) {
      const double steps = static_cast<double>(12 * octave + semitone) - 57;
      EXPECT_EQ(std::stol(rows[octave][semitone + 1]), std::lround(440 * std::pow(2, steps / 12)));
    }
  }
}

TEST(ToneProgramsDocument, TheLengthsAreThoseOfTheTempo) {
  const std::vector<Lines> rows = TableOf("| Beats a minute |");
  ASSERT_EQ(rows.size(), 12u);
  for (const Lines& row : rows) {
    ASSERT_EQ(row.size(), 7u);
    const double quarter_ms = 60000 / std::stod(row[0]);
    const std::vector<double> quarters{4, 2, 1.5, 1, 0.5, 0.25};
    for (std::size_t i = 0; i < quarters.size(); ++i) {
      EXPECT_NEAR(std::stod(row[i + 1]), quarters[i] * quarter_ms, 0.5);
    }
  }
}

}  // namespace
}  // namespace tools
