// The one call: bytes in; program and findings out.
#include "program_files/program_reader.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/program_files/bytes_file.h"
#include "tests/program_files/programs.h"

namespace program_files {
namespace {

std::string BytesOf(const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return bytes;
}

const Lines kWholeTune{"%valid%", "[info]", "{236}", "{My tune}", "{visible}", "[sound]",
                       "{50}",    "<440>",  "\\500", "<880>",     "\\250"};

Lines TuneWith(std::size_t line, const std::string& text) {
  Lines lines = kWholeTune;
  lines[line - 1] = text;
  return lines;
}

// "line:column: expected X, found Y" of each finding, with the report's letter in front.
Lines TextsOf(const std::vector<Finding>& findings) {
  Lines texts;
  for (const Finding& finding : findings) {
    texts.push_back(std::string(finding.report == Report::kVersion ? "v " : "i ") +
                    std::to_string(finding.line) + ":" + std::to_string(finding.column) +
                    ": expected " + Description(finding.expected) + ", found " + finding.found);
  }
  return texts;
}

TEST(ReadToneProgram, AGoodFileIsItsProgram) {
  const ReadProgram read = ReadToneProgram(BytesOf(kWholeTune));
  EXPECT_EQ(TextsOf(read.findings), Lines{});
  EXPECT_FALSE(read.given_up);
  EXPECT_EQ(read.lines, 11);
  EXPECT_EQ(read.program.name, "{My tune}");
  EXPECT_EQ(read.program.hidden_flag, 0);
  EXPECT_EQ(read.program.extra_time_ms, 50);
  EXPECT_EQ(read.program.tones, (std::vector<Tone>{{440, 500, 8}, {880, 250, 10}}));
}

TEST(ReadToneProgram, TheBytesMayComeInPiecesOfAnySize) {
  const std::string bytes = BytesOf(TuneWith(9, "500"));
  for (const std::size_t size : {1u, 2u, 3u, 50u, 5000u}) {
    BytesFile source(bytes, size);
    const ReadProgram read = ReadToneProgram(source);
    EXPECT_EQ(TextsOf(read.findings),
              (Lines{"i 9:1: expected a line that begins with \"\\\" and a duration, found 500"}));
    EXPECT_EQ(TonesOf(read.program), (Tones{{440, 500}, {880, 250}}));
  }
}

struct Mistake {
  std::string name;
  std::size_t line;
  std::string text;
  Lines findings;
};

class MistakeTest : public testing::TestWithParam<Mistake> {};

TEST_P(MistakeTest, IsFoundWhereItIs) {
  const auto& [name, line, text, findings] = GetParam();
  EXPECT_EQ(TextsOf(ReadToneProgram(BytesOf(TuneWith(line, text))).findings), findings);
}

const std::string kPitchMark = "expected a line that begins with \"<\" and a pitch, found ";
const std::string kPitch = "expected a pitch above 1 and at most 32000 Hz, found ";
const std::string kDurationMark = "expected a line that begins with \"\\\" and a duration, found ";
const std::string kDuration = "expected a duration above 0 and at most 32000 ms, found ";
const std::string kExtra = "expected an extra time above 0 and at most 32000 ms, found ";
const std::string kSeen = "expected {visible} or {invisible}, found ";
const std::string kVersion = "expected a format version of at most 236, found ";

INSTANTIATE_TEST_SUITE_P(
    Head, MistakeTest,
    testing::Values(
        Mistake{"Capital", 1, "%Valid%", {"i 1:2: expected %valid%, found %Valid%"}},
        Mistake{"TooShort", 1, "%vali%", {"i 1:7: expected %valid%, found %vali%"}},
        Mistake{"BlankBehind", 1, "%valid% ", {"i 1:8: expected %valid%, found %valid% "}},
        Mistake{"Mark",
                1,
                "\xef\xbb\xbf%valid%",
                {"i 1:1: expected %valid%, found \xef\xbb\xbf%valid%"}},
        Mistake{"EmptyMarker", 1, "", {"i 1:1: expected %valid%, found "}},
        Mistake{"Info", 2, "[Info]", {"i 2:2: expected [info], found [Info]"}},
        Mistake{"InfoBlankBehind", 2, "[info] ", {"i 2:7: expected [info], found [info] "}},
        Mistake{"Version", 3, "{237}", {"v 3:2: " + kVersion + "{237}"}},
        Mistake{"VersionAfterBlanks", 3, "{ {\t 1e9}", {"v 3:6: " + kVersion + "{ {\t 1e9}"}},
        Mistake{"Visibility", 5, "{visable}", {"i 5:5: " + kSeen + "{visable}"}},
        Mistake{"Invisibility", 5, "{INvisable}", {"i 5:7: " + kSeen + "{INvisable}"}},
        Mistake{"NoVisibility", 5, "{}", {"i 5:3: " + kSeen + "{}"}},
        Mistake{"Sound", 6, "sound", {"i 6:1: expected [sound], found sound"}},
        Mistake{"ExtraTime", 7, "{0}", {"i 7:2: " + kExtra + "{0}"}},
        Mistake{"NoExtraTime", 7, "{}", {"i 7:1: " + kExtra + "{}"}},
        Mistake{"FarTooLargeExtraTime", 7, "{1e309}", {"i 7:2: " + kExtra + "{1e309}"}}),
    [](const auto& mistake) { return mistake.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Entries, MistakeTest,
    testing::Values(
        Mistake{"NoPitch",
                8,
                "440",
                {"i 8:1: " + kPitchMark + "440", "i 9:1: " + kPitchMark + "\\500"}},
        Mistake{"LowPitch", 8, "<1>", {"i 8:2: " + kPitch + "<1>"}},
        Mistake{"HighPitch", 10, "<  32000.5>", {"i 10:4: " + kPitch + "<  32000.5>"}},
        Mistake{"NoDuration", 9, "", {"i 9:1: " + kDurationMark, "i 9:1: " + kDuration}},
        Mistake{"NoBackslash", 11, "250", {"i 11:1: " + kDurationMark + "250"}},
        Mistake{"LongDuration", 11, "\\\\ 32001 ms", {"i 11:4: " + kDuration + "\\\\ 32001 ms"}},
        Mistake{"LineCut",
                8,
                std::string(70, '%') + "0123456789abcdef",
                {"i 8:1: " + kPitchMark + std::string(70, '%') + "0123456789",
                 "i 9:1: " + kPitchMark + "\\500"}}),
    [](const auto& mistake) { return mistake.param.name; });

TEST(ReadToneProgram, FindingsAreInFileOrder) {
  const ReadProgram read =
      ReadToneProgram("\r\n[info]\r\n{300}\r\n\r\n{seen}\r\n[sound]\r\n{50}\r\n<0>\r\n500\r\n");
  EXPECT_EQ(TextsOf(read.findings),
            (Lines{"i 1:1: expected %valid%, found ", "v 3:2: " + kVersion + "{300}",
                   "i 5:2: " + kSeen + "{seen}", "i 8:2: " + kPitch + "<0>",
                   "i 9:1: " + kDurationMark + "500"}));
  EXPECT_EQ(TonesOf(read.program), (Tones{{0, 500}}));
}

TEST(ReadToneProgram, NothingAtAllLacksFiveLines) {
  const ReadProgram read = ReadToneProgram("");
  EXPECT_EQ(TextsOf(read.findings),
            (Lines{"i 1:1: expected %valid%, found ", "i 2:1: expected [info], found ",
                   "i 5:1: " + kSeen, "i 6:1: expected [sound], found ", "i 7:1: " + kExtra}));
  EXPECT_EQ(read.lines, 0);
}

Lines LongProgram(std::size_t count) {
  Lines lines(kWholeTune.begin(), kWholeTune.begin() + 7);
  while (lines.size() + 2 <= count) lines.insert(lines.end(), {"<440>", "\\1"});
  if (lines.size() < count) lines.push_back("last");
  return lines;
}

TEST(ReadToneProgram, TheLongestFileHas1999Lines) {
  const ReadProgram read = ReadToneProgram(BytesOf(LongProgram(1999)));
  EXPECT_EQ(TextsOf(read.findings), Lines{});
  EXPECT_EQ(read.lines, 1999);
  EXPECT_EQ(read.program.tones.size(), 996u);
}

TEST(ReadToneProgram, Line2000IsAFindingAndTheRestIsChecked) {
  Lines lines = LongProgram(2000);
  lines[7] = "<1>";
  const ReadProgram read = ReadToneProgram(BytesOf(lines));
  EXPECT_EQ(TextsOf(read.findings), (Lines{"i 2000:1: expected at most 1999 lines, found last",
                                           "i 8:2: " + kPitch + "<1>"}));
  EXPECT_FALSE(read.given_up);
  EXPECT_EQ(read.program.tones.size(), 996u);
}

// Hands out `pattern` for ever.
class Endless : public base::ByteSource {
 public:
  explicit Endless(std::string pattern) : pattern_(std::move(pattern)) {}

  std::size_t Read(std::span<char> buffer) override {
    for (char& c : buffer) c = pattern_[bytes_++ % pattern_.size()];
    return buffer.size();
  }

  std::size_t bytes() const { return bytes_; }

 private:
  std::string pattern_;
  std::size_t bytes_ = 0;
};

TEST(ReadToneProgram, MoreLinesAreNotReadToTheirEnd) {
  Endless source("12345678\r\n");
  const ReadProgram read = ReadToneProgram(source);
  EXPECT_TRUE(read.given_up);
  EXPECT_EQ(TextsOf(read.findings),
            (Lines{"i 2000:1: expected at most 1999 lines, found 12345678"}));
  EXPECT_EQ(read.lines, 2000);
  EXPECT_TRUE(read.program.tones.empty());
  EXPECT_LT(source.bytes(), 30000u);
}

TEST(ReadToneProgram, MoreTextIsNotReadToItsEnd) {
  Endless source("x");
  const ReadProgram read = ReadToneProgram(source);
  EXPECT_TRUE(read.given_up);
  EXPECT_EQ(TextsOf(read.findings), (Lines{"i 1:1: expected at most 16 MiB of text, found "}));
  EXPECT_EQ(read.lines, 0);
  EXPECT_LT(source.bytes(), 17u << 20);
}

TEST(ReadToneProgram, SixteenMebibytesOfTextAreRead) {
  std::string bytes = BytesOf(kWholeTune);
  const std::size_t text = bytes.size() - 2 * kWholeTune.size();
  const std::string name((16u << 20) - text, 'x');
  bytes.insert(bytes.find("My"), name);
  EXPECT_TRUE(ReadToneProgram(bytes).findings.empty());
  bytes.insert(bytes.find("x"), "x");
  const ReadProgram read = ReadToneProgram(bytes);
  EXPECT_EQ(TextsOf(read.findings), (Lines{"i 11:1: expected at most 16 MiB of text, found "}));
  EXPECT_TRUE(read.given_up);
}

class Broken : public base::ByteSource {
 public:
  std::size_t Read(std::span<char>) override {
    throw base::RuntimeError(base::ErrorCode::kDeviceError);
  }
};

TEST(ReadToneProgram, WhatReadingThrowsGoesThrough) {
  Broken source;
  try {
    ReadToneProgram(source);
    FAIL() << "no error";
  } catch (const base::RuntimeError& error) {
    EXPECT_EQ(error.code(), base::ErrorCode::kDeviceError);
  }
}

}  // namespace
}  // namespace program_files
