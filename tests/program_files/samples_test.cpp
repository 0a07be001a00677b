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

#include "program_files/line_reader.h"
#include "program_files/tone_program.h"
#include "tests/program_files/bytes_file.h"

namespace program_files {
namespace {

constexpr int kExtraTimeMs = 10;
constexpr int kRestHz = 22050;

struct Tone {
  int pitch_hz;
  int duration_ms;
};

struct Sample {
  std::string file;
  int lines;
  int tones;
  Tone first;
  Tone last;
  int length_ms;  // of the whole, extra times included
};

const std::array kSamples{
    Sample{"auld-lang-syne.tnf", 141, 67, {523, 470}, {698, 1430}, 30720},
    Sample{"glissando.tnf", 153, 73, {262, 490}, {262, 490}, 5970},
    Sample{"hearing-sweep.tnf", 65, 29, {1000, 990}, {1000, 990}, 22000},
    Sample{"ode-to-joy.tnf", 159, 76, {659, 380}, {523, 890}, 28800},
    Sample{"scale.tnf", 37, 15, {523, 390}, {523, 790}, 6800},
    Sample{"siren.tnf", 345, 169, {523, 50}, {523, 50}, 10140},
    Sample{"telephone.tnf", 113, 53, {1000, 40}, {1250, 40}, 7000},
    Sample{"westminster-chimes.tnf", 57, 25, {659, 590}, {330, 1190}, 19200},
};

std::string Bytes(const std::string& name) {
  std::ifstream file(std::string(TONMIRA_SAMPLES) + "/" + name, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

struct Parsed {
  ToneProgram program;
  std::vector<Report> reports;
  std::int32_t lines = 0;

  std::vector<Tone> Tones() const {
    std::vector<Tone> tones;
    for (std::int16_t k = 1; k <= program.tone_count; ++k) {
      tones.push_back({program.pitch_hz[k], program.duration_ms[k]});
    }
    return tones;
  }

  // What is heard: every pitch but rests.
  std::vector<int> Pitches() const {
    std::vector<int> pitches;
    for (const Tone& tone : Tones()) {
      if (tone.pitch_hz != kRestHz) pitches.push_back(tone.pitch_hz);
    }
    return pitches;
  }
};

Parsed Parse(const std::string& name) {
  const std::string bytes = Bytes(name);
  Parsed parsed;
  BytesFile first_pass(bytes);
  LineReader reader(first_pass, bytes.size());
  std::int16_t n = 0;
  while (const auto line = reader.Next()) parsed.program.lines[++n] = *line;
  BytesFile second_pass(bytes);
  parsed.lines = CountLines(second_pass, 1999);
  parsed.reports = CheckProgram(parsed.program, parsed.lines);
  return parsed;
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
    const Parsed parsed = Parse(sample.file);
    EXPECT_TRUE(parsed.reports.empty());
    EXPECT_EQ(parsed.lines, sample.lines);
    EXPECT_EQ(parsed.program.hidden_flag, 0);
    EXPECT_EQ(parsed.program.extra_time_ms, kExtraTimeMs);
    ASSERT_EQ(parsed.program.tone_count, sample.tones);
    const std::vector<Tone> tones = parsed.Tones();
    EXPECT_EQ(tones.front().pitch_hz, sample.first.pitch_hz);
    EXPECT_EQ(tones.front().duration_ms, sample.first.duration_ms);
    EXPECT_EQ(tones.back().pitch_hz, sample.last.pitch_hz);
    EXPECT_EQ(tones.back().duration_ms, sample.last.duration_ms);
    const int length_ms = std::accumulate(
        tones.begin(), tones.end(), 0,
        [](int sum, const Tone& tone) { return sum + tone.duration_ms + kExtraTimeMs; });
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
  for (const Sample& sample : kSamples) names.push_back(Parse(sample.file).program.lines[4]);
  EXPECT_EQ(names,
            (std::vector<std::string>{
                "{Auld Lang Syne (Scottish air)}", "{Glissando over three octaves}",
                "{Hearing sweep, 8000 Hz to 20000 Hz}", "{Ode to Joy (Ludwig van Beethoven)}",
                "{C major scale, up and down}", "{Siren}", "{Telephone ringing three times}",
                "{Westminster chimes at three o'clock}"}));
}

TEST(SamplesTest, NothingBetweenHearingAndHalfTheSamplingRateNorBelowASmallLoudspeaker) {
  for (const Sample& sample : kSamples) {
    SCOPED_TRACE(sample.file);
    for (const int pitch_hz : Parse(sample.file).Pitches()) {
      EXPECT_GE(pitch_hz, 200);
      EXPECT_LE(pitch_hz, 20000);
    }
  }
}

// Twelve equal steps to the octave from A4 = 440 Hz; a pitch is the nearest whole Hz.
TEST(SamplesTest, NotesAreWithinHalfAHertzOfEqualTemperament) {
  for (const std::string name : {"auld-lang-syne.tnf", "glissando.tnf", "ode-to-joy.tnf",
                                 "scale.tnf", "westminster-chimes.tnf"}) {
    SCOPED_TRACE(name);
    for (const int pitch_hz : Parse(name).Pitches()) {
      const double semitone = std::round(12 * std::log2(pitch_hz / 440.0));
      EXPECT_NEAR(440 * std::exp2(semitone / 12), pitch_hz, 0.5);
    }
  }
}

TEST(SamplesTest, TheScaleGoesUpAndDown) {
  EXPECT_EQ(Parse("scale.tnf").Pitches(), (std::vector{523, 587, 659, 698, 784, 880, 988, 1047, 988,
                                                       880, 784, 698, 659, 587, 523}));
}

TEST(SamplesTest, TheChimesAreTheFourChangesAndTheHour) {
  EXPECT_EQ(Parse("westminster-chimes.tnf").Pitches(),
            (std::vector{659, 831, 740, 494, 659, 740, 831, 659, 831, 659, 740, 494, 494, 740, 831,
                         659, 330, 330, 330}));
}

// E E F G  G F E D  C C D E  E. D D, with a breath before a repeated note; a beat is 450 ms.
TEST(SamplesTest, OdeToJoyBeginsInItsRhythm) {
  const std::vector<Tone> tones = Parse("ode-to-joy.tnf").Tones();
  const std::array expected{Tone{659, 390}, Tone{kRestHz, 60}, Tone{659, 450},    Tone{698, 450},
                            Tone{784, 390}, Tone{kRestHz, 60}, Tone{784, 450},    Tone{698, 450},
                            Tone{659, 450}, Tone{587, 450},    Tone{523, 390},    Tone{kRestHz, 60},
                            Tone{523, 450}, Tone{587, 450},    Tone{659, 390},    Tone{kRestHz, 60},
                            Tone{659, 675}, Tone{587, 165},    Tone{kRestHz, 60}, Tone{587, 900}};
  ASSERT_GE(tones.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(tones[i].pitch_hz, expected[i].pitch_hz) << "tone " << i + 1;
    EXPECT_EQ(tones[i].duration_ms + kExtraTimeMs, expected[i].duration_ms) << "tone " << i + 1;
  }
}

// Two notes of the same pitch without a rest between them would be heard as one.
TEST(SamplesTest, NoNoteRunsIntoItsOwnRepetition) {
  for (const Sample& sample : kSamples) {
    const std::vector<Tone> tones = Parse(sample.file).Tones();
    EXPECT_EQ(
        std::adjacent_find(tones.begin(), tones.end(),
                           [](const Tone& a, const Tone& b) { return a.pitch_hz == b.pitch_hz; }),
        tones.end())
        << sample.file;
  }
}

}  // namespace
}  // namespace program_files
