// What a program that was ended by force has left, and who clears it away.
#include "app/leftovers.h"

#include "base/errors.h"
#include "tests/app/fixture.h"

namespace app {
namespace {

constexpr char kSettingsBeside[] = "C:\\Users\\Tom\\AppData\\Roaming\\tonmira.ini.16c.tmp";

class LeftoversTest : public ProgramTest {
 protected:
  void PutLeftovers() {
    for (const char* name :
         {"tnfwinmmtmp.wav", "tnfwinmmtmp.wav.16c.tmp", "sound.ini", "testcon.dat",
          "testcon.dat.4711-2.tmp", "updatetonmira.txt.4711-1.tmp", "testhearing.ini",
          "error.log.16C.TMP", "test.txt"}) {
      sim.files.Put(std::string("C:\\Temp\\") + name, "left");
    }
    sim.files.Put(kSettingsBeside, "AutoUpdate=y\r\n");
  }

  void PutFilesOfOthers() {
    for (const std::string& path : others_) sim.files.Put(path, "not mine");
  }

  void ExpectFilesOfOthers() const {
    for (const std::string& path : others_) EXPECT_TRUE(sim.files.Get(path)) << path;
  }

 private:
  const Lines others_{"C:\\Temp\\a.tmp",
                      "C:\\Temp\\snd.ini",
                      "C:\\Temp\\updatetonmira.txt",
                      "C:\\Temp\\tnfwinmmtmp.wav.bak",
                      "C:\\Temp\\mytnfwinmmtmp.wav",
                      "C:\\Temp\\folder\\testcon.dat.1.tmp",
                      "C:\\Users\\Tom\\AppData\\Roaming\\other.ini.16c.tmp"};
};

TEST_F(LeftoversTest, TheNextStartDeletesThemAndNothingElse) {
  PutLeftovers();
  PutFilesOfOthers();
  EXPECT_FALSE(Run());
  ExpectFilesOfOthers();
  EXPECT_EQ(sim.files.PathsIn("C:\\Temp"),
            (Lines{"C:\\Temp\\a.tmp", "C:\\Temp\\mytnfwinmmtmp.wav", "C:\\Temp\\snd.ini",
                   "C:\\Temp\\tnfwinmmtmp.wav.bak", "C:\\Temp\\updatetonmira.txt", kLog}));
  EXPECT_FALSE(sim.files.Exists(kSettingsBeside));
  EXPECT_EQ(sim.files.Get(kSettings), GoodSettings());
}

TEST_F(LeftoversTest, WhatMayBelongToAnotherCopyStays) {
  PutLeftovers();
  sim.processes.running = {{1, "Tonmira.exe"}, {2, "tonmira.exe"}};
  EXPECT_FALSE(Run());
  EXPECT_TRUE(sim.files.Exists(kWave));
  EXPECT_TRUE(sim.files.Exists(kSettingsBeside));
}

TEST_F(LeftoversTest, ThisCopyAmongTheProcessesIsNoOther) {
  PutLeftovers();
  sim.processes.running = {{1, "tonmira.exe"}, {2, "mytonmira.exe"}};
  EXPECT_FALSE(Run());
  EXPECT_FALSE(sim.files.Exists(kWave));
  EXPECT_FALSE(sim.files.Exists(kSettingsBeside));
}

TEST_F(LeftoversTest, OneThatIsHeldDoesNotKeepTheOthersNorTheStart) {
  PutLeftovers();
  sim.files.Lock("C:\\Temp\\tnfwinmmtmp.wav");
  EXPECT_FALSE(Run());
  EXPECT_TRUE(sim.files.Exists(kWave));
  EXPECT_FALSE(sim.files.Exists("C:\\Temp\\sound.ini"));
  EXPECT_FALSE(sim.files.Exists(kSettingsBeside));
  EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
}

TEST_F(LeftoversTest, TheRegularEndLeavesNeitherTheHearingTestsFileNorASecondWaveFile) {
  sim.processes.running = {{1, "tonmira.exe"}, {2, "tonmira.exe"}};
  sim.files.Put(kWave, "the other copy's");
  sim.files.Lock(kWave);
  At(1s, [](Form1& form1) {
    form1.Option9.Click();
    form1.Command2.Click();
    form1.Option3.Click();
    form1.Command2.Click();
  });
  At(2s, [this](Form1& form1) {
    EXPECT_EQ(sim.files.PathsIn("C:\\Temp").size(), 4u);
    form1.Close();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), (Lines{kWave, kLog}));
}

TEST_F(LeftoversTest, AnUnusableFolderIsNoError) {
  sim.environment.variables["TEMP"] = "";
  Leftovers(sim.services).ClearAtStart();
  sim.environment.variables["TEMP"] = "Z:\\nowhere";
  Leftovers(sim.services).ClearAtEnd({});
  EXPECT_TRUE(sim.journal.entries().empty());
}

}  // namespace
}  // namespace app
