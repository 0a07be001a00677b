#include "tests/app/fixture.h"

namespace app {
namespace {

class SineTest : public ProgramTest {
 protected:
  bool Drawn() {
    const auto& pixels = main().Picture1.Picture().pixels();
    return std::find(pixels.begin(), pixels.end(), ui::Canvas::kForeground) != pixels.end();
  }

  std::vector<std::uint32_t> Picture() { return main().Picture1.Picture().pixels(); }

  std::size_t Frames() const {
    const Lines pictures = sim.journal.Texts({Kind::kPicture});
    return static_cast<std::size_t>(
        std::count(pictures.begin(), pictures.end(), "Form1.Picture1 picture"));
  }

  // Expects about 20 frames a second between two moments, in whatever loop.
  void ExpectMoving(std::chrono::milliseconds from, std::chrono::milliseconds to) {
    At(from, [this](Form1&) { sim.journal.Clear(); });
    At(to, [this, wanted = static_cast<std::size_t>((to - from) / 50ms)](Form1&) {
      EXPECT_GE(Frames(), wanted * 9 / 10);
      EXPECT_LE(Frames(), wanted + 1);
    });
  }
};

TEST_F(SineTest, AChosenPitchIsShownAtOnceAndMoves20TimesASecond) {
  At(1s, [this](Form1& form1) {
    EXPECT_FALSE(Drawn());
    form1.Option3.Click();
    EXPECT_TRUE(Drawn());
    At(1200ms, [this, first = Picture()](Form1&) { EXPECT_NE(Picture(), first); });
  });
  ExpectMoving(2s, 12s);
  Run();
}

TEST_F(SineTest, TheProgramAnswersWhileThePictureMoves) {
  At(1s, [](Form1& form1) { form1.Option1.Click(); });
  for (int i = 0; i < 50; ++i) {
    const auto moment = std::chrono::milliseconds(2000 + 7 * i);
    At(moment, [this, moment](Form1&) { EXPECT_EQ(sim.pump.now_ms(), moment.count()); });
  }
  Run();
}

TEST_F(SineTest, ItGoesOnWhileItsToneIsPlayingAndAfterwards) {
  for (const char* code : {"16", "32", "64", "128"}) {
    sim.files.Put(kSettings, GoodSettings(code));
    sim.processes.become = {{"cmd /c play16.exe", "tone16.dll"}, {"tone32.dll", "tone32.dll"}};
    const auto begin = std::chrono::milliseconds(sim.pump.now_ms());
    At(begin + 1s, [](Form1& form1) {
      form1.Option3.Click();
      form1.Command2.Click();
    });
    ExpectMoving(begin + 2s, begin + 12s);
    At(begin + 13s, [](Form1& form1) { form1.Command3.Click(); });
    ExpectMoving(begin + 14s, begin + 16s);
    EXPECT_FALSE(Run());
  }
}

TEST_F(SineTest, InputIsAnsweredAtOnceWhileATonePlays) {
  for (const char* code : {"16", "32", "64", "128", "256"}) {
    sim.files.Put(kSettings, GoodSettings(code));
    const auto begin = std::chrono::milliseconds(sim.pump.now_ms());
    At(begin + 1s, [](Form1& form1) {
      form1.Option3.Click();
      form1.Command2.Click();
    });
    for (int i = 0; i < 30; ++i) {
      const auto moment = begin + std::chrono::milliseconds(2000 + 61 * i);
      At(moment, [this, moment](Form1&) { EXPECT_EQ(sim.pump.now_ms(), moment.count()); });
    }
    At(begin + 5s, [](Form1& form1) { form1.Command3.Click(); });
    // What follows a stop waits for the end of its tick.
    At(begin + 5001ms,
       [this, begin](Form1&) { EXPECT_LE(sim.pump.now_ms(), begin.count() + 5000 + 208); });
    Run();
  }
}

TEST_F(SineTest, InputIsAnsweredWithin60MsDuringASweep) {
  for (const char* code : {"16", "32", "256"}) {
    sim.files.Put(kSettings, GoodSettings(code));
    const auto begin = std::chrono::milliseconds(sim.pump.now_ms());
    At(begin + 1s, [](Form1& form1) {
      form1.Option6.Click();
      form1.Command2.Click();
    });
    for (int i = 0; i < 30; ++i) {
      const auto moment = begin + std::chrono::milliseconds(2000 + 61 * i);
      At(moment, [this, moment](Form1&) { EXPECT_LE(sim.pump.now_ms(), moment.count() + 60); });
    }
    At(begin + 5s, [](Form1& form1) { form1.Command3.Click(); });
    Run();
  }
}

TEST_F(SineTest, AnotherPitchTakesItsPlaceAndBeginsItsPhaseAnew) {
  At(1s, [](Form1& form1) { form1.Option1.Click(); });
  At(3030ms, [this](Form1& form1) {
    form1.Option3.Click();
    const auto first = Picture();
    form1.Option2.Click();
    EXPECT_NE(Picture(), first);
    form1.Option3.Click();
    EXPECT_EQ(Picture(), first);
  });
  ExpectMoving(4s, 14s);
  Run();
}

TEST_F(SineTest, ModesWithoutAPitchOfTheirOwnEndItAndShowNothing) {
  for (int mode = 6; mode <= 9; ++mode) {
    const auto begin = std::chrono::milliseconds(sim.pump.now_ms());
    At(begin + 1s, [this, mode](Form1& form1) {
      form1.Option1.Click();
      EXPECT_TRUE(Drawn());
      form1.Options()[static_cast<std::size_t>(mode - 1)]->Click();
      EXPECT_FALSE(Drawn());
      EXPECT_EQ(form1.State().sine_stop_flag, 1);
      EXPECT_EQ(sim.pump.running_timers(), 0u);
    });
    Run();
  }
}

TEST_F(SineTest, TheSliderDrawsAStillPictureThatNothingMoves) {
  At(1s, [this](Form1& form1) {
    form1.Option1.Click();
    form1.Option7.Click();
    form1.HScroll1.ScrollTo(4);
    EXPECT_EQ(form1.Label10.Caption(), " 4");
    EXPECT_TRUE(Drawn());
    EXPECT_EQ(sim.pump.running_timers(), 0u);
    sim.journal.Clear();
    At(3s, [this, four = Picture()](Form1& form1_later) {
      EXPECT_EQ(Frames(), 0u);
      form1_later.HScroll1.ScrollTo(32000);
      EXPECT_EQ(form1_later.Label10.Caption(), " 32000");
      EXPECT_EQ(Frames(), 1u);
      EXPECT_NE(Picture(), four);
    });
  });
  Run();
}

TEST_F(SineTest, FourHertzIsNearlyAFlatLineInTheMiddle) {
  At(1s, [](Form1& form1) {
    form1.Option7.Click();
    form1.HScroll1.ScrollTo(4);
    const ui::Canvas& picture = form1.Picture1.Picture();
    for (int x = 0; x < picture.width(); ++x) {
      // 0.000008 x 4170 = 0.033 radians: at most 19 of 1320 twips below the middle.
      EXPECT_TRUE(picture.At(x, 44) == ui::Canvas::kForeground ||
                  picture.At(x, 45) == ui::Canvas::kForeground)
          << x;
    }
  });
  Run();
}

TEST_F(SineTest, TheStopFlagEndsTheAnimationAtItsNextFrameAndClearsThePicture) {
  At(1s, [](Form1& form1) { form1.Option1.Click(); });
  At(2s, [](Form1& form1) { form1.State().sine_stop_flag = 1; });
  At(2051ms, [this](Form1&) {
    EXPECT_FALSE(Drawn());
    EXPECT_EQ(sim.pump.running_timers(), 0u);
  });
  Run();
}

TEST_F(SineTest, AStillPictureDuringAnAnimationIsShownUntilTheNextFrame) {
  At(1s, [](Form1& form1) { form1.Option1.Click(); });
  At(2010ms, [this](Form1& form1) {
    const auto moving = Picture();
    form1.DrawSine(10000, 930);
    EXPECT_NE(Picture(), moving);
    EXPECT_EQ(form1.State().sine_stop_flag, 0);
    EXPECT_EQ(sim.pump.running_timers(), 1u);
  });
  ExpectMoving(3s, 5s);
  Run();
}

TEST_F(SineTest, AnyOtherDrawingModeDrawsNothing) {
  At(1s, [this](Form1& form1) {
    sim.journal.Clear();
    for (const int mode : {0, 2, -1, 929, 931}) {
      form1.DrawSine(1000, static_cast<std::int16_t>(mode));
    }
    EXPECT_EQ(Frames(), 0u);
    EXPECT_FALSE(Drawn());
  });
  Run();
}

TEST_F(SineTest, EveryStepOfASweepDrawsItsPitch) {
  for (const char* code : {"32", "256"}) {
    sim.files.Put(kSettings, GoodSettings(code));
    const auto begin = std::chrono::milliseconds(sim.pump.now_ms());
    At(begin + 1s, [this](Form1& form1) {
      form1.Option6.Click();
      sim.journal.Clear();
      form1.Command2.Click();
    });
    At(begin + 3s, [this](Form1& form1) {
      const Lines statuses = sim.journal.Texts({Kind::kControl});
      const auto steps =
          std::count_if(statuses.begin(), statuses.end(), [](const std::string& text) {
            return text.rfind("Form1.StatusBar1 caption: Actual pitch (Hertz): ", 0) == 0 &&
                   text.back() == '0';
          });
      EXPECT_GE(steps, 10);
      EXPECT_EQ(Frames(), static_cast<std::size_t>(steps));
      EXPECT_TRUE(Drawn());
      form1.Command3.Click();
    });
    Run();
  }
}

TEST_F(SineTest, ALanguageOrAnotherSoundModeLeavesItMoving) {
  At(1s, [](Form1& form1) { form1.Option3.Click(); });
  At(2s, [](Form1& form1) {
    form1.dutch.Click();
    form1.sndwinmm.Click();
  });
  ExpectMoving(3s, 5s);
  Run();
}

TEST_F(SineTest, HidingTheWindowEndsIt) {
  At(1s, [](Form1& form1) { form1.Option3.Click(); });
  At(2s, [this](Form1& form1) {
    form1.Hide();
    EXPECT_EQ(sim.pump.running_timers(), 0u);
  });
  EXPECT_TRUE(Run());
}

TEST_F(SineTest, ClosingTheProgramEndsIt) {
  At(1s, [](Form1& form1) { form1.Option3.Click(); });
  At(2s, [](Form1& form1) { form1.Close(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.pump.running_timers(), 0u);
}

TEST_F(SineTest, AnErrorDialogEndsIt) {
  At(1s, [](Form1& form1) { form1.Option3.Click(); });
  At(2s, [this](Form1& form1) {
    sim.processes.missing_commands = {"hearage.dll"};
    form1.Option1.Click();
    form1.Option9.Click();
    form1.Option2.Click();
    sim.files.Fail(platform::simulated::Operation::kOpenForWriting, kLog,
                   base::ErrorCode::kDiskFull);
    form1.Option4.Click();
  });
  At(3s, [this](Form1&) {
    EXPECT_EQ(sim.pump.running_timers(), 0u);
    program->form6.Command1.Click();
  });
  EXPECT_TRUE(Run());
}

TEST_F(SineTest, TenThousandChoicesNeitherDeepenTheStackNorLeaveASecondAnimation) {
  const char* deepest = nullptr;
  std::size_t choices = 0;
  for (int round = 0; round < 100; ++round) {
    At(1000ms + round * 20ms, [&](Form1& form1) {
      const char here = 0;
      if (deepest == nullptr) deepest = &here;
      EXPECT_LT(std::abs(deepest - &here), 1000);
      for (int i = 0; i < 100; ++i, ++choices) form1.Options()[choices % 5]->Click();
      EXPECT_EQ(sim.pump.running_timers(), 1u);
    });
  }
  ExpectMoving(4s, 14s);
  Run();
  EXPECT_EQ(choices, 10000u);
}

}  // namespace
}  // namespace app
