// Faults while it plays: the play ends there, the window shows where, and it can be started again.
#include "tests/program_files/player_fixture.h"

namespace program_files {
namespace {

const Lines kSong = ProgramWith({{440, 500}, {880, 250}});

class PlayFaultTest : public PlayerTest {
 protected:
  std::size_t TonesPlayed() const { return Entries(std::string("create ") + kHandOver).size(); }
};

TEST_F(PlayFaultTest, AHelperThatCannotStartEndsThePlayAndTheWindowSaysWhere) {
  sim.processes.missing_commands = {"tone32.dll"};
  At(5s, [this](Form9& player) {
    EXPECT_EQ(TonesPlayed(), 1u);
    sim.processes.missing_commands.clear();
    EXPECT_TRUE(player.Command1.Enabled());
    EXPECT_EQ(player.Label6.Caption(), "");
    EXPECT_EQ(player.Label8.Caption(), "");
    EXPECT_EQ(player.Label1.Caption(), "0");
    EXPECT_EQ(player.ProgressBar1.Value(), 0);
    EXPECT_EQ(logged, Lines{">>> Tone 1 cannot be played: File not found"});
    player.Command1.Click();
  });
  EXPECT_FALSE(Open(kSong, "32"));
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(TonesPlayed(), 1u + 2u);
  EXPECT_EQ(Entries("start hidden").size(), 2u);
  EXPECT_TRUE(player().Visible());
}

TEST_F(PlayFaultTest, AMissingClassicHelperEndsThePlayAndTheWindowSaysWhere) {
  for (const std::string name : {"play16.exe", "tone16.dll"}) {
    const auto removed = sim.files.Get("C:\\Tonmira\\" + name);
    sim.files.Delete("C:\\Tonmira\\" + name);
    logged.clear();
    EXPECT_FALSE(Open(kSong, "16"));
    EXPECT_EQ(player().Label1.Caption(), "0") << name;
    EXPECT_EQ(logged, Lines{">>> Tone 1 cannot be played: File not found"}) << name;
    EXPECT_EQ(Entries("start hidden"), Lines{});
    sim.files.Put("C:\\Tonmira\\" + name, *removed);
  }
}

TEST_F(PlayFaultTest, ADiskThatFillsUpEndsThePlayAndTheWindowSaysWhere) {
  for (const std::string mode : {"64", "128", "256"}) {
    sim.journal.Clear();
    logged.clear();
    sim.At(std::chrono::milliseconds(sim.pump.now_ms() + 200),
           [this] { sim.files.Fail(Operation::kWrite, kWave, ErrorCode::kDiskFull); });
    EXPECT_FALSE(Open(ProgramWith({{440, 500}, {880, 32000}, {1760, 500}}), mode));
    EXPECT_EQ(player().Label1.Caption(), "1") << mode;
    EXPECT_EQ(player().Label2.Caption(), "3");
    EXPECT_EQ(player().ProgressBar1.Value(), 1);
    EXPECT_EQ(player().Label6.Caption() + player().Label8.Caption(), "");
    EXPECT_TRUE(player().Command1.Enabled());
    EXPECT_EQ(Entries("play ").size(), 1u);
    EXPECT_EQ(logged, Lines{">>> Tone 2 cannot be played: Disk full"});
    EXPECT_EQ(Messages(), Lines{});
    sim.files.Heal();
  }
}

TEST_F(PlayFaultTest, AHandOverFileThatCannotBeWrittenEndsThePlayQuietly) {
  sim.files.Fail(Operation::kOpenForWriting, kHandOver, ErrorCode::kDiskFull);
  EXPECT_FALSE(Open(kSong));
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_EQ(TonesPlayed(), 0u);
  EXPECT_TRUE(player().Visible());
  EXPECT_FALSE(sim.files.Exists(kErrorLog));
  EXPECT_EQ(logged, Lines{">>> Tone 1 cannot be played: Disk full"});
}

TEST_F(PlayFaultTest, AnInvisiblePlayThatFailsEndsTheProgram) {
  sim.files.Fail(Operation::kOpenForWriting, kHandOver, ErrorCode::kDiskFull);
  EXPECT_TRUE(Open(Invisible(kSong)));
  EXPECT_EQ(Messages(), Lines{});
}

TEST_F(PlayFaultTest, TheLongestToneWithTheLongestExtraTimeIsHeardWhole) {
  Lines lines = ProgramWith({{440, 32000}, {880, 500}});
  lines[6] = "{32000}";
  for (const std::string mode : {"64", "128", "256", "32"}) {
    const auto begin = sim.pump.now_ms();
    sim.journal.Clear();
    EXPECT_FALSE(Open(lines, mode));
    EXPECT_EQ(PitchesShown(), (Lines{"440", "880"})) << mode;
    EXPECT_EQ(player().Label1.Caption(), "2");
    EXPECT_EQ(sim.pump.now_ms() - begin, 64000 + 32500) << mode;
    EXPECT_EQ(Entries("play ").size(), mode == "32" ? 0u : 2u);
  }
}

TEST_F(PlayFaultTest, AWaveFileThatAnotherCopyPlaysIsLeftToIt) {
  sim.files.Put(kWave, "the other copy's tone");
  sim.files.Fail(Operation::kDelete, kWave, ErrorCode::kPermissionDenied);
  sim.files.Fail(Operation::kOpenForWriting, kWave, ErrorCode::kPermissionDenied);
  EXPECT_FALSE(Open(kSong, "128"));
  const std::string own = std::string(kWave) + ".1a2b.tmp";
  EXPECT_EQ(Entries("play "), (Lines{"play " + own + " 0x20009", "play " + own + " 0x20009"}));
  EXPECT_EQ(sim.files.Get(kWave), "the other copy's tone");
  EXPECT_FALSE(sim.files.Exists(own));
}

}  // namespace
}  // namespace program_files
