// The tone programs that ship with the program, as the parser reads them.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "program_files/program_reader.h"
#include "tests/program_files/programs.h"

namespace program_files {
namespace {

constexpr int kExtraTimeMs = 10;
constexpr int kRestHz = 22050;

using PitchAndTime = Tones::value_type;

struct Sample {
  std::string file;
  int lines;
  int tones;
  PitchAndTime first;
  PitchAndTime last;
  int length_ms;  // of the whole, extra times included
};

const std::array kSamples{
    Sample{"auld-lang-syne.tnf", 141, 67, {523, 470}, {698, 1430}, 30720},
    Sample{"glissando.tnf", 153, 73, {262, 490}, {262, 490}, 5970},
    Sample{"hearing-sweep.tnf", 65, 29, {1000, 990}, {1000, 990}, 22000},
    Sample{"ode-to-joy.tnf", 159, 76, {659, 380}, {523, 890}, 28800},
    Sample{"scale.tnf", 37, 15, {523, 390}, {523, 790}, 6800},
    Sample{"siren.tnf", 39, 16, {440, 690}, {587, 690}, 11200},
    Sample{"telephone.tnf", 113, 53, {1000, 40}, {1250, 40}, 7000},
    Sample{"westminster-chimes.tnf", 57, 25, {659, 590}, {330, 1190}, 19200},
};

std::string Bytes(const std::string& name) {
  std::ifstream file(std::string(TONMIRA_SAMPLES) + "/" + name, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

// The indented lines under a heading of docs/tone-programs.md.
Lines ExampleUnder(const std::string& heading) {
  std::ifstream document(std::string(TONMIRA_DOCUMENTS) + "/tone-programs.md");
  Lines lines;
  bool here = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("## ")) here = line == "## " + heading;
    if (here && line.starts_with("    ")) lines.push_back(line.substr(4));
  }
  return lines;
}

ReadProgram Parse(const std::string& name) {
  return ReadToneProgram(Bytes(name));
}

Tones TonesIn(const std::string& name) {
  return TonesOf(Parse(name).program);
}

// Every pitch but rests.
std::vector<int> PitchesIn(const std::string& name) {
  std::vector<int> pitches;
  for (const auto& [pitch_hz, duration_ms] : TonesIn(name)) {
    if (pitch_hz != kRestHz) pitches.push_back(pitch_hz);
  }
  return pitches;
}

TEST(SamplesTest, TheFolderHoldsTheseEight) {
  std::vector<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(TONMIRA_SAMPLES)) {
    found.push_back(entry.path().filename().string());
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> expected;
  for (const Sample& sample : kSamples) expected.push_back(sample.file);
  EXPECT_EQ(found, expected);
}

TEST(SamplesTest, NoCheckFailsAndTheTonesAreTheExpectedOnes) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.file);
    const ReadProgram parsed = Parse(sample.file);
    EXPECT_TRUE(parsed.findings.empty());
    EXPECT_EQ(parsed.lines, sample.lines);
    EXPECT_EQ(parsed.program.hidden_flag, 0);
    EXPECT_EQ(parsed.program.extra_time_ms, kExtraTimeMs);
    ASSERT_EQ(parsed.program.ToneCount(), sample.tones);
    const Tones tones = TonesOf(parsed.program);
    EXPECT_EQ(tones.front(), sample.first);
    EXPECT_EQ(tones.back(), sample.last);
    const int length_ms = std::accumulate(
        tones.begin(), tones.end(), 0,
        [](int sum, const PitchAndTime& tone) { return sum + tone.second + kExtraTimeMs; });
    EXPECT_EQ(length_ms, sample.length_ms);
  }
}

TEST(SamplesTest, LinesEndWithCrLfAndAreAscii) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.file);
    const std::string bytes = Bytes(sample.file);
    const auto count = [&](char c) { return std::count(bytes.begin(), bytes.end(), c); };
    EXPECT_EQ(count('\r'), sample.lines);
    EXPECT_EQ(count('\n'), sample.lines);
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](char c) {
      return (c >= ' ' && c <= '~') || c == '\r' || c == '\n';
    }));
  }
}

