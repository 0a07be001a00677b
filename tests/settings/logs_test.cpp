#include "base/errors.h"
#include "settings/error_report.h"
#include "tests/settings/fixture.h"

namespace settings {
namespace {

using base::ErrorCode;
using base::ErrorValue;
using base::RuntimeError;
using platform::simulated::Kind;
using platform::simulated::Operation;

class ActivityLogTest : public SettingsFixture {};

TEST_F(ActivityLogTest, TheFirstEntryLandsOnLineFourAfterAnEmptyLine) {
  log.PrintFile(">> Program started");
  EXPECT_EQ(sim.files.Get(kLogPath), "20-11-2026\r\n14:30\r\n\r\n>> Program started\r\n");
}

TEST_F(ActivityLogTest, EntriesFollowOldestFirst) {
  log.PrintFile("#a");
  log.PrintFile("#b");
  log.PrintFile("#c");
  EXPECT_EQ(LogEntries(), (Lines{"#a", "#b", "#c"}));
}

TEST_F(ActivityLogTest, AFullLogHasItsLastLineReplaced) {
  for (int i = 4; i <= 100; ++i) log.PrintFile("entry " + std::to_string(i));
  ASSERT_EQ(sim.Lines(kLogPath).size(), 100u);
  const Lines before = sim.Lines(kLogPath);
  EXPECT_EQ(before[99], "entry 100");
  log.PrintFile("one more");
  const Lines after = sim.Lines(kLogPath);
  ASSERT_EQ(after.size(), 100u);
  EXPECT_EQ(Lines(after.begin(), after.begin() + 99), Lines(before.begin(), before.begin() + 99));
  EXPECT_EQ(after[99], "one more");
}

TEST_F(ActivityLogTest, AnEntryWithTwoCommasComesBackAsThreeTrimmedEntries) {
  log.PrintFile("> Write action, Line:  3, Value: Language=EN");
  EXPECT_EQ(LogEntries(), (Lines{"> Write action, Line:  3, Value: Language=EN"}));
  log.PrintFile("#next");
  EXPECT_EQ(LogEntries(), (Lines{"> Write action", "Line:  3", "Value: Language=EN", "#next"}));
}

TEST_F(ActivityLogTest, AMissingLogBeginsAnew) {
  sim.files.Delete(kLogPath);
  log.PrintFile("#a");
  EXPECT_EQ(sim.files.Get(kLogPath), "\r\n\r\n\r\n#a\r\n");
}

TEST_F(ActivityLogTest, ALogThatCannotBeReadIsReported) {
  sim.files.Fail(Operation::kRead, kLogPath, ErrorCode::kDeviceError);
  LeaveTheErrorDialogAt(100ms);
  log.LoadFile();
  EXPECT_EQ(sim.Lines(kErrorPath)[0], "Error number:  57,   Error value:  108");
}

TEST_F(ActivityLogTest, ALogThatCannotBeWrittenIsAnErrorOfTheCaller) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  EXPECT_THROW(log.PrintFile("#a"), RuntimeError);
  EXPECT_EQ(sim.files.Get(kLogPath), "20-11-2026\r\n14:30\r\n");
}

TEST_F(ActivityLogTest, ALogThatIsHeldForAMomentIsWaitedFor) {
  log.PrintFile("#a");
  for (const Operation operation : {Operation::kOpenForWriting, Operation::kOpenForReading}) {
    sim.files.FailTimes(5, operation, kLogPath, ErrorCode::kPermissionDenied);
    EXPECT_NO_THROW(log.PrintFile("#b"));
  }
  EXPECT_EQ(LogEntries(), (Lines{"#a", "#b", "#b"}));
  EXPECT_FALSE(sim.files.Exists(kErrorPath));
}

TEST_F(ActivityLogTest, OneThatStaysHeldIsAnErrorOfTheCaller) {
  sim.files.Fail(Operation::kOpenForWriting, kLogPath, ErrorCode::kPermissionDenied);
  EXPECT_THROW(log.PrintFile("#a"), RuntimeError);
  EXPECT_EQ(sim.pump.now_ms(), 1000);
}

TEST_F(ActivityLogTest, AFullDiskIsNotWaitedFor) {
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  EXPECT_THROW(log.PrintFile("#a"), RuntimeError);
  EXPECT_EQ(sim.pump.now_ms(), 0);
}

TEST_F(ActivityLogTest, TwoCopiesThatWriteInTurnsLeaveALogOfWholeLines) {
  ErrorNotes other_errors{sim.services, state, scene, upload};
  ActivityLog other{sim.services, other_errors};
  for (int i = 0; i < 5; ++i) {
    log.PrintFile("#first " + std::to_string(i));
    other.PrintFile("#second " + std::to_string(i));
  }
  EXPECT_EQ(LogEntries(), (Lines{"#first 0", "#second 0", "#first 1", "#second 1", "#first 2",
                                 "#second 2", "#first 3", "#second 3", "#first 4", "#second 4"}));
}

TEST_F(ActivityLogTest, CharactersOutsideTheCodePageAreWrittenAsQuestionMarks) {
  log.PrintFile("Zo\xC3\xAB \xE6\x9D\xB1");
  EXPECT_EQ(sim.files.Get(kLogPath), "20-11-2026\r\n14:30\r\n\r\nZo\xEB ?\r\n");
}

class ErrorNotesTest : public SettingsFixture {};

TEST_F(ErrorNotesTest, TheErrorLogHasItsFourLines) {
  LeaveTheErrorDialogAt(100ms);
  errors.ErrorNote(ErrorValue::kCheckSettings, RuntimeError(ErrorCode::kSubscriptOutOfRange));
  EXPECT_EQ(sim.files.Get(kErrorPath),
            "Error number:  9,   Error value:  103\r\n<Subscript out of range>\r\n"
            "Resolution: 1920 x 1080,   DPI: 96\r\nTime: 14:30, Date: 20-11-2026\r\n");
}

TEST_F(ErrorNotesTest, TheDialogShowsTheLinesInPlaceOfTheOtherWindows) {
  sim.At(100ms, [this] {
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(dialog.Caption(), "Error");
    EXPECT_EQ(dialog.Label1.Caption(),
              "Something went wrong and Tonmira must restart.... Sorry for the inconvenience!");
    EXPECT_EQ(dialog.List1.Items(),
              (Lines{"Error number:  6,   Error value:  4", "<Overflow>",
                     "Resolution: 1920 x 1080,   DPI: 96", "Time: 14:30, Date: 20-11-2026"}));
    EXPECT_EQ(dialog.Command1.Caption(), "Exit");
    EXPECT_EQ(dialog.Command2.Caption(), "Visit our site");
    EXPECT_EQ(scene.hidden, 1);
    dialog.Command1.Click();
  });
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  EXPECT_EQ(unloads, 1);
}

TEST_F(ErrorNotesTest, ClosingTheDialogByItsFrameIsExit) {
  sim.At(100ms, [this] { dialog.Close(); });
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  EXPECT_EQ(dialog.done_flag, 1);
  EXPECT_EQ(unloads, 1);
}

TEST_F(ErrorNotesTest, WaitsInTicksOf50Ms) {
  sim.pump.journal_waits = true;
  sim.At(120ms, [this] { dialog.Command1.Click(); });
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  EXPECT_EQ(sim.journal.Texts({Kind::kWait}), (Lines(4, "sleep 50")));
}

TEST_F(ErrorNotesTest, OfTwoErrorsInARowTheLogHoldsOnlyTheSecond) {
  LeaveTheErrorDialogAt(100ms);
  errors.ErrorNote(ErrorValue::kCheckSettings, RuntimeError(ErrorCode::kTypeMismatch));
  LeaveTheErrorDialogAt(500ms);
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kFileNotFound));
  const Lines lines = sim.Lines(kErrorPath);
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0], "Error number:  53,   Error value:  4");
}

