#include "tests/app/fixture.h"

#include "app/tone_modes.h"

namespace app {
namespace {

class ModesTest : public ProgramTest {};

TEST_F(ModesTest, TheDesignCaptionsNameTheModes) {
  Run();
  const Lines captions{"Low pitch",     "Average pitch", "High pitch",
                       "Extreme pitch", "Spooky pitch",  "Low to high",
                       "Custom pitch",  "Morse tool",    "Hearing age"};
  for (std::size_t i = 0; i < captions.size(); ++i) {
    EXPECT_EQ(main().Options()[i]->Caption(), captions[i]);
  }
  EXPECT_EQ(main().Frame1.Caption(), "Choices");
  EXPECT_EQ(main().Frame2.Caption(), "Info");
  EXPECT_EQ(main().Frame3.Caption(), "Sound waves");
  EXPECT_EQ(main().Label8.Caption(), "No information avaible");
  EXPECT_EQ(main().Label9.Caption(), "Custom pitch");
  EXPECT_EQ(main().Label3.Caption(), "Selected pitch (Hz):");
  EXPECT_EQ(main().Label10.Caption(), "1000");
  EXPECT_EQ(main().Label5.Caption(), "4 Hz ->");
  EXPECT_EQ(main().Label6.Caption(), "<- 32000 Hz");
  EXPECT_EQ(main().Command1.Caption(), "Help");
  EXPECT_EQ(main().Command2.Caption(), "Play Sound");
  EXPECT_EQ(main().Command3.Caption(), "Stop Sound");
}

TEST_F(ModesTest, ChoosingAModeTellsItsDescriptionAndLogsIt) {
  At(1s, [](Form1& form1) { form1.Option3.Click(); });
  Run();
  EXPECT_EQ(main().SelectedMode(), ToneMode(3));
  EXPECT_EQ(main().Label1.Caption(),
            "A high tone of 10000 Hz. It sounds sharp: set the volume low before you play it.");
  EXPECT_EQ(main().Command2.Caption(), "Play Sound");
  EXPECT_EQ(LogEntries().back(), "#Option 3 Clicked");
  EXPECT_EQ(main().mode_chosen_flag, 1);
}

TEST_F(ModesTest, EveryModeLogsItsNumberAndDeselectsTheOthers) {
  for (int mode = 1; mode <= 9; ++mode) {
    At(std::chrono::seconds(mode), [mode](Form1& form1) {
      form1.Options()[static_cast<std::size_t>(mode - 1)]->Click();
      int selected = 0;
      for (const ui::OptionButton* option : form1.Options()) selected += option->Value() ? 1 : 0;
      EXPECT_EQ(selected, 1);
      EXPECT_EQ(form1.SelectedMode(), ToneMode(static_cast<std::int16_t>(mode)));
    });
  }
  Run();
  const Lines entries = LogEntries();
  EXPECT_EQ(Lines(entries.end() - 9, entries.end()),
            (Lines{"#Option 1 Clicked", "#Option 2 Clicked", "#Option 3 Clicked",
                   "#Option 4 Clicked", "#Option 5 Clicked", "#Option 6 Clicked",
                   "#Option 7 Clicked", "#Option 8 Clicked", "#Option 9 Clicked"}));
}

TEST_F(ModesTest, CustomPitchEnablesTheSliderAndAnotherModeDisablesItButKeepsItsValue) {
  At(1s, [](Form1& form1) {
    form1.Option7.Click();
    for (const ui::Control* control : std::initializer_list<const ui::Control*>{
             &form1.Label9, &form1.Command1, &form1.Label3, &form1.Label10, &form1.Label5,
             &form1.Label6, &form1.HScroll1}) {
      EXPECT_TRUE(control->Enabled()) << control->Name();
    }
    form1.HScroll1.ScrollTo(440);
  });
  At(2s, [](Form1& form1) {
    form1.Option1.Click();
    for (const ui::Control* control : std::initializer_list<const ui::Control*>{
             &form1.Label9, &form1.Command1, &form1.Label3, &form1.Label10, &form1.Label5,
             &form1.Label6, &form1.HScroll1}) {
      EXPECT_FALSE(control->Enabled()) << control->Name();
    }
  });
  Run();
  EXPECT_EQ(main().HScroll1.Value(), 440);
  EXPECT_EQ(main().Label10.Caption(), " 440");
}

TEST_F(ModesTest, TheToolsHideTheSinePreviewAndTheTonesShowItAgain) {
  At(1s, [](Form1& form1) {
    for (const int tool : {8, 9}) {
      form1.Options()[static_cast<std::size_t>(tool - 1)]->Click();
      EXPECT_FALSE(form1.Picture1.Visible()) << tool;
      EXPECT_FALSE(form1.Line1.Visible()) << tool;
      EXPECT_EQ(form1.Command2.Caption(), "Start") << tool;
      for (int tone = 1; tone <= 7; ++tone) {
        form1.Options()[static_cast<std::size_t>(tool - 1)]->Click();
        form1.Options()[static_cast<std::size_t>(tone - 1)]->Click();
        EXPECT_TRUE(form1.Picture1.Visible()) << tone;
        EXPECT_TRUE(form1.Line1.Visible()) << tone;
        EXPECT_EQ(form1.Command2.Caption(), "Play Sound") << tone;
      }
    }
  });
  Run();
}

TEST_F(ModesTest, TheEndsOfTheSliderShowTheirPitchWithABlankForTheSign) {
  At(1s, [](Form1& form1) {
    form1.Option7.Click();
    form1.HScroll1.ScrollTo(-100);
    EXPECT_EQ(form1.Label10.Caption(), " 4");
    form1.HScroll1.ScrollTo(99999);
    EXPECT_EQ(form1.Label10.Caption(), " 32000");
  });
  Run();
  EXPECT_EQ(main().HScroll1.range().small_step, 100);
  EXPECT_EQ(main().HScroll1.range().large_step, 1000);
  EXPECT_EQ(main().HScroll1.range().initial, 1000);
}

TEST_F(ModesTest, InDirectSoundTheModesItCannotPlayCannotBeChosen) {
  sim.files.Put(kSettings, GoodSettings("64"));
  At(1s, [](Form1& form1) {
    form1.Option1.Click();
    form1.Option6.Click();
    form1.Option8.Click();
    form1.Option9.Click();
    EXPECT_EQ(form1.SelectedMode(), ToneMode(1));
  });
  Run();
  EXPECT_EQ(LogEntries().back(), "#Option 1 Clicked");
}

TEST_F(ModesTest, HearingAgeLeavesTheModeChosenFlagAsItWas) {
  At(1s, [](Form1& form1) {
    form1.Option9.Click();
    EXPECT_EQ(form1.mode_chosen_flag, 0);
    form1.Option8.Click();
    EXPECT_EQ(form1.mode_chosen_flag, 1);
    form1.Option9.Click();
    EXPECT_EQ(form1.mode_chosen_flag, 1);
  });
  Run();
}

TEST_F(ModesTest, EnterPlaysOnlyOnceAModeWasChosenAndEscStops) {
  Run();
  EXPECT_EQ(main().DefaultButton(), nullptr);
  EXPECT_EQ(main().CancelButton(), &main().Command3);
  main().Option1.Click();
  EXPECT_EQ(main().DefaultButton(), &main().Command2);
}

// Its error value is asserted where every handler's is.
TEST_F(ModesTest, AFailingModeChoiceThatCannotBeWrittenDownEitherHasItsErrorDialog) {
  sim.At(1s, [this] {
    sim.files.FailWritesIn("C:\\Temp", base::ErrorCode::kDiskFull);
    program->form1.Option2.Click();
  });
  sim.At(2s, [this] {
    EXPECT_EQ(program->form6.List1.Items()[0], "Error number:  61,   Error value:  1010");
    EXPECT_EQ(program->form6.List1.Items()[1], "<Disk full> Not writable: C:\\Temp");
    program->form6.Command1.Click();
  });
  EXPECT_TRUE(Run());
  EXPECT_EQ(Messages(), Lines{});
  EXPECT_FALSE(sim.files.Exists(kErrorLog));
}

TEST_F(ModesTest, ALogThatCannotBeWrittenOnceOpensTheErrorDialog) {
  sim.At(1s, [this] {
    sim.files.Fail(platform::simulated::Operation::kOpenForWriting, kLog,
                   base::ErrorCode::kDiskFull);
    program->form1.Option2.Click();
  });
  sim.At(2s, [this] { program->form6.Command1.Click(); });
  EXPECT_TRUE(Run());
  EXPECT_EQ(sim.Lines(kErrorLog)[0], "Error number:  61,   Error value:  1010");
}

TEST(ToneModes, PitchesAndWhatTheLogTellsInTheirPlace) {
  const std::int16_t pitches[] = {0, 1000, 4500, 10000, 16600, 21000, 1, 0, 3, 0};
  for (std::int16_t number = 0; number <= 9; ++number) {
    const ToneModeFacts& mode = FactsOf(static_cast<ToneMode>(number));
    EXPECT_EQ(PitchInLog(mode.kind, mode.pitch_hz), pitches[number]) << number;
  }
}

Route ToneRoute(const char* code) {
  return RouteOf(ToneKind::kFixedPitch, base::SoundModeOf(code));
}

Route SweepRoute(const char* code) {
  return RouteOf(ToneKind::kSweep, base::SoundModeOf(code));
}

TEST(ToneModes, EverySoundModeHasItsRoute) {
  EXPECT_EQ(ToneRoute("16"), Route::kSound16);
  EXPECT_EQ(ToneRoute("32"), Route::kSound32);
  EXPECT_EQ(ToneRoute("64"), Route::kToneDXRND);
  EXPECT_EQ(ToneRoute("128"), Route::kSoundWinmmRND);
  EXPECT_EQ(ToneRoute("256"), Route::kSoundWinmmRND);
  EXPECT_EQ(RouteOf(ToneKind::kSlider, base::SoundMode::kWinmm), Route::kSoundWinmmRND);
  EXPECT_EQ(ToneRoute(""), Route::kNone);
  EXPECT_EQ(ToneRoute(" 16"), Route::kNone);
  EXPECT_EQ(SweepRoute("16"), Route::kLowToHigh);
  EXPECT_EQ(SweepRoute("32"), Route::kLowToHigh);
  EXPECT_EQ(SweepRoute("128"), Route::kSoundWinmmLTH);
  EXPECT_EQ(SweepRoute("256"), Route::kSoundWinmmLTH);
}

}  // namespace
}  // namespace app
