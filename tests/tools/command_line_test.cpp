// tnf as its user meets it: arguments, output, exit codes.
#include "tools/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/program_files/tone_files.h"
#include "tests/tools/fake_surroundings.h"
#include "tone/wave_image.h"

namespace tools {
namespace {

using program_files::FileOf;
using program_files::Lines;
using program_files::ProgramWith;
using testing::Test;

class TnfTest : public Test {
 protected:
  TnfTest() {
    around.files["good.tnf"] = FileOf(ProgramWith({{440, 450}, {22050, 450}, {32000, 950}}));
    around.files["bad.tnf"] = "x";
    around.files["tune.txt"] = "A tune:d=4,o=5,b=120:a,b";
  }

  int Run(const Lines& arguments) { return around.Run(arguments); }

  // Nothing but a hint to the help.
  void ExpectRefused(const Lines& arguments) {
    EXPECT_EQ(Run(arguments), 2) << testing::PrintToString(arguments);
    EXPECT_EQ(around.output, "");
    EXPECT_TRUE(around.errors.starts_with("tnf: ")) << around.errors;
    EXPECT_TRUE(around.errors.ends_with("\n\"tnf --help\" tells more.\n")) << around.errors;
  }

  FakeSurroundings around;
};

TEST_F(TnfTest, HelpAndVersionAreAskedFor) {
  EXPECT_EQ(Run({"--version"}), 0);
  EXPECT_EQ(around.output, "tnf 2.3.6\n");
  for (const Lines& command : {Lines{},
                               {"check"},
                               {"info"},
                               {"render"},
                               {"import"},
                               {"import", "rtttl"},
                               {"import", "morse"},
                               {"export", "rtttl"}}) {
    Lines arguments = command;
    arguments.emplace_back("--help");
    EXPECT_EQ(Run(arguments), 0);
    EXPECT_NE(around.output.find("Usage: tnf"), std::string::npos);
    EXPECT_EQ(around.errors, "");
  }
}

TEST_F(TnfTest, EveryCommandsHelpNamesItsArguments) {
  const std::string program =
      "  FILE                        The tone program; - is standard input\n";
  const std::string output = "         The file to write; - is standard output\n";
  const std::string octave =
      "  --a440 OCTAVE               The octave whose A is 440 Hz: 4, or 5 as in older tables\n";
  const std::vector<std::pair<Lines, Lines>> wanted{
      {{"check"}, {"  FILE ...                    Tone programs; - is standard input\n"}},
      {{"info"}, {program}},
      {{"render"},
       {program, "  -o,--output OUT.wav" + output,
        "  --smooth                    Fade the edges of each tone, so that none clicks\n"}},
      {{"import", "rtttl"},
       {"  FILE                        The text; standard input if none is named\n", octave,
        "  -o,--output OUT.tnf" + output}},
      {{"import", "morse"},
       {"  TEXT                        The text to send\n",
        "  --speed MS                  ms added to every symbol, 0 to 500\n",
        "  --pitch HZ                  Pitch in Hz, 50 to 32000; 700 if not said\n",
        "  --textbook                  The standard's own code and timing\n",
        "  -o,--output OUT.tnf" + output}},
      {{"export", "rtttl"},
       {program,
        "  -o,--output OUT             The file to write; standard output if none is named\n",
        octave}}};
  for (const auto& [command, lines] : wanted) {
    Lines arguments = command;
    arguments.emplace_back("--help");
    Run(arguments);
    for (const std::string& line : lines) {
      EXPECT_NE(around.output.find("\n" + line), std::string::npos) << line << around.output;
    }
  }
}

TEST_F(TnfTest, WrongArgumentsEndWithTwo) {
  ExpectRefused({});
  ExpectRefused({"cheque"});
  ExpectRefused({"check"});
  ExpectRefused({"check", "--loud", "good.tnf"});
  ExpectRefused({"info"});
  ExpectRefused({"info", "good.tnf", "bad.tnf"});
  ExpectRefused({"render", "good.tnf"});
  ExpectRefused({"render", "-o", "out.wav"});
  ExpectRefused({"import"});
  ExpectRefused({"import", "rtttl", "tune.txt"});
  ExpectRefused({"import", "rtttl", "tune.txt", "-o", "out.tnf", "--a440", "6"});
  ExpectRefused({"import", "morse", "-o", "out.tnf"});
  ExpectRefused({"import", "morse", "sos", "-o", "out.tnf", "--speed", "501"});
  ExpectRefused({"import", "morse", "sos", "-o", "out.tnf", "--speed", "-1"});
  ExpectRefused({"import", "morse", "sos", "-o", "out.tnf", "--pitch", "49"});
  ExpectRefused({"import", "morse", "sos", "-o", "out.tnf", "--pitch", "32001"});
  ExpectRefused({"--color", "sometimes", "check", "good.tnf"});
  EXPECT_EQ(around.begun, Lines{});
}

TEST_F(TnfTest, TheHelpsExampleIsALegalProgram) {
  Run({"--help"});
  Lines lines;
  std::size_t at = around.output.find("  %valid%");
  ASSERT_NE(at, std::string::npos);
  for (; around.output.substr(at, 2) == "  "; at = around.output.find('\n', at) + 1) {
    lines.push_back(around.output.substr(at + 2, around.output.find('\n', at) - at - 2));
  }
  EXPECT_EQ(lines.size(), 13u);
  around.files["help.tnf"] = FileOf(lines);
  EXPECT_EQ(Run({"check", "help.tnf"}), 0);
  EXPECT_EQ(around.output, "");
}

TEST_F(TnfTest, CheckSaysNothingOfAGoodFileBesideWarnings) {
  around.files["plain.tnf"] = FileOf(ProgramWith({{440, 450}}));
  EXPECT_EQ(Run({"check", "plain.tnf"}), 0);
  EXPECT_EQ(around.output, "");
  EXPECT_EQ(Run({"check", "good.tnf"}), 0);
  EXPECT_EQ(around.output,
            "good.tnf:12:1: warning: 32000 Hz sounds as 12100 Hz in Winmm, Automatic and "
            "DirectSound\n");
}

TEST_F(TnfTest, CheckTellsProblemsAndWhatThePlayerWouldSay) {
  around.files["bad.tnf"] = FileOf(ProgramWith({{440, 0}}));
  EXPECT_EQ(Run({"check", "bad.tnf"}), 1);
  EXPECT_EQ(around.output,
            "bad.tnf:9:2: error: expected a duration above 0 and at most 32000 ms, found \"\\0\"\n"
            "bad.tnf: the player would say:\n"
            "  bad.tnf is not a legal tnf file!\n");
  EXPECT_EQ(around.errors, "");
}

TEST_F(TnfTest, CheckGoesThroughAllFilesAndReturnsTheWorst) {
  EXPECT_EQ(Run({"check", "missing.tnf", "bad.tnf", "good.tnf"}), 2);
  EXPECT_EQ(around.errors, "tnf: missing.tnf: it is not there\n");
  EXPECT_NE(around.output.find("bad.tnf:1:1: error: "), std::string::npos);
  EXPECT_NE(around.output.find("good.tnf:12:1: warning: "), std::string::npos);
  EXPECT_EQ(Run({"check", "good.tnf", "bad.tnf", "good.tnf"}), 1);
}

TEST_F(TnfTest, ColoursWhereSomebodyLooks) {
  const std::string escape = "\x1B[";
  const auto coloured = [&](const Lines& arguments) {
    Run(arguments);
    return around.output.find(escape) != std::string::npos;
  };
  EXPECT_FALSE(coloured({"check", "bad.tnf"}));
  EXPECT_TRUE(coloured({"check", "bad.tnf", "--color", "always"}));
  EXPECT_TRUE(coloured({"--colour=always", "check", "bad.tnf"}));
  around.colours = {Surroundings::Stream::kErrors};
  EXPECT_FALSE(coloured({"check", "bad.tnf"}));
  around.colours = {Surroundings::Stream::kOutput};
  EXPECT_TRUE(coloured({"check", "bad.tnf"}));
  EXPECT_FALSE(coloured({"check", "bad.tnf", "--color=never"}));
}

TEST_F(TnfTest, InfoTellsWhatIsPlayed) {
  EXPECT_EQ(Run({"info", "good.tnf"}), 0);
  EXPECT_EQ(around.output,
            "File          good.tnf\n"
            "Name          My tune\n"
            "Window        visible\n"
            "Extra time    50 ms\n"
            "Tones         3\n"
            "Rests         1\n"
            "Pitches       440 to 32000 Hz\n"
            "Length in\n"
            "  Classic     0:05.000\n"
            "  Sound32     0:02.000\n"
            "  DirectSound 0:02.000\n"
            "  Automatic   0:02.000\n"
            "  Winmm       0:02.000\n"
            "Sound as another pitch, but in Classic and Sound32\n"
            "  line 12     32000 Hz as 12100 Hz\n");
}

TEST_F(TnfTest, InfoTellsWhereThePlayEnds) {
  Lines lines = ProgramWith({{440, 32000}, {440, 30000}, {440, 32000}});
  lines[6] = "{700}";
  lines[8] = "\\4000";
  lines.insert(lines.end(), {"<880>", "\\32000"});
  lines[6] = "{768}";
  around.files["long.tnf"] = FileOf(lines);
  EXPECT_EQ(Run({"info", "long.tnf"}), 0);
  EXPECT_NE(around.output.find("  Sound32     1:41.072\n"), std::string::npos) << around.output;
  EXPECT_NE(
      around.output.find("  Winmm       0:35.536, the play ends before line 12: a tone of more "
                         "than 32767 ms\n"),
      std::string::npos);
}

TEST_F(TnfTest, InfoOfAProgramWithoutTonesAndOfABadOne) {
  around.files["empty.tnf"] = FileOf(ProgramWith({}));
  EXPECT_EQ(Run({"info", "empty.tnf"}), 0);
  EXPECT_NE(around.output.find("Pitches       none\n"), std::string::npos);
  EXPECT_NE(around.output.find("  Classic     0:01.050\n"), std::string::npos);
  EXPECT_NE(around.output.find("  Winmm       0:00.050\n"), std::string::npos);
  EXPECT_EQ(Run({"info", "bad.tnf"}), 1);
  EXPECT_EQ(around.output, "");
  EXPECT_TRUE(around.errors.starts_with("bad.tnf:1:1: error: "));
}

TEST_F(TnfTest, RenderWritesTheWaveFile) {
  around.files["second.tnf"] = FileOf(ProgramWith({{440, 950}}));
  EXPECT_EQ(Run({"render", "second.tnf", "-o", "out.wav"}), 0);
  const std::string image = tone::WaveImage(tone::SineSecond(440), 44100, 16);
  EXPECT_TRUE(around.files["out.wav"] == image);
  EXPECT_EQ(Run({"render", "second.tnf", "-o", "-"}), 0);
  EXPECT_TRUE(around.output == image);
  EXPECT_EQ(Run({"render", "second.tnf", "--smooth", "-o", "smooth.wav"}), 0);
  EXPECT_EQ(around.files["smooth.wav"].size(), image.size());
  EXPECT_FALSE(around.files["smooth.wav"] == image);
}

TEST_F(TnfTest, RenderRefusesABadFile) {
  EXPECT_EQ(Run({"render", "bad.tnf", "-o", "out.wav"}), 1);
  EXPECT_TRUE(around.errors.starts_with("bad.tnf:1:1: error: "));
  EXPECT_EQ(around.begun, Lines{});
}

TEST_F(TnfTest, AFullDiskLeavesNoFile) {
  around.room = 1000;
  EXPECT_EQ(Run({"render", "good.tnf", "-o", "out.wav"}), 2);
  EXPECT_EQ(around.errors, "tnf: out.wav: it is full\n");
  EXPECT_FALSE(around.files.contains("out.wav"));
}

TEST_F(TnfTest, ARingToneIsImported) {
  EXPECT_EQ(Run({"import", "rtttl", "tune.txt", "-o", "out.tnf"}), 0);
  EXPECT_EQ(around.files["out.tnf"],
            "%valid%\r\n[info]\r\n{236}\r\n{A tune}\r\n{visible}\r\n[sound]\r\n{1}\r\n"
            "<880>\r\n\\499\r\n<988>\r\n\\499\r\n");
  EXPECT_EQ(Run({"import", "rtttl", "tune.txt", "-o", "out.tnf", "--a440", "5"}), 0);
  EXPECT_NE(around.files["out.tnf"].find("<440>"), std::string::npos);
}

TEST_F(TnfTest, ARingToneComesFromStandardInputIfNoFileIsNamed) {
  around.files["-"] = "x";
  EXPECT_EQ(Run({"import", "rtttl", "-o", "out.tnf"}), 1);
  EXPECT_EQ(around.errors, "standard input:1:2: error: expected \":\" behind the name\n");
  EXPECT_FALSE(around.files.contains("out.tnf"));
}

TEST_F(TnfTest, MorseIsImported) {
  EXPECT_EQ(Run({"import", "morse", "e'", "-o", "out.tnf", "--speed", "100", "--pitch", "500"}), 0);
  EXPECT_EQ(around.files["out.tnf"],
            "%valid%\r\n[info]\r\n{236}\r\n{Morse code: e'}\r\n{visible}\r\n[sound]\r\n{1}\r\n"
            "<500>\r\n\\149\r\n<22050>\r\n\\389\r\n");
  EXPECT_EQ(around.errors, "tnf: warning: there is no Morse code for \"'\"\n");
  EXPECT_EQ(Run({"import", "morse", "--textbook", "t'", "-o", "out.tnf"}), 0);
  EXPECT_NE(around.files["out.tnf"].find("<700>\r\n\\299\r\n"), std::string::npos);
  EXPECT_EQ(around.errors, "");
}

TEST_F(TnfTest, MorseThatDoesNotFit) {
  EXPECT_EQ(Run({"import", "morse", std::string(500, 'e'), "-o", "out.tnf"}), 1);
  EXPECT_EQ(around.errors,
            "tnf: error: the text is too long for the 996 tones of a tone program\n");
  EXPECT_EQ(Run({"import", "morse", " %", "-o", "out.tnf"}), 1);
  EXPECT_FALSE(around.files.contains("out.tnf"));
}

TEST_F(TnfTest, ARingToneIsExported) {
  around.files["notes.tnf"] = FileOf(ProgramWith({{440, 450}, {494, 450}}));
  EXPECT_EQ(Run({"export", "rtttl", "notes.tnf"}), 0);
  EXPECT_EQ(around.output, "My tune:d=4,o=4,b=120:a,b\n");
  EXPECT_EQ(Run({"export", "rtttl", "notes.tnf", "-o", "tune.txt", "--a440", "5"}), 0);
  EXPECT_EQ(around.files["tune.txt"], "My tune:d=4,o=5,b=120:a,b\n");
  EXPECT_EQ(Run({"export", "rtttl", "good.tnf"}), 1);
  EXPECT_EQ(around.output, "");
  EXPECT_EQ(around.errors,
            "good.tnf:12:1: error: 32000 Hz is no note; the nearest is b8, 7902 Hz\n");
}

}  // namespace
}  // namespace tools