TEST_F(ErrorNotesTest, NothingIsUploadedWithoutConsent) {
  state.SendData = 0;
  LeaveTheErrorDialogAt(100ms);
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  EXPECT_TRUE(upload.sent.empty());
}

TEST_F(ErrorNotesTest, WithConsentTheErrorLogIsUploadedUnderItsNumber) {
  state.SendData = 1;
  LeaveTheErrorDialogAt(100ms);
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  // 0.5 * 5 s * 14 h * 20th of the month + 1 = 701
  EXPECT_EQ(upload.sent, (Lines{"error.log as 701error.log"}));
}

TEST_F(ErrorNotesTest, AnErrorLogThatCannotBeWrittenLeadsToTheDialogAllTheSame) {
  state.SendData = 1;
  sim.files.FailWritesIn("C:\\Temp", ErrorCode::kDiskFull);
  sim.At(100ms, [this] {
    EXPECT_TRUE(dialog.Visible());
    EXPECT_EQ(dialog.List1.Items(),
              (Lines{"Error number:  6,   Error value:  4", "<Overflow> Not writable: C:\\Temp",
                     "Resolution: 1920 x 1080,   DPI: 96", "Time: 14:30, Date: 20-11-2026"}));
    EXPECT_EQ(scene.hidden, 1);
    dialog.Command1.Click();
  });
  EXPECT_NO_THROW(errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow)));
  EXPECT_EQ(unloads, 1);
  EXPECT_TRUE(upload.sent.empty());
  EXPECT_TRUE(sim.journal.Texts({Kind::kMessage}).empty());
}

