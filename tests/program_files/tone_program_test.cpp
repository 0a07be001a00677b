#include "program_files/program_checks.h"

#include <gtest/gtest.h>

#include "tests/program_files/programs.h"

namespace program_files {
namespace {

// What the checks are expected to make of a file.
struct Expected {
  std::string reports;  // in file order: "i" illegal file, "v" version
  int extra_time_ms = 0;
  bool hidden = false;
  Tones tones = {};  // pitch and duration each; 0 where a value failed its check
};

struct Case {
  std::string name;
  Lines lines;
  Expected expected;
};

class ToneProgramTest : public testing::TestWithParam<Case> {};

TEST_P(ToneProgramTest, YieldsItsTablesAndReports) {
  const auto& [name, lines, expected] = GetParam();
  const auto [state, program, findings] = Check(lines, static_cast<std::int32_t>(lines.size()));
  EXPECT_EQ(Letters(findings), expected.reports);
  EXPECT_EQ(program.extra_time_ms, expected.extra_time_ms);
  EXPECT_EQ(program.hidden_flag, expected.hidden ? 1 : 0);
  EXPECT_EQ(TonesOf(program), expected.tones);
  EXPECT_EQ(state.line_count, static_cast<int>(lines.size()) - 6);
}

std::string NameOf(const testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

// A good head with one of its lines replaced; no tones.
Lines Head(std::size_t line, const std::string& text) {
  Lines lines = GoodHead();
  lines[line - 1] = text;
  return lines;
}

// A good head and the lines of entries.
Lines Body(const Lines& entries) {
  Lines lines = GoodHead();
  lines.insert(lines.end(), entries.begin(), entries.end());
  return lines;
}

INSTANTIATE_TEST_SUITE_P(Validity, ToneProgramTest,
                         testing::Values(Case{"Plain", Head(1, "valid"), {"", 50}},
                                         Case{"Marked", Head(1, "%valid%"), {"", 50}},
                                         Case{"MarkedTwiceInFront", Head(1, "%%valid"), {"", 50}},
                                         Case{"MarkedInside", Head(1, "va%lid"), {"", 50}},
                                         Case{"Capital", Head(1, "Valid"), {"i", 50}},
                                         Case{"MarkedCapital", Head(1, "%VALID%"), {"i", 50}},
                                         Case{"BlankBehind", Head(1, "%valid% "), {"i", 50}},
                                         Case{"OnlyMarkers", Head(1, "%%"), {"i", 50}},
                                         Case{"Braced", Head(1, "{valid}"), {"i", 50}}),
                         NameOf);

INSTANTIATE_TEST_SUITE_P(
    Sections, ToneProgramTest,
    testing::Values(Case{"InfoCapital", Head(2, "[Info]"), {"i", 50}},
                    Case{"InfoWithoutBrackets", Head(2, "info"), {"i", 50}},
                    Case{"InfoAfterBlank", Head(2, " [info]"), {"i", 50}},
                    Case{"SoundCapital", Head(6, "[SOUND]"), {"i", 50}},
                    Case{"SoundMissing", Head(6, ""), {"i", 50}},
                    Case{"NameIsNotRead", Head(4, "\x01 anything % at { all"), {"", 50}},
                    Case{"NameMayBeEmpty", Head(4, ""), {"", 50}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(Version, ToneProgramTest,
                         testing::Values(Case{"Current", Head(3, "{236}"), {"", 50}},
                                         Case{"SlightlyLater", Head(3, "{236.5}"), {"v", 50}},
                                         Case{"Later", Head(3, "{237}"), {"v", 50}},
                                         Case{"Empty", Head(3, "{}"), {"", 50}},
                                         Case{"NoBraces", Head(3, "100"), {"", 50}},
                                         Case{"BracesAnywhere", Head(3, "2}3{7"), {"v", 50}},
                                         Case{"Negative", Head(3, "{-1}"), {"", 50}},
                                         Case{"Words", Head(3, "{two}"), {"", 50}},
                                         Case{"BeyondDouble", Head(3, "{1e309}"), {"v", 50}},
                                         Case{"FarBelow", Head(3, "{-1e309}"), {"", 50}}),
                         NameOf);

INSTANTIATE_TEST_SUITE_P(
    Visibility, ToneProgramTest,
    testing::Values(Case{"Visible", Head(5, "{visible}"), {"", 50}},
                    Case{"VisibleCapital", Head(5, "{Visible}"), {"", 50}},
                    Case{"VisibleAllCapitals", Head(5, "VISIBLE"), {"", 50}},
                    Case{"Invisible", Head(5, "{invisible}"), {"", 50, true}},
                    Case{"InvisibleMixed", Head(5, "{inVisible}"), {"", 50, true}},
                    Case{"Misspelt", Head(5, "{visable}"), {"i", 50}},
                    Case{"Empty", Head(5, "{}"), {"i", 50}},
                    Case{"WithBlank", Head(5, "{ invisible }"), {"i", 50}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    ExtraTime, ToneProgramTest,
    testing::Values(
        Case{"Zero", Head(7, "{0}"), {"i"}}, Case{"MinusZero", Head(7, "{-0}"), {"i"}},
        Case{"One", Head(7, "{1}"), {"", 1}}, Case{"Most", Head(7, "{32000}"), {"", 32000}},
        Case{"TooMuch", Head(7, "{32001}"), {"i"}},
        Case{"SlightlyTooMuch", Head(7, "{32000.5}"), {"i"}},
        Case{"Negative", Head(7, "{-50}"), {"i"}}, Case{"Missing", Head(7, "{}"), {"i"}},
        Case{"RoundedDownToNothing", Head(7, "{0.4}"), {"", 0}},
        Case{"TieToEvenBelow", Head(7, "{2.5}"), {"", 2}},
        Case{"TieToEvenAbove", Head(7, "{3.5}"), {"", 4}},
        Case{"Hexadecimal", Head(7, "{0x10}"), {"i"}}, Case{"Exponent", Head(7, "{5E1}"), {"", 50}},
        Case{"BeyondDouble", Head(7, "{1e309}"), {"i"}},
        Case{"TwentyDigits", Head(7, "{99999999999999999999}"), {"i"}},
        Case{"LeadingBlanks", Head(7, "{  70}"), {"", 70}},
        Case{"TextBehind", Head(7, "{70 ms}"), {"", 70}},
        Case{"CommaEndsTheNumber", Head(7, "{1,5}"), {"", 1}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Pitch, ToneProgramTest,
    testing::Values(
        Case{"One", Body({"<1>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"JustAboveOne", Body({"<1.5>", "\\500"}), {"", 50, false, {{2, 500}}}},
        Case{"RoundedDownToOne", Body({"<1.2>", "\\500"}), {"", 50, false, {{1, 500}}}},
        Case{"Two", Body({"<2>", "\\500"}), {"", 50, false, {{2, 500}}}},
        Case{"Highest", Body({"<32000>", "\\500"}), {"", 50, false, {{32000, 500}}}},
        Case{"TooHigh", Body({"<32001>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"SlightlyTooHigh", Body({"<32000.5>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"FarTooHigh", Body({"<99999999999999999999>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"BeyondDouble", Body({"<1e309>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"Negative", Body({"<-440>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"Empty", Body({"<>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"BareSign", Body({"<+>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"Hexadecimal", Body({"<0x10>", "\\500"}), {"i", 50, false, {{0, 500}}}},
        Case{"CommaForAPoint", Body({"<440,7>", "\\500"}), {"", 50, false, {{440, 500}}}},
        Case{"NotClosed", Body({"<440", "\\500"}), {"", 50, false, {{440, 500}}}},
        Case{"MarkersAnywhere", Body({"<4>4<0", "\\500"}), {"", 50, false, {{440, 500}}}},
        Case{"TieToEven", Body({"<440.5>", "\\500"}), {"", 50, false, {{440, 500}}}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Duration, ToneProgramTest,
    testing::Values(
        Case{"Zero", Body({"<440>", "\\0"}), {"i", 50, false, {{440, 0}}}},
        Case{"One", Body({"<440>", "\\1"}), {"", 50, false, {{440, 1}}}},
        Case{"Longest", Body({"<440>", "\\32000"}), {"", 50, false, {{440, 32000}}}},
        Case{"TooLong", Body({"<440>", "\\32001"}), {"i", 50, false, {{440, 0}}}},
        Case{"RoundedDownToNothing", Body({"<440>", "\\0.5"}), {"", 50, false, {{440, 0}}}},
        Case{"MarkersAnywhere", Body({"<440>", "\\5\\00"}), {"", 50, false, {{440, 500}}}},
        Case{"MissingMarker", Body({"<440>", "500"}), {"i", 50, false, {{440, 500}}}},
        Case{"BlankBeforeMarker", Body({"<440>", " \\500"}), {"i", 50, false, {{440, 500}}}},
        Case{"AnotherPitch", Body({"<440>", "<880>"}), {"ii", 50, false, {{440, 0}}}},
        Case{"EmptyLine", Body({"<440>", ""}), {"ii", 50, false, {{440, 0}}}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Entries, ToneProgramTest,
    testing::Values(
        Case{"None", GoodHead(), {"", 50}},
        Case{"TheShortFile",
             {"%valid%", "[info]", "{236}", "{My tune}", "{visible}", "[sound]", "{50}", "<440>",
              "\\500", "<880>", "\\250"},
             {"", 50, false, {{440, 500}, {880, 250}}}},
        Case{"OneTrailingBlankLine", Body({"<440>", "\\500", ""}), {"", 50, false, {{440, 500}}}},
        Case{"TwoTrailingBlankLines",
             Body({"<440>", "\\500", "", ""}),
             {"i", 50, false, {{440, 500}}}},
        Case{"ThreeTrailingBlankLines",
             Body({"<440>", "\\500", "", "", ""}),
             {"ii", 50, false, {{440, 500}}}},
        Case{
            "AnyLastLineIsIgnored", Body({"<440>", "\\500", "<1>"}), {"", 50, false, {{440, 500}}}},
        Case{"OnlyLineEightIsIgnored", Body({"nothing"}), {"", 50}},
        Case{"LineEightBeginsNoEntry",
             Body({"440>", "<440>", "\\500"}),
             {"i", 50, false, {{440, 500}}}},
        Case{"LineEightAfterABlank", Body({" <440>", "\\500"}), {"i", 50}},
        Case{"OutOfStep",
             Body({"<440>", "<880>", "\\250", "<220>", "\\100"}),
             {"iii", 50, false, {{440, 0}, {220, 100}}}},
        Case{"BothValuesFail", Body({"<0>", "\\0"}), {"ii", 50, false, {{0, 0}}}}),
    NameOf);

INSTANTIATE_TEST_SUITE_P(
    Damaged, ToneProgramTest,
    testing::Values(Case{"EveryHeadLine",
                         {"invalid", "[inf]", "{300}", "", "{seen}", "[sounds]", "{none}"},
                         {"iiviii", 0}},
                    Case{"Nothing", {}, {"iiiii", 0}}, Case{"OneWord", {"hello"}, {"iiiii", 0}},
                    Case{"OnlyTheMarker", {"%valid%"}, {"iiii", 0}},
                    Case{"NulBytes", Head(1, std::string("va\0lid", 6)), {"i", 50}},
                    Case{"NulBehindANumber",
                         Body({std::string("<440\0>", 6), "\\500"}),
                         {"", 50, false, {{440, 500}}}}),
    NameOf);

TEST(ToneProgram, CleanedLinesAreStoredBack) {
  const Checked checked = Check(
      {"%valid%", "[info]", "{236}", "{My tune}", "{Visible}", "[sound]", "{50}", "<440>", "\\500"},
      9);
  EXPECT_EQ(LinesOf(checked.state, 9), (Lines{"valid", "[info]", "236", "{My tune}", "Visible",
                                              "[sound]", "50", "440", "500"}));
}

TEST(ToneProgram, TheIndexesStandBehindTheLastEntry) {
  const auto [state, program, findings] = Check(Body({"<440>", "\\500", "<880>", "\\250"}), 11);
  EXPECT_EQ(state.position, 12);
  EXPECT_EQ(state.entry_index, 3);
  EXPECT_EQ(program.ToneCount(), 2);
  EXPECT_EQ(state.line_count, 5);
}

TEST(ToneProgram, TheNameIsLineFourAsItStands) {
  EXPECT_EQ(Check(GoodHead(), 7).program.name, "{My tune}");
}

TEST(ToneProgram, ATonesLineIsThatOfItsPitch) {
  const ToneProgram program = Check(Body({"x", "<440>", "\\500", "<880>", "\\250"}), 12).program;
  EXPECT_EQ(program.tones, (std::vector<Tone>{{440, 500, 9}, {880, 250, 11}}));
}

TEST(ToneProgram, LinesThatOnlyTheCountKnowsAreEmpty) {
  const Checked checked = Check(Body({"<440>", "\\500"}), 12);
  EXPECT_EQ(Letters(checked.findings), "ii");
  EXPECT_EQ(TonesOf(checked.program), (Tones{{440, 500}}));
}

TEST(ToneProgram, LinesThatTheCountDoesNotKnowAreNotRead) {
  const Checked checked = Check(Body({"<440>", "\\500", "<880>", "\\250"}), 9);
  EXPECT_EQ(Letters(checked.findings), "");
  EXPECT_EQ(TonesOf(checked.program), (Tones{{440, 500}}));
}

TEST(ToneProgram, TheLongestProgramHas996Tones) {
  Lines entries;
  for (int tone = 0; tone < 996; ++tone) entries.insert(entries.end(), {"<440>", "\\500"});
  const Checked checked = Check(Body(entries), 1999);
  EXPECT_EQ(Letters(checked.findings), "");
  EXPECT_EQ(checked.program.ToneCount(), 996);
  EXPECT_EQ(checked.program.ToneAt(996).pitch_hz, 440);
  EXPECT_EQ(checked.program.ToneAt(997).pitch_hz, 0);
}

TEST(ToneProgram, LinesBeyondTheTableAreAnError) {
  EXPECT_THROW(Check(GoodHead(), 2002), base::RuntimeError);
}

// The tables keep what they hold: the pitch is there, its tone is not counted.
TEST(ToneProgram, TheEndOfTheTableWithinAnEntryLeavesItsPitch) {
  Lines lines = GoodHead();
  lines.resize(1999, "x");
  lines.push_back("<440>");
  ParseState state = StateOf(lines);
  ToneProgram program;
  EXPECT_THROW(CheckProgram(state, program, 2002), base::RuntimeError);
  EXPECT_EQ(program.ToneCount(), 0);
  EXPECT_EQ(program.ToneAt(1), (Tone{440, 0, 2000}));
  EXPECT_EQ(program.ToneAt(2), Tone{});
  EXPECT_EQ(program.ToneAt(0), Tone{});
}

TEST(ToneProgram, ALineCountBeyond16BitsIsAnOverflow) {
  ParseState state = StateOf(GoodHead());
  ToneProgram program;
  ProgramChecks checks(state, program);
  EXPECT_NO_THROW(checks.BeginEntries(32773));
  EXPECT_EQ(state.line_count, 32767);
  try {
    checks.BeginEntries(32774);
    FAIL() << "no overflow";
  } catch (const base::RuntimeError& error) {
    EXPECT_EQ(error.code(), base::ErrorCode::kOverflow);
  }
}

TEST(ToneProgram, ATableEndsAtIndex2000) {
  Table<std::int16_t> table;
  table[2000] = 7;
  EXPECT_EQ(table[2000], 7);
  EXPECT_THROW(table[2001], base::RuntimeError);
  EXPECT_THROW(table[-1], base::RuntimeError);
}

}  // namespace
}  // namespace program_files
