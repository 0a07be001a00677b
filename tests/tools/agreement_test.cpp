// tnf check and the player agree on every file: what is legal, and what the player says of the
// rest.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>

#include "tests/program_files/player_fixture.h"
#include "tests/tools/fake_surroundings.h"

namespace tools {
namespace {

using program_files::kFile;
using program_files::kIllegal;
using program_files::kIncompatible;
using program_files::Lines;

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

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

TEST_F(CheckAgreementTest, OnTheFilesOfTheFuzzingCorpusAndTheSamples) {
  for (const char* folder : {TONMIRA_TONE_PROGRAMS, TONMIRA_SAMPLES}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      SCOPED_TRACE(entry.path().filename().string());
      ExpectAgreement(ContentOf(entry.path()));
    }
  }
  EXPECT_GE(files, 47);
}

// Two short tones, of which up to five lines are missing, doubled, or other ones.
std::string GeneratedFile(std::mt19937& random) {
  static const Lines others{"",      "%valid%",   "[info]",      "{237}",   "{invisible}",
                            "{0}",   "<440>",     "<1>",         "<1.5>",   "\\500",
                            "\\0",   "500",       "x",           "[sound]", "<32001>",
                            "\\1e9", "{visible}", "; a comment", " <440>",  "{50"};
  static const Lines ends{"\r\n", "\r", "\n", "\r\n\r\n", ""};
  const auto one_of = [&](const Lines& texts) { return texts[random() % texts.size()]; };
  Lines lines = program_files::ProgramWith({{440, 10}, {880, 20}});
  for (auto changes = random() % 6; changes > 0 && !lines.empty(); --changes) {
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
    bytes += line + (random() % 40 == 0 ? one_of(ends) : "\r\n");
  return bytes;
}

TEST_F(CheckAgreementTest, OnTenThousandGeneratedFiles) {
  std::mt19937 random(20260214);
  for (int n = 0; n < 10000 && !HasFailure(); ++n) {
    const std::string bytes = GeneratedFile(random);
    SCOPED_TRACE(testing::PrintToString(bytes));
    ExpectAgreement(bytes);
  }
  EXPECT_EQ(files, 10000);
  EXPECT_GT(legal, 1000);
  EXPECT_LT(legal, 9000);
}

}  // namespace
}  // namespace tools
