// Every handler of the main window reports its own error value: each is made to fail, and it
// alone, as its user would meet it.
#include "base/errors.h"
#include "tests/app/error_values_fixture.h"

namespace app {
namespace {

using base::ErrorCode;
using platform::simulated::CaptureCall;
using platform::simulated::Operation;

// What the system refuses, once, when the user does something.
struct Refusal {
  std::string handler;
  int value;
  std::string refused;
  std::function<void(Form1&)> action;
  std::string sound_bit = "128";
};

class RefusalTest : public ErrorValueTest, public testing::WithParamInterface<Refusal> {};

TEST_P(RefusalTest, IsReportedUnderTheHandlersValue) {
  sim.files.Put(kSettings, GoodSettings(GetParam().sound_bit));
  FailAt1s([this](Form1& form1) {
    sim.windows.RefuseOnce(GetParam().refused);
    GetParam().action(form1);
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  7,   Error value:  " + std::to_string(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(
    Form1, RefusalTest,
    testing::Values(
        Refusal{"about", 1, "frmAbout loaded", [](Form1& form1) { form1.about.Click(); }},
        Refusal{"autoupdate", 2, "Form1.autoupdate checked: yes",
                [](Form1& form1) { form1.autoupdate.Click(); }},
        Refusal{"help", 3, "Form2 loaded", [](Form1& form1) { form1.Command1.Click(); }},
        Refusal{"more", 6, "Form1.Frame4 caption: Microphone input, sensitivity: 2",
                [](Form1& form1) {
                  form1.Command4.SetEnabled(true);
                  form1.Command4.Click();
                }},
        Refusal{"less", 7, "Form1.Frame4 caption: Microphone input, sensitivity: 1",
                [](Form1& form1) {
                  form1.Command4.SetEnabled(true);
                  form1.Command5.SetEnabled(true);
                  form1.Command4.Click();
                  form1.Command5.Click();
                }},
        Refusal{"dutch", 11, "Form1.dutch checked: yes", [](Form1& form1) { form1.dutch.Click(); }},
        Refusal{"english", 12, "Form1.english checked: yes",
                [](Form1& form1) {
                  form1.dutch.Click();
                  form1.english.Click();
                }},
        Refusal{"slider", 26, "Form1.Label10 caption:  440",
                [](Form1& form1) {
                  form1.Option7.Click();
                  form1.HScroll1.ScrollTo(440);
                }},
        Refusal{"sndautomatic", 27, "Form1.sndautomatic checked: yes",
                [](Form1& form1) { form1.sndautomatic.Click(); }, "16"},
        Refusal{"sndclassic", 28, "Form1.sndclassic checked: yes",
                [](Form1& form1) { form1.sndclassic.Click(); }},
        Refusal{"snddirectsound", 29, "Form1.snddirectsound checked: yes",
                [](Form1& form1) { form1.snddirectsound.Click(); }},
        Refusal{"sndsound32", 30, "Form1.sndsound32 checked: yes",
                [](Form1& form1) { form1.sndsound32.Click(); }},
        Refusal{"sndwinmm", 31, "Form1.sndwinmm checked: yes",
                [](Form1& form1) { form1.sndwinmm.Click(); }},
        Refusal{"microinputonoff", 39, "Form1.microinputonoff checked: yes",
                [](Form1& form1) { form1.microinputonoff.Click(); }},
        Refusal{"DrawSine", 1014, "Form1.Picture1 picture",
                [](Form1& form1) { form1.Option3.Click(); }}),
    [](const auto& refusal) { return refusal.param.handler; });

// The entry in the log is each handler's own step.
struct LogCase {
  std::string handler;
  int value;
  std::function<void(Form1&)> action;
};

class LogFailureTest : public ErrorValueTest, public testing::WithParamInterface<LogCase> {};

TEST_P(LogFailureTest, IsReportedUnderTheHandlersValue) {
  FailAt1s([this](Form1& form1) {
    sim.files.Fail(Operation::kOpenForWriting, kLog, ErrorCode::kDiskFull);
    GetParam().action(form1);
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  61,   Error value:  " + std::to_string(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(
    Form1, LogFailureTest,
    testing::Values(LogCase{"play", 4, [](Form1& form1) { form1.Command2.Click(); }},
                    LogCase{"contact", 9, [](Form1& form1) { form1.contact.Click(); }},
                    LogCase{"donate", 10, [](Form1& form1) { form1.donate.Click(); }},
                    LogCase{"webpage", 32, [](Form1& form1) { form1.webpage.Click(); }},
                    LogCase{"SelectRadio", 1010, [](Form1& form1) { form1.Option4.Click(); }}),
    [](const auto& log_case) { return log_case.param.handler; });

TEST_F(ErrorValueTest, StopReportsUnder5) {
  At(500ms, [](Form1& form1) {
    form1.Option1.Click();
    form1.Command2.Click();
  });
  FailAt1s([this](Form1& form1) {
    sim.files.Fail(Operation::kOpenForWriting, kLog, ErrorCode::kDiskFull);
    form1.Command3.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  61,   Error value:  5");
}

// What choosing a mode calls reports for itself, so the choice fails when that report does: its
// number does not fit.
class ModeErrorTest : public ErrorValueTest, public testing::WithParamInterface<int> {};

TEST_P(ModeErrorTest, IsReportedUnder16AndTheMode) {
  FailAt1s([this](Form1& form1) {
    FailTheNextReports(1);
    sim.files.Fail(Operation::kOpenForWriting, kLog, ErrorCode::kDiskFull);
    form1.Options()[static_cast<std::size_t>(GetParam() - 1)]->Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  6,   Error value:  " + std::to_string(16 + GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Modes, ModeErrorTest, testing::Range(1, 10));

TEST_F(ErrorValueTest, ExitReportsUnder13WhatTheShutdownCannotReport) {
  sim.files.Put("C:\\Temp\\tnftmp.wav", "held");
  sim.files.Fail(Operation::kDelete, "C:\\Temp\\tnftmp.wav", ErrorCode::kPermissionDenied);
  FailAt1s([this](Form1& form1) {
    FailTheNextReports(1);
    form1.exit.Click();
  });
  // Leaving the error dialog closes a main window whose shutdown has not finished.
  sim.messages.answers = {platform::kAnswerYes};
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  6,   Error value:  13");
}

TEST_F(ErrorValueTest, TheResolutionReportsUnder1026AndCountsAsUnusual) {
  sim.screen.failing_queries = 1;
  sim.At(120ms, [this] { program->form6.done_flag = 1; });
  Run();
  EXPECT_EQ(FirstLine(), "Error number:  57,   Error value:  1026");
  EXPECT_EQ(Messages(), (Lines{"exclamation [Warning] DPI settings could cause problems!"}));
}

TEST_F(ErrorValueTest, TerminateReportsUnder105WhatTheUploadCannotReport) {
  Run();
  // The first number is the upload's own.
  FailTheNextReports(2);
  sim.At(std::chrono::milliseconds(sim.pump.now_ms()) + 1s,
         [this] { program->form6.Command1.Click(); });
  settings::MainState state;
  EXPECT_TRUE(RunTerminate(state));
  EXPECT_EQ(FirstLine(), "Error number:  6,   Error value:  105");
}

class MicrophoneErrorTest : public ErrorValueTest {
 protected:
  void SwitchedOn() {
    sim.files.Put(kSettings,
                  "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=1\r\n"
                  "MicrophoneON=y\r\n");
  }
};

TEST_F(MicrophoneErrorTest, StartingCaptureReportsUnder33) {
  sim.sound_capture.Fail(CaptureCall::kDevice);
  FailAt1s([this](Form1& form1) {
    sim.windows.RefuseOnce("Form1.microinputonoff checked: no");
    form1.microinputonoff.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  7,   Error value:  33");
}

TEST_F(MicrophoneErrorTest, StoppingCaptureReportsUnder34) {
  SwitchedOn();
  FailAt1s([this](Form1& form1) {
    sim.sound_capture.Fail(CaptureCall::kStop);
    form1.microinputonoff.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(FirstLine(), "Error number:  57,   Error value:  34");
}

// From the drawing outwards: each step reports what the step within it cannot report.
TEST_F(MicrophoneErrorTest, DrawingABlockReportsUnder37Then36Then35) {
  const std::vector<std::pair<int, std::string>> cases{{0, "Error number:  7,   Error value:  37"},
                                                       {1, "Error number:  6,   Error value:  36"},
                                                       {2, "Error number:  6,   Error value:  35"}};
  for (const auto& [failing_reports, line] : cases) {
    SwitchedOn();
    const auto now = std::chrono::milliseconds(sim.pump.now_ms());
    At(now + 1s, [this, failing_reports = failing_reports](Form1&) {
      FailTheNextReports(failing_reports);
      sim.windows.RefuseOnce("Form1.picWave picture");
    });
    LeaveTheErrorDialogAt(now + 2s);
    EXPECT_TRUE(Run());
    EXPECT_EQ(FirstLine(), line);
  }
}

}  // namespace
}  // namespace app
