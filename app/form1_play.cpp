// Play and Stop of the main window.
//
// Play returns only after Stop: its loop handles the user's input, and Stop, run nested inside it,
// sets the stop flag that the loop reads.
#include "app/form1.h"

#include "app/tone_modes.h"
#include "base/numbers.h"
#include "base/text.h"

namespace app {
namespace {

constexpr std::int16_t kPlayTickMs = 208;

}  // namespace

void Form1::Command2_Click() {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, 4, [&] { Play(program); });
}

void Form1::Command3_Click() {
  const ProgramPtr program = NewProgram();
  settings::TrapErrors(*program, 5, [&] { Stop(program); });
}

void Form1::Play(const ProgramPtr& program) {
  sound tone(platform_, state_, *this);
  tone.setLang(state_.language);
  state_.temp_folder = platform_.environment.Get("TEMP");
  RefreshStatus();
  program->PrintFile("#Pressed Button 2");

  const std::int16_t pitch = TakePitch();
  if (Option9.Value()) {
    StartHearingTest();
    return;
  }
  program->PrintFile(base::SignedNumber(pitch));
  if (pitch == kNoPitch) {
    platform_.messages.Show("Insoluble error, contact Zevrin Software!", "Error",
                            platform::MessageIcon::kCritical, platform::MessageButtons::kOk);
    platform_.processes.EndProcess();
  }
  state_.stop_flag = 0;
  option_index_ = 0;
  if (pitch != kUnusedMarker && pitch != kMorseMarker) DisableForPlaying();

  if (pitch == kSweepMarker) {
    PlaySweep(program, tone);
  } else if (pitch == kMorseMarker) {
    program->PrintFile("#Morse");
    RefreshStatus();
    others_.MorseWindow().Show();
  } else {
    PlayTone(program, tone, pitch);
  }
}

std::int16_t Form1::TakePitch() {
  const int mode = SelectedMode();
  if (HasOwnPitch(mode)) mode_number_ = base::BareNumber(mode);
  if (!UsesSlider(mode)) return ModePitch(mode);
  HScroll1.SetEnabled(false);
  return SelectedPitch();
}

void Form1::StartHearingTest() {
  platform_.Texts().Write(state_.temp_folder + "\\testhearing.ini",
                          base::Line(state_.SoundBit) + base::Line(state_.language));
  platform_.processes.Start("hearage.dll");
}

void Form1::DisableForPlaying() {
  Command2.SetEnabled(false);
  Command3.SetEnabled(true);
  settings.SetEnabled(false);
  for (option_index_ = 1; option_index_ <= kModes; ++option_index_) {
    const auto index = static_cast<std::size_t>(option_index_);
    ui::OptionButton& option = *Options()[index - 1];
    if (option.Value()) continue;
    if (!option.Enabled()) disabled_modes_[index] = 1;
    option.SetEnabled(false);
  }
  for (ui::OptionButton* option : Options()) option->SetEnabled(false);
}

void Form1::PlaySweep(const ProgramPtr& program, sound& tone) {
  if (RouteOf(kSweepMarker, state_.SoundBit) == Route::kSoundWinmmLTH) {
    tone.SoundWinmmLTH();
  } else {
    tone.LowToHigh(state_.SoundBit);
  }
  do {
    WaitTick();
  } while (!PlayingEnds());
  program->PrintFile("#Sound stopped");
}

void Form1::PlayTone(const ProgramPtr& program, sound& tone, std::int16_t pitch) {
  RefreshStatus();
  switch (RouteOf(pitch, state_.SoundBit)) {
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
  program->PrintFile("#Sound stopped");
  RefreshStatus();
}

void Form1::WaitTick() {
  const auto ends = [this] { return PlayingEnds(); };
  platform_.pump.ProcessPending(ends);
  ex_functions_->Pause(kPlayTickMs, ends);
}

void Form1::Stop(const ProgramPtr& program) {
  sound tone(platform_, state_, *this);
  Command2.SetEnabled(true);
  Command3.SetEnabled(false);
  settings.SetEnabled(true);
  for (option_index_ = 1; option_index_ <= kModes; ++option_index_) {
    const auto index = static_cast<std::size_t>(option_index_);
    if (disabled_modes_[index] != 1) Options()[index - 1]->SetEnabled(true);
  }
  if (Option7.Value()) HScroll1.SetEnabled(true);
  tone.KillAll();
  program->PrintFile("#Pressed Button 3");
  state_.stop_flag = 1;
}

}  // namespace app
