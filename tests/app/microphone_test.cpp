#include "tests/app/fixture.h"

#include <cmath>

namespace app {
namespace {

using platform::simulated::CaptureCall;

constexpr double kTwoPi = 6.283185307179586;

std::string SettingsWith(const std::string& level, const std::string& on) {
  return "AutoUpdate=n\r\nSoundBit=128\r\nLanguage=EN\r\nSendData=n\r\nMicrophone=" + level +
         "\r\nMicrophoneON=" + on + "\r\n";
}

class MicrophoneTest : public ProgramTest {
 protected:
  MicrophoneTest() { sim.files.Put(kSettings, SettingsWith("1", "y")); }

  // A tone of `left_hz` on the left channel and one of `right_hz` on the right.
  void Feed(double left_hz, double right_hz, double amplitude) {
    sim.sound_capture.sound = [=](std::uint32_t at) {
      const std::uint32_t frame = at / 4;
      const double hz = at % 4 < 2 ? left_hz : right_hz;
      const auto sample =
          static_cast<std::int16_t>(amplitude * std::sin(kTwoPi * hz * frame / 44100));
      return static_cast<std::uint8_t>(at % 2 == 0 ? sample : sample >> 8);
    };
  }

  // Rows of the picture that hold something, from the top.
  std::vector<int> DrawnRows() {
    std::vector<int> rows;
    const ui::Canvas& picture = main().picWave.Picture();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        if (picture.At(x, y) != ui::Canvas::kForeground) continue;
        rows.push_back(y);
        break;
      }
    }
    return rows;
  }

  Lines Pictures() const { return sim.journal.Texts({Kind::kPicture}); }
};

TEST_F(MicrophoneTest, CaptureBeginsAtTheStartWhenItIsSwitchedOn) {
  At(1s, [this](Form1&) { EXPECT_EQ(sim.sound_capture.running_buffers, 1); });
  Run();
  const Lines calls = sim.journal.Texts({Kind::kSound});
  EXPECT_EQ(calls.front(), "capture root");
  EXPECT_TRUE(main().microinputonoff.Checked());
}

TEST_F(MicrophoneTest, CaptureStaysOffWhenItIsSwitchedOff) {
  sim.files.Put(kSettings, SettingsWith("1", "n"));
  At(1s, [](Form1&) {});
  Run();
  EXPECT_TRUE(sim.journal.Texts({Kind::kSound}).empty());
}

TEST_F(MicrophoneTest, SilenceIsTwoFlatLines) {
  At(1s, [this](Form1&) { EXPECT_EQ(DrawnRows(), (std::vector<int>{22, 66})); });
  Run();
}

TEST_F(MicrophoneTest, TheLeftChannelIsDrawnAboveTheRight) {
  Feed(500, 0, 8000);
  At(1s, [this](Form1&) {
    const std::vector<int> rows = DrawnRows();
    // 8000 of 20000 half-heights of 44 pixels: 17 to 18 pixels around row 22.
    EXPECT_LE(rows.front(), 6);
    EXPECT_GE(rows.front(), 3);
    EXPECT_EQ(rows.back(), 66);
    EXPECT_LT(rows[rows.size() - 2], 44);
  });
  Run();
}

TEST_F(MicrophoneTest, EveryBlockIsDrawnTenTimesASecond) {
  At(1050ms, [this](Form1&) { sim.journal.Clear(); });
  At(3050ms, [this](Form1&) { EXPECT_EQ(Pictures(), Lines(20, "Form1.picWave picture")); });
  Run();
}

TEST_F(MicrophoneTest, TheSensitivityChangesThePictureTheCaptionAndLineFive) {
  Feed(500, 500, 2000);
  At(1s, [this](Form1& form1) {
    const auto before = DrawnRows().size();
    for (int i = 0; i < 3; ++i) form1.Command4.Click();
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 4");
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone= 4");
    At(1200ms, [this, before](Form1&) { EXPECT_GT(DrawnRows().size(), 3 * before); });
  });
  At(1500ms, [this](Form1& form1) {
    form1.Command5.Click();
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 3");
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone= 3");
  });
  Run();
}

