#include "settings/settings_file.h"

#include "base/numbers.h"
#include "settings/settings.h"
#include "tests/settings/fixture.h"

namespace settings {
namespace {

using base::ErrorCode;
using platform::simulated::Operation;

class SettingsTest : public SettingsFixture {};

TEST_F(SettingsTest, AGoodFileIsAppliedAndEchoedToTheLog) {
  Put(kGood);
  file.CheckSettings();
  EXPECT_EQ(state.AutoUpdate, 1);
  EXPECT_EQ(base::FactsOf(state.SoundBit).code, "128");
  EXPECT_EQ(state.language, "en");
  EXPECT_EQ(state.SendData, 0);
  EXPECT_EQ(state.Microphone, 1);
  EXPECT_EQ(state.MicrophoneON, 1);
  EXPECT_EQ(display.calls,
            (Lines{"auto update on", "language en", "captions en", "microphone on", "level 1"}));
  EXPECT_EQ(LogEntries(), (Lines{"AutoUpdate=y", "Soundbit=128", "Language=EN", "SendData=n",
                                 "Microphone=1", "MicrophoneON=y"}));
}

TEST_F(SettingsTest, KeysAndValuesAreMatchedIgnoringCase) {
  Put("AUTOUPDATE=Y\r\nsoundbit=64\r\nLANGUAGE=nl\r\nsenddata=Y\r\nMICROPHONE=20\r\n"
      "microphoneon=N\r\n");
  file.CheckSettings();
  EXPECT_EQ(display.calls,
            (Lines{"auto update on", "language nl", "captions nl", "microphone off", "level 20"}));
  EXPECT_EQ(base::FactsOf(state.SoundBit).code, "64");
  EXPECT_EQ(state.SendData, 1);
  EXPECT_EQ(state.MicrophoneON, 0);
}

// Files that lead to the first-run path, and what was applied before that.
struct BadFile {
  std::string name;
  std::string content;
  Lines applied;
};

class BadSettingsTest : public SettingsFixture, public testing::WithParamInterface<BadFile> {};

TEST_P(BadSettingsTest, LeadToTheFirstRun) {
  Put(GetParam().content);
  file.CheckSettings();
  Lines expected = GetParam().applied;
  expected.insert(expected.end(), {"first run shown", "main window hidden"});
  EXPECT_EQ(display.calls, expected);
  EXPECT_EQ(LogEntries().back(), "> New file");
  EXPECT_EQ(sim.files.Get(kPath), GetParam().content) << "the file must not be touched";
}

const std::string kTail = "SendData=n\r\nMicrophone=1\r\nMicrophoneON=y\r\n";

std::string Entries(int count) {
  std::string content = kGood;
  for (int i = 7; i <= count; ++i) content += "x" + std::to_string(i) + "\r\n";
  return content;
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadSettingsTest,
    testing::Values(
        BadFile{"Empty", "", {}}, BadFile{"Binary", "\x01\x02\xFF\xFE\x80\"\x7F,\r", {}},
        BadFile{"AllNulBytes", std::string(4096, '\0'), {}},
        BadFile{"ALineOf10MiB", std::string(10 << 20, 'A') + "\r\n" + kGood, {}},
        BadFile{"TenEntries", Entries(10), {}}, BadFile{"AThousandEntries", Entries(1000), {}},
        BadFile{"BlanksAroundTheEqualsSign",
                "AutoUpdate = y\r\nSoundbit=128\r\nLanguage=EN\r\n" + kTail,
                {}},
        BadFile{"AWrongSoundBit",
                "AutoUpdate=y\r\nSoundBit=65\r\nLanguage=EN\r\n" + kTail,
                {"auto update on"}},
        BadFile{"AWrongLanguage",
                "AutoUpdate=y\r\nSoundBit=64\r\nLanguage=DE\r\n" + kTail,
                {"auto update on"}},
        BadFile{"ACommaThatShiftsTheLines",
                "AutoUpdate=n\r\nSoundBit=64\r\nLanguage=EN,extra\r\n" + kTail,
                {"auto update off", "language en", "captions en"}},
        BadFile{"MicrophoneZero",
                "AutoUpdate=y\r\nSoundBit=64\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=0\r\n"
                "MicrophoneON=y\r\n",
                {"auto update on", "language en", "captions en"}},
        BadFile{"Microphone21",
                "AutoUpdate=y\r\nSoundBit=64\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=21\r\n"
                "MicrophoneON=y\r\n",
                {"auto update on", "language en", "captions en"}},
        BadFile{"OnlyFiveLines",
                "AutoUpdate=y\r\nSoundBit=64\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=2\r\n",
                {"auto update on", "language en", "captions en"}}),
    [](const auto& bad) { return bad.param.name; });

TEST_F(SettingsTest, AMissingFileLeadsToTheFirstRun) {
  file.CheckSettings();
  EXPECT_EQ(display.calls, (Lines{"first run shown", "main window hidden"}));
  EXPECT_EQ(LogEntries(), (Lines{"> New file"}));
  EXPECT_FALSE(sim.files.Exists(kPath));
  EXPECT_EQ(usage.sent, 0);
}

TEST_F(SettingsTest, ANewFileSendsTheUsageDataOfAUserWhoAllowsIt) {
  state.SendData = 1;
  file.NewFile();
  EXPECT_EQ(usage.sent, 1);
  EXPECT_EQ(display.calls, (Lines{"first run shown", "main window hidden"}));
}

TEST_F(SettingsTest, AFailingFirstRunIsReported) {
  sim.files.Fail(Operation::kOpenForWriting, kLogPath, ErrorCode::kDiskFull);
  LeaveTheErrorDialogAt(100ms);
  file.NewFile();
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  61,   Error value:  104");
  EXPECT_EQ(display.calls, Lines{});
}

TEST_F(SettingsTest, TheAutoUpdateStateIsAppliedBeforeABadThirdLineIsFound) {
  Put("AutoUpdate=y\r\nSoundBit=128\r\nLanguage=XX\r\n" + kTail);
  file.CheckSettings();
  EXPECT_EQ(display.calls, (Lines{"auto update on", "first run shown", "main window hidden"}));
  EXPECT_EQ(state.AutoUpdate, 1);
  EXPECT_EQ(base::FactsOf(state.SoundBit).code, "");
}

TEST_F(SettingsTest, AFileOfNineEntriesIsAcceptedButTheNextWriteEndsTheProgram) {
  Put(Entries(9));
  file.CheckSettings();
  EXPECT_EQ(display.calls.size(), 5u);
  EXPECT_TRUE(sim.Run([this] { file.WriteLine(2, "SoundBit=64"); }));
  EXPECT_EQ(sim.files.Get(kPath), Entries(9));
}

TEST_F(SettingsTest, TheSeventhAndEighthLineSurviveARewrite) {
  Put(Entries(8));
  file.WriteLine(2, "SoundBit=64");
  EXPECT_EQ(sim.Lines(kPath), (Lines{"AutoUpdate=y", "SoundBit=64", "Language=EN", "SendData=n",
                                     "Microphone=1", "MicrophoneON=y", "x7", "x8"}));
}

TEST_F(SettingsTest, ALineBeyondTheLastIsNotWritten) {
  Put("AutoUpdate=y\r\nSoundBit=128\r\nLanguage=EN\r\n");
  file.WriteLine(4, "SendData=y");
  EXPECT_EQ(sim.Lines(kPath), (Lines{"AutoUpdate=y", "SoundBit=128", "Language=EN"}));
}

TEST_F(SettingsTest, AnEmptyLineCutsOffWhatFollows) {
  Put("AutoUpdate=y\r\n\r\nLanguage=EN\r\n");
  file.WriteLine(1, "AutoUpdate=n");
  EXPECT_EQ(sim.files.Get(kPath), "AutoUpdate=n\r\n");
}

TEST_F(SettingsTest, EntriesAreWrittenBackAsRead) {
  Put(" \"AutoUpdate=y\" \r\n  SoundBit=128  \r\nLanguage=EN\r\n");
  file.WriteLine(3, "Language=NL");
  EXPECT_EQ(sim.files.Get(kPath), "AutoUpdate=y\r\nSoundBit=128\r\nLanguage=NL\r\n");
}

TEST_F(SettingsTest, AWriteIsLoggedWithTwoBlanksBeforeTheLineNumber) {
  Put(kGood);
  file.WriteLine(3, "Language=EN");
  EXPECT_EQ(LogEntries(), (Lines{"> Write action, Line:  3, Value: Language=EN"}));
}

TEST_F(SettingsTest, WritingToAMissingFileIsReported) {
  LeaveTheErrorDialogAt(100ms);
  file.WriteLine(3, "Language=EN");
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  53,   Error value:  102");
}

TEST_F(SettingsTest, AMicrophoneLevelThatIsNoNumberIsReported) {
  Put("AutoUpdate=y\r\nSoundBit=64\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=loud\r\n"
      "MicrophoneON=y\r\n");
  LeaveTheErrorDialogAt(100ms);
  file.CheckSettings();
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  13,   Error value:  103");
  EXPECT_EQ(sim.Lines(kErrorPath)[1], "<Type mismatch>");
}

TEST_F(SettingsTest, AFileThatAnotherProgramHoldsIsReportedAndNotTouched) {
  Put(kGood);
  sim.files.Lock(kPath);
  LeaveTheErrorDialogAt(100ms);
  file.CheckSettings();
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  70,   Error value:  103");
  EXPECT_EQ(sim.files.Get(kPath), kGood);
}

TEST_F(SettingsTest, AReadOnlyFileIsReportedAndKeepsItsContent) {
  Put(kGood);
  sim.files.Fail(Operation::kRename, kPath, ErrorCode::kPathFileAccess);
  LeaveTheErrorDialogAt(100ms);
  file.WriteLine(2, "SoundBit=64");
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  75,   Error value:  102");
  EXPECT_EQ(sim.files.Get(kPath), kGood);
  EXPECT_EQ(sim.files.PathsIn(platform::simulated::kAppData), (Lines{kPath}));
}

const std::string kWritten =
    "AutoUpdate=y\r\nSoundBit=64\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=1\r\n"
    "MicrophoneON=y\r\n";

TEST_F(SettingsTest, AFailureAtAnyFileOperationLeavesTheOldOrTheNewContentWhole) {
  Put(kGood);
  sim.files.FailAt(0, ErrorCode::kDiskFull);
  file.WriteLine(2, "SoundBit=64");
  const int operations = sim.files.operations();
  ASSERT_GE(operations, 8);
  for (int n = 1; n <= operations; ++n) {
    Put(kGood);
    sim.files.FailAt(n, ErrorCode::kDiskFull);
    LeaveTheErrorDialogAt(std::chrono::milliseconds(sim.pump.now_ms() + 100));
    file.WriteLine(2, "SoundBit=64");
    const auto content = sim.files.Get(kPath);
    EXPECT_TRUE(content == kGood || content == kWritten) << "operation " << n;
    EXPECT_EQ(sim.files.PathsIn(platform::simulated::kAppData).size(), 1u) << "operation " << n;
    sim.pump.Sleep(200);
    sim.pump.ProcessPending();
  }
}

TEST_F(SettingsTest, AKillAtAnyFileOperationLeavesTheOldOrTheNewContentWhole) {
  Put(kGood);
  sim.files.FailAt(0, ErrorCode::kDiskFull);
  file.WriteLine(2, "SoundBit=64");
  const int operations = sim.files.operations();
  for (int n = 1; n <= operations; ++n) {
    Put(kGood);
    sim.files.KillAt(n);
    EXPECT_TRUE(sim.Run([this] { file.WriteLine(2, "SoundBit=64"); })) << "operation " << n;
    const auto content = sim.files.Get(kPath);
    EXPECT_TRUE(content == kGood || content == kWritten) << "operation " << n;
  }
  sim.files.Heal();
  file.WriteLine(2, "SoundBit=64");
  EXPECT_EQ(sim.files.Get(kPath), kWritten);
}

TEST_F(SettingsTest, TheNewContentIsOnTheDiskBeforeItReplacesTheOld) {
  Put(kGood);
  sim.files.Fail(Operation::kFlush, kPath + ".1a2b.tmp", ErrorCode::kDiskFull);
  LeaveTheErrorDialogAt(100ms);
  file.WriteLine(2, "SoundBit=64");
  EXPECT_EQ(sim.files.Get(kPath), kGood);
}

// What a line of the file says of a setting; nothing when it is none of it.
template <class Value>
std::optional<Value> Read(const Setting& setting, Value Settings::*value, std::string_view entry) {
  Settings read;
  if (!ReadEntry(setting, entry, lang::ShippedLanguages(), read)) return std::nullopt;
  return read.*value;
}

std::optional<std::int16_t> MicrophoneLevel(std::string_view entry) {
  return Read(kMicrophone, &Settings::Microphone, entry);
}

TEST(SettingsEntries, TheMicrophoneLevelIsTheWholePartOfANumberFrom1To20) {
  const std::vector<std::pair<std::string, std::int16_t>> good{
      {"Microphone=1", 1},     {"Microphone=20", 20}, {"Microphone= 7", 7},
      {"microphone=20.9", 20}, {"MICROPHONE=1.5", 1}, {"Microphone=1e1", 10}};
  for (const auto& [entry, level] : good) EXPECT_EQ(MicrophoneLevel(entry), level) << entry;
  for (const char* entry : {"Microphone=0", "Microphone=21", "Microphone=-1", "Microphone=0.9",
                            "Microphone=99999999999", "Microphon=1", "Microphone 1", ""}) {
    EXPECT_EQ(MicrophoneLevel(entry), std::nullopt) << entry;
  }
  EXPECT_THROW(MicrophoneLevel("Microphone="), base::RuntimeError);
  EXPECT_THROW(MicrophoneLevel("Microphone=1x"), base::RuntimeError);
}

TEST(SettingsEntries, OtherEntriesMustMatchWhole) {
  EXPECT_EQ(Read(kAutoUpdate, &Settings::AutoUpdate, "AutoUpdate=y"), 1);
  EXPECT_EQ(Read(kAutoUpdate, &Settings::AutoUpdate, "autoUPDATE=N"), 0);
  EXPECT_EQ(Read(kAutoUpdate, &Settings::AutoUpdate, "AutoUpdate=yes"), std::nullopt);
  EXPECT_EQ(Read(kAutoUpdate, &Settings::AutoUpdate, "AutoUpdate = y"), std::nullopt);
  EXPECT_EQ(Read(kAutoUpdate, &Settings::AutoUpdate, "SendData=y"), std::nullopt);
  EXPECT_EQ(Read(kSoundBit, &Settings::SoundBit, "Soundbit=256"), base::SoundMode::kWinmm);
  EXPECT_EQ(Read(kSoundBit, &Settings::SoundBit, "Soundbit=2560"), std::nullopt);
  EXPECT_EQ(Read(kLanguage, &Settings::language, "LANGUAGE=Nl"), "nl");
  EXPECT_EQ(Read(kLanguage, &Settings::language, "Language=NLD"), std::nullopt);
}

}  // namespace
}  // namespace settings
