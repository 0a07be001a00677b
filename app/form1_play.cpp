// Play and Stop of the main window.
//
// Play returns only after Stop: its loop handles the user's input, and Stop, run nested inside it,
// sets the stop flag that the loop reads.
#include "app/form1.h"

#include "base/numbers.h"
#include "base/text.h"

namespace app {
namespace {

constexpr std::int16_t kPlayTickMs = 208;

// Sets a flag for as long as it lives.
class Playing {
 public:
  explicit Playing(bool& flag) : flag_(flag) { flag = true; }
  ~Playing() { flag_ = false; }
  Playing(const Playing&) = delete;
  Playing& operator=(const Playing&) = delete;

 private:
  bool& flag_;
};

}  // namespace

// A loop of the system's (an open menu, a dialog) can handle Stop and then Play within the play
// that is just being stopped. Plays follow each other, they never run within one another.
void Form1::Command2_Click() {
  plays_again_ = plays_;
  if (plays_) return;
  do {
    plays_again_ = false;
    Program program(context_);
    base::TrapErrors(program, base::ErrorValue::kPlay, [&] { Play(program); });
  } while (plays_again_);
}

void Form1::Command3_Click() {
  Program program(context_);
  base::TrapErrors(program, base::ErrorValue::kStop, [&] { Stop(program); });
}

void Form1::Play(Program& program) {
  sound tone(context_);
  tone.setLang(state_.language);
  state_.temp_folder = platform_.environment.Get("TEMP");
  RefreshStatus();
  program.PrintFile("#Pressed Button 2");

  const ToneModeFacts& mode = FactsOf(SelectedMode());
  const std::int16_t pitch = TakePitch(mode);
  if (mode.kind == ToneKind::kHearingTest) {
    StartHearingTest();
    return;
  }
  program.PrintFile(base::SignedNumber(PitchInLog(mode.kind, pitch)));
  if (mode.kind == ToneKind::kNone) {
    platform_.messages.Show("Insoluble error, contact Zevrin Software!", "Error",
                            platform::MessageIcon::kCritical, platform::MessageButtons::kOk);
    platform_.processes.EndProcess();
  }
  state_.stop_flag = 0;
  if (mode.kind == ToneKind::kMorseTool) {
    program.PrintFile("#Morse");
    RefreshStatus();
    others_.morse.Show();
    return;
  }
  DisableForPlaying();
  const Playing playing(plays_);
  if (mode.kind == ToneKind::kSweep) {
    PlaySweep(program, tone);
  } else {
    PlayTone(program, tone, mode.kind, pitch);
  }
}

std::int16_t Form1::TakePitch(const ToneModeFacts& mode) {
  if (mode.kind != ToneKind::kSlider) return mode.pitch_hz;
  HScroll1.SetEnabled(false);
  return SliderPitch();
}

void Form1::StartHearingTest() {
  state_.hearing_file = state_.temp_folder + "\\testhearing.ini";
  platform_.Texts().Write(state_.hearing_file, base::Line(base::FactsOf(state_.SoundBit).code) +
                                                   base::Line(state_.language));
  platform_.processes.Start("hearage.dll");
}

void Form1::DisableForPlaying() {
  Command2.SetEnabled(false);
  Command3.SetEnabled(true);
  settings.SetEnabled(false);
  for (std::size_t i = 0; i < kToneModes.size(); ++i) {
    ui::OptionButton& option = OptionOf(kToneModes[i].mode);
    if (option.Value()) continue;
    if (!option.Enabled()) disabled_modes_[i] = true;
    option.SetEnabled(false);
  }
  for (ui::OptionButton* option : Options()) option->SetEnabled(false);
}

void Form1::PlaySweep(Program& program, sound& tone) {
  if (RouteOf(ToneKind::kSweep, state_.SoundBit) == Route::kSoundWinmmLTH) {
    tone.SoundWinmmLTH();
  } else {
    tone.LowToHigh(state_.SoundBit);
  }
  do {
    WaitTick();
  } while (!PlayingEnds());
  program.PrintFile("#Sound stopped");
}

void Form1::PlayTone(Program& program, sound& tone, ToneKind kind, std::int16_t pitch) {
  RefreshStatus();
  switch (RouteOf(kind, state_.SoundBit)) {
    case Route::kSound16:
      tone.Sound16(pitch);
      break;
    case Route::kSound32:
      tone.Sound32(pitch);
      break;
    case Route::kToneDXRND:
      tone.ToneDXRND(pitch);
      break;
    case Route::kSoundWinmmRND:
      tone.SoundWinmmRND(pitch);
      break;
    default:
      break;
  }
  while (!PlayingEnds()) WaitTick();
  program.PrintFile("#Sound stopped");
  RefreshStatus();
}

// What follows a stop is for the outermost loop: a play from here would run within this one.
void Form1::WaitTick() {
  const auto ends = [this] { return PlayingEnds(); };
  if (!ends()) ExFunctions(context_).Pause(kPlayTickMs, ends);
}

void Form1::Stop(Program& program) {
  sound tone(context_);
  Command2.SetEnabled(true);
  Command3.SetEnabled(false);
  settings.SetEnabled(true);
  for (std::size_t i = 0; i < kToneModes.size(); ++i) {
    if (!disabled_modes_[i]) OptionOf(kToneModes[i].mode).SetEnabled(true);
  }
  if (Option7.Value()) HScroll1.SetEnabled(true);
  tone.KillAll();
  program.PrintFile("#Pressed Button 3");
  state_.stop_flag = 1;
}

}  // namespace app
