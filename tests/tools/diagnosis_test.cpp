// What tnf check says of usual mistakes.
#include "tools/diagnosis.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/program_files/tone_files.h"

namespace tools {
namespace {

using program_files::FileOf;
using program_files::GoodHead;
using program_files::Lines;
using program_files::ProgramWith;

// "LINE:COLUMN: error: TEXT" for each problem.
Lines Said(const std::string& bytes) {
  Lines said;
  for (const Problem& problem : Diagnose(program_files::ReadToneProgram(bytes))) {
    const std::string line = Formatted("", problem, false);
    said.push_back(line.substr(1, line.size() - 2));
  }
  return said;
}

Lines Said(const Lines& lines) {
  return Said(FileOf(lines));
}

// A legal program of two tones, with `text` in place of a line.
Lines With(std::size_t line, const std::string& text) {
  Lines lines = ProgramWith({{440, 500}, {880, 250}});
  lines[line - 1] = text;
  return lines;
}

Lines Without(std::size_t line) {
  Lines lines = ProgramWith({{440, 500}, {880, 250}});
  lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line - 1));
  return lines;
}

Lines Inserted(std::size_t line, const std::string& text) {
  Lines lines = ProgramWith({{440, 500}, {880, 250}});
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line - 1), text);
  return lines;
}

constexpr char kDurationMark[] = R"(expected a line that begins with "\" and a duration, found )";
constexpr char kPitchMark[] = R"(expected a line that begins with "<" and a pitch, found )";

TEST(Diagnosis, NothingIsSaidOfALegalFile) {
  EXPECT_EQ(Said(ProgramWith({{440, 500}, {22050, 250}})), Lines{});
}

TEST(Diagnosis, AMissingDurationIsOneErrorAtItsLine) {
  Lines lines = ProgramWith({{440, 500}, {880, 250}, {220, 100}});
  lines.erase(lines.begin() + 8);
  EXPECT_EQ(program_files::ReadToneProgram(FileOf(lines)).findings.size(), 3u);
  EXPECT_EQ(Said(lines), (Lines{"9:1: error: the duration of the pitch in line 8 is missing: " +
                                std::string(kDurationMark) + "\"<880>\""}));
}

TEST(Diagnosis, AMissingDurationOfTheLastButOneToneIsOneErrorToo) {
  EXPECT_EQ(Said(Without(9)),
            (Lines{"9:1: error: the duration of the pitch in line 8 is missing: " +
                   std::string(kDurationMark) + "\"<880>\""}));
}

TEST(Diagnosis, TheLinesOfAnEntryMissTheirMarks) {
  EXPECT_EQ(Said(With(9, "500")), (Lines{"9:1: error: " + std::string(kDurationMark) +
                                         "\"500\": the \"\\\" is missing"}));
  EXPECT_EQ(Said(With(9, "/500")), (Lines{"9:1: error: " + std::string(kDurationMark) +
                                          "\"/500\": a \"/\" is no \"\\\""}));
  EXPECT_EQ(Said(With(9, " \\500")), (Lines{"9:1: error: " + std::string(kDurationMark) +
                                            "\" \\500\": there is a blank before the \"\\\""}));
  EXPECT_EQ(Said(With(9, "")),
            (Lines{"9:1: error: " + std::string(kDurationMark) + "\"\": the duration is missing"}));
  EXPECT_EQ(Said(With(8, "440")),
            (Lines{"8:1: error: " + std::string(kPitchMark) + "\"440\": the \"<\" is missing"}));
  EXPECT_EQ(Said(With(8, " <440>")), (Lines{"8:1: error: " + std::string(kPitchMark) +
                                            "\" <440>\": there is a blank before the \"<\""}));
}

