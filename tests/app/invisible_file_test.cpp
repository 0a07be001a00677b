// A file that is only to be heard.
#include "tests/app/player_start_fixture.h"

namespace app {
namespace {

using program_files::FileOf;
using program_files::Invisible;
using program_files::kFile;
using program_files::ProgramWith;

const program_files::Tones kTwoTones{{440, 500}, {880, 250}};

struct InvisibleCase {
  std::string sound_mode;
  int dpi;
  Lines messages;
};

class InvisibleFileTest : public PlayerStartTest,
                          public testing::WithParamInterface<InvisibleCase> {
 protected:
  Lines Shown() const {
    Lines shown;
    for (const std::string& text : sim.journal.Texts({Kind::kWindow})) {
      if (text.ends_with(" shown")) shown.push_back(text);
    }
    return shown;
  }

  // With everything switched on that could open a window.
  void PutSettings() {
    sim.files.Put(kSettings, "AutoUpdate=y\r\nSoundBit=" + GetParam().sound_mode +
                                 "\r\nLanguage=NL\r\nSendData=n\r\nMicrophone=1\r\n"
                                 "MicrophoneON=y\r\n");
    sim.files.Put(kFile, FileOf(Invisible(ProgramWith(kTwoTones))));
    sim.environment.arguments = kFile;
    sim.screen.pixels_per_inch = {GetParam().dpi, GetParam().dpi};
    sim.downloader.answers["https://www.tonmira.example/testcon.dat"] = {"ok"};
  }
};

TEST_P(InvisibleFileTest, ShowsNoWindowAndTheProgramEndsAfterTheLastTone) {
  PutSettings();
  EXPECT_TRUE(Run());
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880"}));
  EXPECT_EQ(Shown(), Lines{});
  EXPECT_EQ(Messages(), GetParam().messages);
  EXPECT_EQ(sim.journal.entries().back().text, "end");
  EXPECT_TRUE(sim.processes.running.empty());
  EXPECT_TRUE(sim.waves.playing.empty());
}

// The question is the user's own wish; nothing else comes up beside it.
TEST_P(InvisibleFileTest, OnlyAnUpdateThatTheUserWantsToHearOfIsOffered) {
  PutSettings();
  sim.downloader.answers["https://www.tonmira.example/updatetonmira.txt"] = {
      "999\r\nhttp://a.example/new\r\n"};
  sim.At(10s, [this] { program->form7.Command2.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Shown(), Lines{"Form7 shown"});
  EXPECT_EQ(PitchesShown(), (Lines{"440", "880"}));
}

const Lines kWarned{"exclamation [Warning] DPI settings could cause problems!"};

INSTANTIATE_TEST_SUITE_P(Surroundings, InvisibleFileTest,
                         testing::Values(InvisibleCase{"16", 96, {}}, InvisibleCase{"32", 96, {}},
                                         InvisibleCase{"64", 96, {}}, InvisibleCase{"128", 96, {}},
                                         InvisibleCase{"256", 96, {}},
                                         InvisibleCase{"256", 120, kWarned},
                                         InvisibleCase{"16", 144, kWarned}),
                         [](const auto& surroundings) {
                           return surroundings.param.sound_mode + "At" +
                                  std::to_string(surroundings.param.dpi);
                         });

}  // namespace
}  // namespace app