TEST_F(MicrophoneTest, AtItsEndsTheSensitivityStays) {
  sim.files.Put(kSettings, SettingsWith("20", "y"));
  At(1s, [this](Form1& form1) {
    const Lines entries = LogEntries();
    form1.Command4.Click();
    EXPECT_EQ(form1.State().Microphone, 20);
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone=20");
    EXPECT_EQ(LogEntries(), entries);
    form1.Command5.Click();
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 19");
    for (int i = 0; i < 30; ++i) form1.Command5.Click();
    EXPECT_EQ(form1.State().Microphone, 1);
    EXPECT_EQ(sim.Lines(kSettings)[4], "Microphone= 1");
    EXPECT_EQ(form1.Frame4.Caption(), "Microphone input, sensitivity: 1");
  });
  Run();
}

TEST_F(MicrophoneTest, TheMenuSwitchesItOffInItsOrder) {
  Feed(500, 1500, 8000);
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.microinputonoff.Click();
  });
  Run();
  EXPECT_EQ(sim.journal.Texts({Kind::kControl, Kind::kPicture, Kind::kSound}),
            (Lines{"Form1.microinputonoff checked: no", "capture stop", "Form1.picWave picture",
                   "Form1.Command5 enabled: no", "Form1.Command4 enabled: no"}));
  EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=n");
  EXPECT_EQ(sim.sound_capture.live_objects, 0);
  EXPECT_TRUE(DrawnRows().empty());
}

TEST_F(MicrophoneTest, TheMenuSwitchesItOnInItsOrder) {
  sim.files.Put(kSettings, SettingsWith("1", "n"));
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    form1.microinputonoff.Click();
    EXPECT_EQ(
        sim.journal.Texts({Kind::kControl, Kind::kPicture, Kind::kSound}),
        (Lines{"Form1.microinputonoff checked: yes", "capture root", "capture devices",
               "capture device microphone",
               "capture buffer of 35280 bytes, 44100 Hz, 16 bits, 2 channels", "capture event",
               "capture event", "capture event", "capture positions 1 17640 -1", "capture start 1",
               "Form1.Command5 enabled: yes", "Form1.Command4 enabled: yes"}));
    EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=y");
  });
  At(1500ms, [this](Form1&) { EXPECT_EQ(DrawnRows(), (std::vector<int>{22, 66})); });
  Run();
}

TEST_F(MicrophoneTest, SwitchedOnAndOffAHundredTimesItLeavesNothing) {
  At(1s, [this](Form1& form1) {
    const int live = sim.sound_capture.live_objects;
    const std::size_t timers = sim.pump.running_timers();
    for (int i = 0; i < 200; ++i) form1.microinputonoff.Click();
    EXPECT_EQ(sim.sound_capture.live_objects, live);
    EXPECT_EQ(sim.sound_capture.running_buffers, 1);
    EXPECT_EQ(sim.pump.running_timers(), timers);
    form1.microinputonoff.Click();
    EXPECT_EQ(sim.sound_capture.live_objects, 0);
    EXPECT_EQ(sim.pump.running_timers(), 0u);
  });
  Run();
  EXPECT_TRUE(Messages().empty());
}

TEST_F(MicrophoneTest, WithoutADeviceSwitchingItOnShowsDirectSoundErrorAndLeavesItOff) {
  sim.files.Put(kSettings, SettingsWith("1", "n"));
  sim.sound_capture.devices.clear();
  At(1s, [](Form1& form1) {
    form1.microinputonoff.Click();
    EXPECT_FALSE(form1.microinputonoff.Checked());
  });
  Run();
  EXPECT_EQ(Messages(), (Lines{"exclamation [DirectSound Error] No recording device was found."}));
  EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=n");
  const Lines entries = LogEntries();
  EXPECT_EQ(Lines(entries.end() - 5, entries.end()),
            (Lines{">> Program starting finished", "> Write action", "Line:  6",
                   "Value: MicrophoneON=y", "> Write action, Line:  6, Value: MicrophoneON=n"}));
  EXPECT_EQ(sim.sound_capture.live_objects, 0);
}

