// Files that are no tone programs, or not quite, or not there any more.
#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

Lines Times(std::size_t count, const std::string& text) {
  return Lines(count, text);
}

// A program of `count` lines, all legal.
Lines Long(std::size_t count) {
  Lines lines = GoodHead();
  while (lines.size() + 2 <= count) lines.insert(lines.end(), {"<440>", "\\1"});
  if (lines.size() < count) lines.push_back("");
  return lines;
}

class BadFileTest : public PlayerTest {
 protected:
  std::size_t TonesPlayed() const { return Entries(std::string("create ") + kHandOver).size(); }

  void ExpectNeverShown() const {
    for (const std::string& text : sim.journal.Texts({Kind::kWindow})) {
      EXPECT_FALSE(text.ends_with("shown")) << text;
    }
  }
};

// A damaged file: its messages, then what could be read of it is played and the program ends.
struct Damage {
  std::string name;
  std::string bytes;
  Lines messages;
  Lines pitches;
};

class DamageTest : public BadFileTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamageTest, HasItsMessagesThenPlaysWhatWasReadAndEnds) {
  EXPECT_TRUE(Open(GetParam().bytes));
  EXPECT_EQ(Messages(), GetParam().messages);
  EXPECT_EQ(PitchesShown(), GetParam().pitches);
  // What sounds can be stopped and left: it stands behind a window of its own.
  EXPECT_EQ(Entries("Form9 shown").size(), 1u);
  EXPECT_EQ(sim.journal.entries().back().text, "end");
}

std::string Utf16(const std::string& text) {
  std::string bytes = "\xff\xfe";
  for (const char c : text) bytes += {c, '\0'};
  return bytes;
}

const Lines kTune = ProgramWith({{440, 500}, {880, 250}});

Lines With(std::size_t line, const std::string& text) {
  Lines lines = kTune;
  lines[line - 1] = text;
  return lines;
}

std::string Joined(const Lines& lines, const std::string& line_end) {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + line_end;
  return bytes;
}

INSTANTIATE_TEST_SUITE_P(
    Files, DamageTest,
    testing::Values(
        Damage{"Empty", "", Times(5, kIllegal), {"0"}},
        Damage{"OneByte", "x", Times(5, kIllegal), {"0"}},
        Damage{"OneLineFeed", "\n", Times(5, kIllegal), {"0"}},
        Damage{"Version", FileOf(With(3, "{237}")), {kIncompatible}, {"440", "880"}},
        Damage{"MessagesInFileOrder",
               FileOf({"", "[info]", "{300}", "", "{seen}", "[sound]", "{50}", "<0>", "500"}),
               {kIllegal, kIncompatible, kIllegal, kIllegal, kIllegal},
               {"0"}},
        Damage{"SecondEntry", FileOf(With(10, "880")), {kIllegal}, {"440"}},
        Damage{"LineFeedsOnly", Joined(kTune, "\n"), Times(5, kIllegal), {"0"}},
        Damage{"Utf8Mark", "\xef\xbb\xbf" + FileOf(kTune), {kIllegal}, {"440", "880"}},
        // Every CR ends a line and every line but the first begins with half of a character.
        Damage{"Utf16", Utf16(FileOf(GoodHead())), Times(5, kIllegal), {"0"}},
        Damage{"NulInTheMarker",
               FileOf(With(1, std::string("%va\0lid%", 8))),
               {kIllegal},
               {"440", "880"}},
        Damage{"OnlyNuls", std::string(1000, '\0'), Times(5, kIllegal), {"0"}},
        Damage{"BareSign", FileOf(With(8, "<->")), {kIllegal}, {"0", "880"}},
        Damage{"FarTooLarge", FileOf(With(8, "<1e309>")), {kIllegal}, {"0", "880"}},
        Damage{"LongLineInPlaceOfAPitch",
               FileOf(With(8, std::string(10 << 20, 'x'))),
               Times(2, kIllegal),
               {"880"}},
        Damage{"TwoTrailingBlankLines", FileOf(kTune) + "\r\n\r\n", {kIllegal}, {"440", "880"}}),
    [](const auto& damage) { return damage.param.name; });

