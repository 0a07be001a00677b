// Ring tone text, written.
#include "tools/rtttl_writer.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "program_files/program_reader.h"
#include "tests/program_files/tone_files.h"
#include "tools/rtttl.h"

namespace tools {
namespace {

using program_files::Lines;
using program_files::ProgramWith;

// Lengths with the 50 ms of extra time that ProgramWith has.
program_files::ToneProgram ProgramOf(const program_files::Tones& tones) {
  return program_files::ReadToneProgram(program_files::FileOf(ProgramWith(tones))).program;
}

std::string Exported(const program_files::Tones& tones, int octave_of_a440 = 4) {
  return WriteRingTone(ProgramOf(tones), octave_of_a440).text;
}

Lines Misfits(const program_files::Tones& tones) {
  Lines texts;
  for (const Problem& problem : WriteRingTone(ProgramOf(tones), 4).problems) {
    texts.push_back(Formatted("", problem, false));
  }
  return texts;
}

TEST(RingToneWriterTest, NotesOfOneLength) {
  EXPECT_EQ(Exported({{440, 450}, {494, 450}, {523, 450}, {554, 450}}),
            "My tune:d=4,o=4,b=120:a,b,c5,c#5");
}

TEST(RingToneWriterTest, OtherLengthsDotsAndRests) {
  EXPECT_EQ(Exported({{440, 450}, {22050, 200}, {440, 700}, {494, 450}, {494, 950}}),
            "My tune:d=4,o=4,b=120:a,8p,a.,b,2b");
}

TEST(RingToneWriterTest, AShortRestBetweenNotesBelongsToTheNote) {
  EXPECT_EQ(Exported({{440, 380}, {22050, 20}, {440, 450}, {494, 450}}),
            "My tune:d=4,o=4,b=120:a,a,b");
}

TEST(RingToneWriterTest, TheOtherTableOfOctaves) {
  EXPECT_EQ(Exported({{220, 450}, {440, 450}, {440, 450}}, 5), "My tune:d=4,o=5,b=120:a4,a,a");
}

TEST(RingToneWriterTest, WhatIsNoNoteIsToldByItsLine) {
  EXPECT_EQ(Misfits({{440, 450}, {441, 450}, {494, 387}, {200, 450}}),
            (Lines{":10:1: error: 441 Hz is no note; the nearest is a4, 440 Hz\n",
                   ":13:1: error: 437 ms is no note's length at 120 beats a minute\n",
                   ":14:1: error: 200 Hz is no note; the nearest is c4, 262 Hz\n"}));
}

TEST(RingToneWriterTest, AProgramWithoutTones) {
  EXPECT_EQ(Misfits({}), (Lines{":8:1: error: there are no tones\n"}));
}

// What was read of a ring tone text and is written again has the same tones when it is read.
TEST(RingToneWriterTest, ThereAndBackAgain) {
  const std::vector<std::string> tunes{
      "Scale:d=4,o=5,b=100:c,d,e,f,g,a,b,c6",
      "Repeats:d=8,o=4,b=63:c,c,c,c,2c.,p,a8,a8,16g#7,16g#7",
      "Fast:d=16,o=6,b=320:c,8d,c.,p,4e,32f,32f,32g",
      "Dots:d=2,o=7,b=90:h.,a#.5,8f#,8f#",
  };
  for (const std::string& tune : tunes) {
    const RingTone read = ReadRingTone(tune, 4);
    const auto program = program_files::ReadToneProgram(read.tones.File(read.name)).program;
    const RingToneText text = WriteRingTone(program, 4);
    ASSERT_TRUE(text.problems.empty()) << tune << ": " << text.problems.front().text;
    EXPECT_EQ(ReadRingTone(text.text, 4).tones.tones(), read.tones.tones()) << text.text;
  }
}

}  // namespace
}  // namespace tools
