// The program, started with a tone program file: what the player and the windows around it do.
#include "tests/app/player_start_fixture.h"

namespace app {
namespace {

using program_files::Form9;
using program_files::kFile;
using program_files::ProgramWith;

const program_files::Tones kTwo{{440, 500}, {880, 250}};

TEST_F(PlayerStartTest, AfterThePlayThePlayerWaitsForItsUser) {
  EXPECT_FALSE(Open(ProgramWith(kTwo)));
  EXPECT_TRUE(player().Visible());
  EXPECT_FALSE(main().Visible());
  EXPECT_EQ(player().Caption(), "Tonmira");
  EXPECT_EQ(player().Label4.Caption(), kFile);
  EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
}

TEST_F(PlayerStartTest, ExitUnloadsTheMainWindowBeforeTheProcessEnds) {
  At(5s, [this](Form9& player) {
    sim.journal.Clear();
    sim.files.Put("C:\\Temp\\tnftmp.wav", "old");
    player.Command3.Click();
  });
  EXPECT_TRUE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(sim.journal.Texts({Kind::kFile, Kind::kSound, Kind::kProcess}),
            (Lines{"delete C:\\Temp\\tnftmp.wav", "stop 0x2", "end"}));
}

TEST_F(PlayerStartTest, LoadingUnloadsTheNewsWindow) {
  sim.files.Put("C:\\a.tnf", program_files::FileOf(ProgramWith(kTwo)));
  bool loaded_later = true;
  sim.At(1s, [this] {
    program->form3.Show();
    player().SetFilePath("C:\\a.tnf");
    player().SetSoundMode(base::SoundMode::kWinmm);
    player().Show();
  });
  sim.At(1500ms, [&, this] { loaded_later = program->form3.Loaded(); });
  Run();
  EXPECT_FALSE(loaded_later);
}

TEST_F(PlayerStartTest, AFileThatCannotBeReadHasItsMessageAndTheProgramEnds) {
  sim.files.Fail(platform::simulated::Operation::kRead, kFile, base::ErrorCode::kPermissionDenied);
  EXPECT_TRUE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(PitchesShown(), Lines{});
  EXPECT_EQ(Messages(), Lines{program_files::kIllegal});
  EXPECT_EQ(Entries("shown"), Lines{});
}

TEST_F(PlayerStartTest, AToneThatCannotBePlayedIsInTheActivityLog) {
  sim.At(200ms, [this] {
    sim.files.Fail(platform::simulated::Operation::kWrite, kWave, base::ErrorCode::kDiskFull);
  });
  EXPECT_FALSE(Open(ProgramWith(kTwo)));
  EXPECT_EQ(player().Label1.Caption(), "1");
  EXPECT_EQ(LogEntries()[LogEntries().size() - 2], ">>> Tone 2 cannot be played: Disk full");
  EXPECT_EQ(Messages(), Lines{});
}

TEST_F(PlayerStartTest, TheSoundModeIsThatOfTheSettings) {
  const std::vector<std::pair<std::string, Lines>> starts{
      {"16", Lines(2, "start hidden cmd /c \"C:\\Tonmira\\play16.exe\"")},
      {"32", Lines(2, "start hidden tone32.dll")},
      {"64", {}},
      {"128", {}},
      {"256", {}}};
  for (const auto& [sound_mode, started] : starts) {
    sim.journal.Clear();
    EXPECT_FALSE(Open(ProgramWith(kTwo), sound_mode));
    EXPECT_EQ(Entries("start hidden"), started) << sound_mode;
    EXPECT_EQ(Entries("play ").size(), started.empty() ? 2u : 0u) << sound_mode;
  }
}

}  // namespace
}  // namespace app