TEST(Diagnosis, ALineTooManyBetweenTheEntries) {
  EXPECT_EQ(Said(Inserted(10, "")), (Lines{"10:1: error: " + std::string(kPitchMark) +
                                           "\"\": no line may be empty between the entries"}));
  EXPECT_EQ(Said(Inserted(10, "; the end")), (Lines{"10:1: error: " + std::string(kPitchMark) +
                                                    "\"; the end\": there are no comments"}));
  EXPECT_EQ(Said(Inserted(10, "\\100")),
            (Lines{"10:1: error: " + std::string(kPitchMark) +
                   "\"\\100\": this duration has no pitch before it"}));
}

TEST(Diagnosis, NumbersBeyondTheirLimits) {
  const std::string pitch = "error: expected a pitch above 1 and at most 32000 Hz, found ";
  EXPECT_EQ(Said(With(8, "<0>")), (Lines{"8:2: " + pitch + "\"<0>\": a rest is <22050>"}));
  EXPECT_EQ(Said(With(8, "<1,5>")),
            (Lines{"8:2: " + pitch + "\"<1,5>\": the decimal sign is a point"}));
  EXPECT_EQ(Said(With(8, "<A>")), (Lines{"8:2: " + pitch + "\"<A>\": there is no number"}));
  EXPECT_EQ(Said(With(9, "\\32001")),
            (Lines{"9:2: error: expected a duration above 0 and at most 32000 ms, found "
                   "\"\\32001\""}));
  EXPECT_EQ(Said(With(7, "{0}")),
            (Lines{"7:2: error: expected an extra time above 0 and at most 32000 ms, found "
                   "\"{0}\": the least is {1}"}));
  EXPECT_EQ(Said(With(3, "{237}")),
            (Lines{"3:2: error: expected a format version of at most 236, found \"{237}\""}));
}

TEST(Diagnosis, WordsOfTheHead) {
  EXPECT_EQ(Said(With(1, "%Valid%")),
            (Lines{"1:2: error: expected %valid%, found \"%Valid%\": small letters only"}));
  EXPECT_EQ(Said(With(2, "[info] ")),
            (Lines{"2:7: error: expected [info], found \"[info] \": there is a blank too many"}));
  EXPECT_EQ(Said(With(6, "[Sound]")),
            (Lines{"6:2: error: expected [sound], found \"[Sound]\": small letters only"}));
  EXPECT_EQ(Said(With(5, "{visibel}")),
            (Lines{"5:7: error: expected {visible} or {invisible}, found \"{visibel}\""}));
}

TEST(Diagnosis, AHeadWhoseLinesAreNotInTheirPlacesIsOneError) {
  EXPECT_EQ(
      Said(Without(4)),
      (Lines{"5:1: error: expected {visible} or {invisible}, found \"[sound]\"; the head has a "
             "line too few: [sound] stands in line 5, not 6"}));
  EXPECT_EQ(
      Said(Inserted(1, "; a tune")),
      (Lines{"1:1: error: expected %valid%, found \"; a tune\"; the head has a line too many: "
             "[sound] stands in line 7, not 6"}));
}

TEST(Diagnosis, HowTheFileWasSaved) {
  EXPECT_EQ(
      Said(With(1, "\xEF\xBB\xBF%valid%")),
      (Lines{"1:1: error: expected %valid%, found \"\\xEF\\xBB\\xBF%valid%\": the file begins "
             "with the mark of UTF-8; save it as ANSI"}));
  EXPECT_EQ(
      Said(std::string("%valid%\n[info]\n{236}\n{x}\n{visible}\n[sound]\n{10}\n<440>\n\\5\n")),
      (Lines{"1:8: error: a line ends with LF alone; it must end with CR LF or CR"}));
}

TEST(Diagnosis, WhatIsMissingAtTheEnd) {
  EXPECT_EQ(Said(std::string()), (Lines{"1:1: error: the file is empty"}));
  Lines head = GoodHead();
  head.resize(4);
  EXPECT_EQ(Said(head), (Lines{"5:1: error: the file ends before {visible} or {invisible}"}));
}