TEST_F(MicrophoneTest, AFailingStartOfCaptureIsToldWhenTheProgramStarts) {
  for (const CaptureCall call : {CaptureCall::kRoot, CaptureCall::kDevice, CaptureCall::kBuffer}) {
    sim.files.Put(kSettings, SettingsWith("1", "y"));
    sim.journal.Clear();
    sim.sound_capture.Fail(call);
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 1000);
    At(start, [](Form1& form1) {
      EXPECT_TRUE(form1.Visible());
      EXPECT_FALSE(form1.microinputonoff.Checked());
    });
    Run();
    ASSERT_EQ(Messages().size(), 1u);
    EXPECT_EQ(Messages()[0].rfind("exclamation [DirectSound Error] ", 0), 0u) << Messages()[0];
    EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=n");
    EXPECT_EQ(LogEntries().back(), ">> Program starting finished");
    EXPECT_EQ(sim.sound_capture.live_objects, 0);
    sim.sound_capture.Heal();
  }
}

TEST_F(MicrophoneTest, ADeviceThatDoesNotStartOrNeverDeliversLeavesThePictureEmpty) {
  for (const bool starts : {false, true}) {
    if (!starts) sim.sound_capture.Fail(CaptureCall::kStart);
    sim.sound_capture.delivers = false;
    const auto start = std::chrono::milliseconds(sim.pump.now_ms() + 5000);
    At(start, [this](Form1&) { EXPECT_TRUE(DrawnRows().empty()); });
    Run();
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(sim.Lines(kSettings)[5], "MicrophoneON=y");
    sim.sound_capture.Heal();
  }
}

TEST_F(MicrophoneTest, AnUnpluggedDeviceStopsThePictureNotTheTone) {
  Feed(500, 1500, 8000);
  At(1s, [](Form1& form1) {
    form1.Option6.Click();
    form1.Option7.Click();
    form1.Command2.Click();
  });
  At(2s, [this](Form1&) {
    sim.sound_capture.plugged_in = false;
    sim.journal.Clear();
  });
  At(4s, [this](Form1& form1) {
    EXPECT_TRUE(Pictures().empty());
    EXPECT_EQ(sim.waves.playing, kWave);
    form1.Command3.Click();
  });
  // Plugged in again, it can be switched off and on again.
  At(5s, [this](Form1& form1) {
    sim.sound_capture.plugged_in = true;
    form1.microinputonoff.Click();
    form1.microinputonoff.Click();
    EXPECT_TRUE(form1.microinputonoff.Checked());
    sim.journal.Clear();
  });
  At(6050ms, [this](Form1&) { EXPECT_EQ(Pictures(), Lines(10, "Form1.picWave picture")); });
  EXPECT_FALSE(Run());
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(sim.files.Exists(kErrorLog));
}

TEST_F(MicrophoneTest, WhileATonePlaysThePictureGoesOn) {
  At(1s, [this](Form1& form1) {
    form1.Option7.Click();
    sim.journal.Clear();
    form1.Command2.Click();
  });
  At(3s, [this](Form1& form1) {
    EXPECT_GE(Pictures().size(), 18u);
    form1.Command3.Click();
  });
  Run();
}

TEST_F(MicrophoneTest, ClosingTheProgramEndsCaptureBeforeItsFilesGo) {
  // Whether the settings or the menu switched it on.
  for (const char* on : {"y", "n"}) {
    sim.files.Put(kSettings, SettingsWith("1", on));
    sim.files.Put("C:\\Temp\\tnftmp.wav", "left");
    At(std::chrono::milliseconds(sim.pump.now_ms()) + 1s, [this](Form1& form1) {
      if (!form1.microinputonoff.Checked()) form1.microinputonoff.Click();
      sim.journal.Clear();
      form1.Close();
    });
    EXPECT_TRUE(Run());
    EXPECT_EQ(
        sim.journal.Texts({Kind::kWindow, Kind::kSound, Kind::kFile, Kind::kProcess}),
        (Lines{"Form1 hidden", "capture stop", "delete C:\\Temp\\tnftmp.wav", "stop 0x2", "end"}));
    EXPECT_EQ(sim.sound_capture.live_objects, 0);
  }
}

TEST_F(MicrophoneTest, WithAFileOnTheCommandLineCaptureStartsAllTheSame) {
  sim.files.Put("C:\\Tonmira\\song.tnf",
                "%valid%\r\n[info]\r\n{236}\r\n{}\r\n{visible}\r\n[sound]\r\n{50}\r\n");
  sim.environment.arguments = "C:\\Tonmira\\song.tnf";
  Run();
  const Lines calls = sim.journal.Texts({Kind::kSound});
  EXPECT_NE(std::find(calls.begin(), calls.end(), "capture start 1"), calls.end());
}

}  // namespace
}  // namespace app