// Files that look odd and are legal.
class OddFileTest : public BadFileTest, public testing::WithParamInterface<Damage> {};

TEST_P(OddFileTest, IsPlayed) {
  EXPECT_FALSE(Open(GetParam().bytes));
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(PitchesShown(), GetParam().pitches);
  EXPECT_TRUE(player().Visible());
}

INSTANTIATE_TEST_SUITE_P(
    Files, OddFileTest,
    testing::Values(
        Damage{"LoneCarriageReturns", Joined(kTune, "\r"), {}, {"440", "880"}},
        Damage{
            "NoLastLineEnd", FileOf(kTune).substr(0, FileOf(kTune).size() - 2), {}, {"440", "880"}},
        Damage{"MixedLineEnds",
               "%valid%\r[info]\r\n{236}\rMy\ntune\r\n{visible}\r\n[sound]\r{50}\r\n<440>\r\\500",
               {},
               {"440"}},
        Damage{"OneTrailingBlankLine", FileOf(kTune) + "\r\n", {}, {"440", "880"}},
        Damage{"LongName", FileOf(With(4, std::string(10 << 20, '%'))), {}, {"440", "880"}},
        Damage{"LongMarker",
               FileOf(With(1, std::string(10 << 20, '%') + "valid")),
               {},
               {"440", "880"}},
        Damage{"NulBehindThePitch", FileOf(With(8, std::string("<440\0>", 6))), {}, {"440", "880"}},
        Damage{"CommaForAPoint", FileOf(With(8, "<440,5>")), {}, {"440", "880"}}),
    [](const auto& odd) { return odd.param.name; });

TEST_F(BadFileTest, AFileOf1999LinesIsPlayed) {
  EXPECT_FALSE(Open(Long(1999), "32"));
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(TonesPlayed(), 996u);
}

TEST_F(BadFileTest, TheTwoThousandthLineIsIllegalAndWhatWasReadIsPlayed) {
  EXPECT_TRUE(Open(Long(2000), "32"));
  EXPECT_EQ(Messages(), (Lines{kIllegal}));
  EXPECT_EQ(TonesPlayed(), 996u);
}

// One bad line among tones of 32 s: without its window, nearly nine hours without an end.
TEST_F(BadFileTest, StopEndsTheToneThatSoundsAndWithItTheProgram) {
  Lines lines = GoodHead();
  for (int tone = 0; tone < 990; ++tone) lines.insert(lines.end(), {"<440>", "\\32000"});
  lines[lines.size() - 1] = "500";
  At(1s, [](Form9& player) {
    EXPECT_TRUE(player.Visible());
    EXPECT_TRUE(player.Command2.Enabled());
    player.Command2.Click();
  });
  EXPECT_TRUE(Open(lines));
  EXPECT_EQ(sim.pump.now_ms(), 32050);
  EXPECT_EQ(TonesPlayed(), 1u);
}

TEST_F(BadFileTest, ExitEndsADamagedFileForALaterVersion) {
  Lines lines = ProgramWith(Tones(990, {440, 32000}));
  lines[2] = "{237}";
  At(1s, [](Form9& player) { player.Command3.Click(); });
  EXPECT_TRUE(Open(lines));
  EXPECT_EQ(Messages(), (Lines{kIncompatible}));
  EXPECT_EQ(sim.pump.now_ms(), 32050);
  EXPECT_EQ(sim.waves.playing, "");
}

TEST_F(BadFileTest, ADamagedFileThatIsToBeInvisibleIsNeverShown) {
  EXPECT_TRUE(Open(Invisible(With(3, "{237}"))));
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880"}));
  ExpectNeverShown();
}