TEST_F(ErrorNotesTest, AnErrorLogOfTheLastErrorIsNotSentInItsPlace) {
  state.SendData = 1;
  sim.files.Put(kErrorPath, "the last error");
  sim.files.Fail(Operation::kRename, kErrorPath, ErrorCode::kPermissionDenied);
  LeaveTheErrorDialogAt(100ms);
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  EXPECT_TRUE(upload.sent.empty());
  EXPECT_EQ(sim.files.PathsIn("C:\\Temp"), (Lines{kErrorPath, kLogPath}));
}

TEST_F(ErrorNotesTest, AScreenThatTellsNoResolutionKeepsNoneFromTheDialog) {
  sim.screen.failing_queries = 1;
  LeaveTheErrorDialogAt(100ms);
  errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow));
  EXPECT_EQ(sim.Lines(kErrorPath)[2], "Resolution: 1920 x 1080,   DPI: 0");
}

TEST_F(ErrorNotesTest, AnErrorThatNobodyTrapsIsShownInTheDialogAndNowhereElse) {
  sim.At(100ms, [this] {
    EXPECT_EQ(dialog.List1.Items()[1], "<Out of memory>");
    dialog.Command1.Click();
  });
  errors.ShowUntrapped(RuntimeError(ErrorCode::kOutOfMemory));
  EXPECT_EQ(unloads, 1);
  EXPECT_FALSE(sim.files.Exists(kErrorPath));
  EXPECT_TRUE(sim.journal.Texts({Kind::kMessage}).empty());
}

TEST_F(ErrorNotesTest, OfAReportThatFailsTheErrorItselfIsShown) {
  sim.random.first = {0.999};
  sim.clock.now = {2026, 12, 31, 23, 59, 59};
  EXPECT_THROW(errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kFileNotFound)),
               RuntimeError);
  sim.At(100ms, [this] {
    EXPECT_EQ(dialog.List1.Items()[0], "Error number:  53,   Error value:  4");
    dialog.Command1.Click();
  });
  errors.ShowUntrapped(RuntimeError(ErrorCode::kOverflow));
  EXPECT_EQ(unloads, 1);
}

TEST_F(ErrorNotesTest, AnUploadNumberBeyond16BitsIsAnErrorOfTheCaller) {
  sim.random.next = 0.999;
  sim.clock.now = {2026, 12, 31, 23, 59, 59};
  EXPECT_THROW(errors.ErrorNote(ErrorValue::kPlay, RuntimeError(ErrorCode::kOverflow)),
               RuntimeError);
  EXPECT_FALSE(sim.files.Exists(kErrorPath));
}

TEST(UploadNumber, IsTheProductPlusOneWithoutItsFraction) {
  EXPECT_EQ(UploadNumber(0.5, {2026, 11, 20, 14, 30, 5}), 701);
  EXPECT_EQ(UploadNumber(0.9, {2026, 11, 20, 0, 30, 5}), 1);
  EXPECT_EQ(UploadNumber(0.9, {2026, 11, 20, 14, 30, 0}), 1);
  EXPECT_EQ(UploadNumber(0.33, {2026, 11, 1, 1, 0, 5}), 2);
  EXPECT_THROW(UploadNumber(0.999, {2026, 12, 31, 23, 0, 59}), RuntimeError);
}

}  // namespace
}  // namespace settings