TEST(SamplesTest, EveryOneHasANameOfItsOwn) {
  std::vector<std::string> names;
  for (const Sample& sample : kSamples) names.push_back(Parse(sample.file).program.name);
  EXPECT_EQ(names,
            (std::vector<std::string>{
                "{Auld Lang Syne (Scottish air)}", "{Glissando over three octaves}",
                "{Hearing sweep, 8000 Hz to 20000 Hz}", "{Ode to Joy (Ludwig van Beethoven)}",
                "{C major scale, up and down}", "{Siren, two tones a fourth apart}",
                "{Telephone ringing three times}", "{Westminster chimes at three o'clock}"}));
}

TEST(SamplesTest, NothingBetweenHearingAndHalfTheSamplingRateNorBelowASmallLoudspeaker) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.file);
    for (const int pitch_hz : PitchesIn(sample.file)) {
      EXPECT_GE(pitch_hz, 200);
      EXPECT_LE(pitch_hz, 20000);
    }
  }
}

// Twelve equal steps to the octave from A4 = 440 Hz; a pitch is the nearest whole Hz.
TEST(SamplesTest, NotesAreWithinHalfAHertzOfEqualTemperament) {
  for (const std::string name : {"auld-lang-syne.tnf", "glissando.tnf", "ode-to-joy.tnf",
                                 "scale.tnf", "siren.tnf", "westminster-chimes.tnf"}) {
    SCOPED_TRACE(name);
    for (const int pitch_hz : PitchesIn(name)) {
      const double semitone = std::round(12 * std::log2(pitch_hz / 440.0));
      EXPECT_NEAR(440 * std::exp2(semitone / 12), pitch_hz, 0.5);
    }
  }
}

TEST(SamplesTest, TheScaleGoesUpAndDown) {
  EXPECT_EQ(PitchesIn("scale.tnf"), (std::vector{523, 587, 659, 698, 784, 880, 988, 1047, 988, 880,
                                                 784, 698, 659, 587, 523}));
}

TEST(SamplesTest, TheChimesAreTheFourChangesAndTheHour) {
  EXPECT_EQ(PitchesIn("westminster-chimes.tnf"),
            (std::vector{659, 831, 740, 494, 659, 740, 831, 659, 831, 659, 740, 494, 494, 740, 831,
                         659, 330, 330, 330}));
}

// E E F G  G F E D  C C D E  E. D D, with a breath before a repeated note; a beat is 450 ms.
TEST(SamplesTest, OdeToJoyBeginsInItsRhythm) {
  const Tones expected{{659, 380},    {kRestHz, 50}, {659, 440}, {698, 440},    {784, 380},
                       {kRestHz, 50}, {784, 440},    {698, 440}, {659, 440},    {587, 440},
                       {523, 380},    {kRestHz, 50}, {523, 440}, {587, 440},    {659, 380},
                       {kRestHz, 50}, {659, 665},    {587, 155}, {kRestHz, 50}, {587, 890}};
  Tones tones = TonesIn("ode-to-joy.tnf");
  ASSERT_GE(tones.size(), expected.size());
  tones.resize(expected.size());
  EXPECT_EQ(tones, expected);
}

// Two notes of the same pitch without a rest between them would be heard as one.
TEST(SamplesTest, NoNoteRunsIntoItsOwnRepetition) {
  for (const Sample& sample : kSamples) {
    const Tones tones = TonesIn(sample.file);
    EXPECT_EQ(std::adjacent_find(
                  tones.begin(), tones.end(),
                  [](const PitchAndTime& a, const PitchAndTime& b) { return a.first == b.first; }),
              tones.end())
        << sample.file;
  }
}

TEST(SamplesTest, TheExampleOfTheDocumentPlaysWhatItSays) {
  const auto [state, program, findings] = Check(ExampleUnder("A complete file"), 15);
  EXPECT_TRUE(findings.empty());
  EXPECT_EQ(program.hidden_flag, 0);
  EXPECT_EQ(program.extra_time_ms, 10);
  EXPECT_EQ(TonesOf(program), (Tones{{523, 390}, {659, 390}, {kRestHz, 390}, {784, 790}}));
}

}  // namespace
}  // namespace program_files
