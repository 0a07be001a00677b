// The one call and the player agree on every file: its messages, its tones, whether it is played.
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "program_files/program_reader.h"
#include "tests/program_files/bytes_file.h"
#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

class AgreementTest : public PlayerTest {
 protected:
  // What the player shows and plays of the file, beside what the one call makes of it.
  void ExpectAgreement(const std::string& bytes) {
    const ReadProgram read = ReadToneProgram(bytes);
    sim.journal.Clear();
    Open(bytes, "32");
    EXPECT_EQ(Messages(), MessagesFor(read.findings));
    EXPECT_EQ(PitchesShown(), read.given_up ? Lines{} : PitchesOf(read.program));
    if (read.given_up) return;
    EXPECT_EQ(player().Tones().tones, read.program.tones);
    EXPECT_EQ(player().Tones().extra_time_ms, read.program.extra_time_ms);
    EXPECT_EQ(player().Tones().hidden_flag, read.program.hidden_flag);
  }

  // The steps, with a second pass over the file, in small pieces.
  static void ExpectStepsToAgree(const std::string& bytes) {
    ParseState state;
    BytesFile file(bytes, 7);
    FirstPass pass(file, state.lines, [](std::string line) { return line; });
    std::vector<Finding> findings;
    FirstPass::Step step{FirstPass::Progress::kGoesOn, {}};
    while (step.progress == FirstPass::Progress::kGoesOn) {
      step = pass.ReadLine();
      findings.insert(findings.end(), step.findings.begin(), step.findings.end());
    }
    ToneProgram program;
    const bool given_up = step.progress == FirstPass::Progress::kGivenUp;
    if (!given_up) {
      BytesFile again(bytes, 5);
      const auto checked = CheckProgram(state, program, SecondPass(again));
      findings.insert(findings.end(), checked.begin(), checked.end());
    }
    const ReadProgram read = ReadToneProgram(bytes);
    EXPECT_EQ(read.findings, findings);
    EXPECT_EQ(read.given_up, given_up);
    EXPECT_EQ(read.program.tones, program.tones);
    EXPECT_EQ(read.program.extra_time_ms, program.extra_time_ms);
    EXPECT_EQ(read.program.hidden_flag, program.hidden_flag);
    EXPECT_EQ(read.program.name, program.name);
  }

 private:
  static Lines MessagesFor(const std::vector<Finding>& findings) {
    Lines messages;
    for (const Finding& finding : findings) {
      messages.push_back(finding.report == Report::kVersion ? kIncompatible : kIllegal);
    }
    return messages;
  }

  static Lines PitchesOf(const ToneProgram& program) {
    Lines pitches;
    for (const Tone& tone : program.tones) {
      // A label's caption that does not change is not told again.
      const std::string pitch = std::to_string(tone.pitch_hz);
      if (pitches.empty() || pitches.back() != pitch) pitches.push_back(pitch);
    }
    return pitches.empty() ? Lines{"0"} : pitches;
  }
};

TEST_F(AgreementTest, OnTheFilesOfTheFuzzingCorpusAndTheSamples) {
  int files = 0;
  for (const char* folder : {TONMIRA_TONE_PROGRAMS, TONMIRA_SAMPLES}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      SCOPED_TRACE(entry.path().filename().string());
      ExpectAgreement(Content(entry.path()));
      ExpectStepsToAgree(Content(entry.path()));
      ++files;
    }
  }
  EXPECT_GE(files, 47);
}

// Lines of a legal program, any of which may be missing, doubled or another one.
TEST_F(AgreementTest, OnGeneratedFiles) {
  const Lines others{"",      "%valid%", "[info]", "{237}", "{invisible}", "{VISIBLE}", "{0}",
                     "<440>", "<1>",     "<1.5>",  "\\500", "\\0",         "500",       "x"};
  const Lines ends{"\r\n", "\r", "\n", "\r\n\r\n", ""};
  std::mt19937 random(20240229);
  const auto one_of = [&](const Lines& texts) { return texts[random() % texts.size()]; };
  int legal = 0;
  for (int n = 0; n < 300; ++n) {
    Lines lines = ProgramWith({{440, 10}, {880, 20}, {220, 30}});
    for (unsigned changes = random() % 4; changes > 0; --changes) {
      const auto at = lines.begin() + static_cast<std::ptrdiff_t>(random() % lines.size());
      if (random() % 3 == 0) {
        lines.erase(at);
      } else if (random() % 2 == 0) {
        lines.insert(at, one_of(others));
      } else {
        *at = one_of(others);
      }
    }
    std::string bytes;
    for (const std::string& line : lines)
      bytes += line + (random() % 50 == 0 ? one_of(ends) : "\r\n");
    SCOPED_TRACE(testing::PrintToString(bytes));
    ExpectAgreement(bytes);
    ExpectStepsToAgree(bytes);
    legal += ReadToneProgram(bytes).findings.empty() ? 1 : 0;
  }
  EXPECT_GT(legal, 30);
  EXPECT_LT(legal, 270);
}

}  // namespace
}  // namespace program_files
