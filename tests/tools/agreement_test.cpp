// tnf check and the player agree on every file: what is legal, and what the player says of the
// rest.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <random>
#include <string>

#include "tests/program_files/made_files.h"
#include "tests/program_files/player_fixture.h"
#include "tests/tools/fake_surroundings.h"

namespace tools {
namespace {

using program_files::kFile;
using program_files::kIllegal;
using program_files::kIncompatible;

class CheckAgreementTest : public program_files::PlayerTest {
 protected:
  // The player's messages and the exit code, beside what tnf says of the same bytes.
  void ExpectAgreement(const std::string& bytes) {
    sim.journal.Clear();
    Open(bytes, "32");
    std::map<std::string, int> shown;
    for (const std::string& message : Messages()) ++shown[message];
    around.files["a.tnf"] = bytes;
    const int code = around.Run({"check", "a.tnf"});
    EXPECT_EQ(code, shown.empty() ? 0 : 1);
    EXPECT_EQ(around.output.find(": error: ") != std::string::npos, !shown.empty());
    const std::string told =
        shown.empty() ? ""
                      : "a.tnf: the player would say:\n" +
                            Told(shown[kIllegal], "a.tnf is not a legal tnf file!") +
                            Told(shown[kIncompatible],
                                 "Your Tonmira version is not compatible with this file!");
    EXPECT_TRUE(around.output.ends_with(told)) << around.output << "\nexpected: " << told;
    legal += shown.empty() ? 1 : 0;
    ++files;
  }

  int legal = 0;
  int files = 0;

 private:
  static std::string Told(int times, const std::string& text) {
    if (times == 0) return "";
    return "  " + text + (times > 1 ? " (" + std::to_string(times) + " times)" : "") + "\n";
  }

  FakeSurroundings around;
};

TEST_F(CheckAgreementTest, OnTheFilesOfTheFuzzingCorpusAndTheSamples) {
  for (const char* folder : {TONMIRA_TONE_PROGRAMS, TONMIRA_SAMPLES}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      SCOPED_TRACE(entry.path().filename().string());
      ExpectAgreement(program_files::ContentOf(entry.path()));
    }
  }
  EXPECT_GE(files, 47);
}

TEST_F(CheckAgreementTest, OnTenThousandGeneratedFiles) {
  std::mt19937 random(20260214);
  for (int n = 0; n < 10000 && !HasFailure(); ++n) {
    const std::string bytes = program_files::ChangedFile(random, {{440, 10}, {880, 20}}, 5);
    SCOPED_TRACE(testing::PrintToString(bytes));
    ExpectAgreement(bytes);
  }
  EXPECT_EQ(files, 10000);
  EXPECT_GT(legal, 1000);
  EXPECT_LT(legal, 9000);
}

}  // namespace
}  // namespace tools