TEST(Diagnosis, EveryMistakeIsToldByItself) {
  Lines lines = With(7, "{0}");
  lines[8] = "\\0";
  lines[9] = "<32001>";
  EXPECT_EQ(Said(lines).size(), 3u);
  lines.push_back("no pitch");
  lines.push_back("");
  EXPECT_EQ(Said(lines).size(), 4u);
}

TEST(Diagnosis, WarningsOfWhatDoesNotSoundAsMeant) {
  EXPECT_EQ(Said(ProgramWith({{2, 500}})),
            (Lines{"8:1: warning: 2 Hz is not heard but clicks at both ends; a rest is <22050>"}));
  EXPECT_EQ(Said(ProgramWith({{20, 500}})), Lines{});
  EXPECT_EQ(
      Said(ProgramWith({{32000, 500}})),
      (Lines{"8:1: warning: 32000 Hz sounds as 12100 Hz in Winmm, Automatic and DirectSound"}));
  EXPECT_EQ(
      Said(ProgramWith({{22051, 500}})),
      (Lines{"8:1: warning: 22051 Hz sounds as 22049 Hz in Winmm, Automatic and DirectSound"}));
  Lines lines = ProgramWith({{440, 8}, {440, 9}, {22050, 1}});
  lines[6] = "{1}";
  EXPECT_EQ(Said(lines), (Lines{"8:1: warning: 9 ms are too short to be heard as a tone"}));
}

TEST(Diagnosis, AToneThatTheProgramsOwnSynthesisDoesNotPlay) {
  Lines lines = ProgramWith({{440, 32000}});
  lines[6] = "{767}";
  EXPECT_EQ(Said(lines), Lines{});
  lines[6] = "{768}";
  EXPECT_EQ(Said(lines),
            (Lines{"8:1: warning: 32768 ms are more than 32767 ms: in Winmm, Automatic "
                   "and DirectSound the play ends before this tone"}));
}

TEST(Diagnosis, TheIgnoredLastLine) {
  EXPECT_EQ(Said(Inserted(12, "<660>")),
            (Lines{"12:1: warning: the last line is ignored, as no duration follows: \"<660>\""}));
  EXPECT_EQ(Said(Inserted(12, "")), Lines{});
}

TEST(Diagnosis, TooManyLines) {
  Lines lines = GoodHead();
  while (lines.size() < 1998) lines.insert(lines.end(), {"<440>", "\\10"});
  lines.resize(1999);
  EXPECT_EQ(Said(lines), Lines{});
  lines.resize(2000, "\\10");
  const std::string too_many = "2000:1: error: expected at most 1999 lines";
  EXPECT_EQ(Said(lines),
            (Lines{too_many,
                   "2000:1: warning: the last line is ignored, as no duration follows: \"\\10\"",
                   "2000:1: warning: more than 1999 lines: the player reads them all the same"}));
  lines.resize(2500);
  EXPECT_EQ(
      Said(lines),
      (Lines{too_many, "2000:1: warning: more than 2000 lines: nothing of the file is played"}));
}

TEST(Diagnosis, TheMessagesOfThePlayer) {
  Lines lines = With(9, "x");
  lines[2] = "{237}";
  EXPECT_EQ(PlayersMessages("a.tnf", program_files::ReadToneProgram(FileOf(lines)).findings),
            "  a.tnf is not a legal tnf file! (2 times)\n"
            "  Your Tonmira version is not compatible with this file!\n");
  EXPECT_EQ(PlayersMessages("a.tnf", {}), "");
}

TEST(Diagnosis, ProblemsAreShownOnAnyTerminal) {
  EXPECT_EQ(Quoted("a\x1B[1m\xE9\n"), "\"a\\x1B[1m\\xE9\\n\"");
  const Problem problem{Severity::kWarning, 8, 1, "text"};
  EXPECT_EQ(Formatted("a.tnf", problem, true),
            "\x1B[1ma.tnf:8:1: \x1B[0m\x1B[1;35mwarning: \x1B[0mtext\n");
}

}  // namespace
}  // namespace tools