TEST_F(BadFileTest, LinesBeyondTheTableEndTheLoadAfterOneMessage) {
  for (const std::size_t count : {2001u, 100000u}) {
    sim.journal.Clear();
    EXPECT_TRUE(Open(Long(count)));
    EXPECT_EQ(Messages(), (Lines{kIllegal}));
    EXPECT_EQ(TonesPlayed(), 0u);
    ExpectNeverShown();
  }
}

TEST_F(BadFileTest, MoreTextThanCanBeKeptIsIllegal) {
  EXPECT_TRUE(Open(std::string(17 << 20, 'x')));
  EXPECT_EQ(Messages(), (Lines{kIllegal}));
  EXPECT_EQ(TonesPlayed(), 0u);
}

TEST_F(BadFileTest, AFileThatIsGoneBeforeTheLoadIsIllegal) {
  EXPECT_TRUE(Load(base::SoundMode::kWinmm));
  EXPECT_EQ(Messages(), (Lines{kIllegal}));
  EXPECT_EQ(TonesPlayed(), 0u);
}

TEST_F(BadFileTest, AFileThatCannotBeReadSaysSoAndTheProgramEnds) {
  for (const Operation operation : {Operation::kOpenForReading, Operation::kRead}) {
    sim.journal.Clear();
    sim.files.Heal();
    sim.files.Fail(operation, kFile, ErrorCode::kPermissionDenied);
    EXPECT_TRUE(Open(kTune));
    EXPECT_EQ(Messages(), (Lines{kIllegal}));
    EXPECT_EQ(TonesPlayed(), 0u);
    ExpectNeverShown();
  }
}

TEST_F(BadFileTest, AFileThatCannotBeReadTheSecondTimeSaysSoAndPlaysNothing) {
  sim.messages.while_open = [this] {
    sim.files.Fail(Operation::kOpenForReading, kFile, ErrorCode::kPermissionDenied);
  };
  EXPECT_TRUE(Open(With(1, "invalid")));
  EXPECT_EQ(Messages(), Times(2, kIllegal));
  EXPECT_EQ(TonesPlayed(), 0u);
  ExpectNeverShown();
}

TEST_F(BadFileTest, AFileThatVanishesBetweenThePassesPlaysNoneOfItsTones) {
  sim.messages.while_open = [this] { sim.files.Delete(kFile); };
  EXPECT_TRUE(Open(With(1, "invalid")));
  EXPECT_EQ(Messages(), Times(2, kIllegal));
  EXPECT_EQ(PitchesShown(), Lines{});
}

TEST_F(BadFileTest, AFileThatShrinksBetweenThePassesIsReadSoFar) {
  sim.messages.while_open = [this] { sim.files.Put(kFile, FileOf(ProgramWith({{1, 1}}))); };
  EXPECT_TRUE(Open(With(1, "invalid")));
  EXPECT_EQ(Messages(), (Lines{kIllegal}));
  EXPECT_EQ(PitchesShown(), (Lines{"440"}));
}

TEST_F(BadFileTest, AFileThatGrowsBetweenThePassesHasEmptyLines) {
  sim.messages.while_open = [this] {
    sim.messages.while_open = nullptr;
    sim.files.Put(kFile, FileOf(Long(13)));
  };
  EXPECT_TRUE(Open(With(1, "invalid")));
  EXPECT_EQ(Messages(), Times(2, kIllegal));
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880"}));
}

TEST_F(BadFileTest, AFileThatGrowsBeyondTheLineCountKeepsNoTones) {
  sim.messages.while_open = [this] { sim.files.Put(kFile, std::string(40000, '\r')); };
  EXPECT_TRUE(Open(With(1, "invalid")));
  EXPECT_EQ(Messages(), (Lines{kIllegal}));
  EXPECT_EQ(PitchesShown(), (Lines{"0"}));
}

}  // namespace
}  // namespace program_files
