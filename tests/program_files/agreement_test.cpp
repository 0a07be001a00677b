// The one call and the player agree on every file: its messages, its tones, whether it is played.
#include <filesystem>
#include <random>

#include "program_files/program_reader.h"
#include "tests/program_files/bytes_file.h"
#include "tests/program_files/made_files.h"
#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

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
      ExpectAgreement(ContentOf(entry.path()));
      ExpectStepsToAgree(ContentOf(entry.path()));
      ++files;
    }
  }
  EXPECT_GE(files, 47);
}

TEST_F(AgreementTest, OnGeneratedFiles) {
  std::mt19937 random(20240229);
  int legal = 0;
  for (int n = 0; n < 300; ++n) {
    const std::string bytes = ChangedFile(random, {{440, 10}, {880, 20}, {220, 30}}, 3);
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
